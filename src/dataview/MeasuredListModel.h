#pragma once

#include <QAbstractTableModel>

#include <cstddef>
#include <functional>
#include <utility>

namespace skeldon {

enum class ListColumn;

/// Title of a column, on the screen and on paper; the line numbers have none.
[[nodiscard]] QString TitleOf(ListColumn column);

/// The rows of the measured list: how many there are, and the titles of the columns. Rows hold no
/// text: what a cell shows is made when it is painted, or when a screen reader asks for it.
class CMeasuredListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    using TextSource = std::function<QString(std::size_t row, ListColumn column)>;

    /// Where screen readers get the text of a cell from.
    void SetTextSource(TextSource source) { m_source = std::move(source); }
    /// Drops all rows and gives `count` new ones.
    void SetRowCount(int count);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    TextSource m_source;
    int m_rows = 0;
};

} // namespace skeldon
