#include "setup/view/ProfileList.h"

#include "app/DataText.h"
#include "controls/Theme.h"
#include "setup/view/ProfileLines.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QTextDocument>

namespace skeldon {

CProfileList::CProfileList(QWidget* parent)
    : QListWidget(parent)
{
    SinkIntoForm(*this);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        if (const int row = SelectedRow(); row >= 0)
            emit LineChosen(row);
    });
}

int CProfileList::SelectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

void CProfileList::Show(const CProfileLines& lines, int selected)
{
    const QSignalBlocker quiet(this);
    clear();
    for (const ProfileLine& line : lines.Lines()) {
        auto* const item = new QListWidgetItem(PrintableText(line.text), this);
        item->setData(Qt::UserRole, line.storeIndex);
        // A name may read as rich text, which the tip would show with all that it asks for.
        item->setToolTip(Qt::convertFromPlainText(item->text()));
    }
    setCurrentRow(selected);
}

void CProfileList::mousePressEvent(QMouseEvent* event)
{
    const int before = SelectedRow();
    QListWidget::mousePressEvent(event);
    const QListWidgetItem* const item = itemAt(event->pos());
    if (event->button() == Qt::LeftButton && item != nullptr && row(item) == before)
        emit LineChosen(before);
}

QItemSelectionModel::SelectionFlags CProfileList::selectionCommand(const QModelIndex& index,
                                                                   const QEvent* event) const
{
    if (!index.isValid())
        return QItemSelectionModel::NoUpdate;
    const auto flags = QListWidget::selectionCommand(index, event);
    return flags.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::NoUpdate : flags;
}

} // namespace skeldon
