#pragma once

#include <QListWidget>

namespace skeldon {

class CProfileLines;

/// The list of profiles or templates. It shows lines in the order given. Once a line is selected
/// the user can select another one, but not none.
class CProfileList : public QListWidget
{
    Q_OBJECT

public:
    explicit CProfileList(QWidget* parent = nullptr);

    /// Shows the lines and selects one, or none for -1; nothing is chosen by it.
    void Show(const CProfileLines& lines, int selected);

signals:
    /// The user took a line, be it the selected one again.
    void LineChosen(int position);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex& index, const QEvent* event) const override;

private:
    [[nodiscard]] int SelectedRow() const;
};

} // namespace skeldon
