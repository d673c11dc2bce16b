#pragma once

#include <QAbstractTableModel>

namespace skeldon {

/// The rows of the measured list: how many there are, and the titles of the columns. Rows hold no
/// text: what a cell shows is made when it is painted.
class CMeasuredListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Drops all rows and gives `count` new ones.
    void SetRowCount(int count);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    int m_rows = 0;
};

} // namespace skeldon
