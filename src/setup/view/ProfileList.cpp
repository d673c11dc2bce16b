#include "setup/view/ProfileList.h"

#include "app/DataText.h"
#include "setup/view/ProfileLines.h"

#include <QMouseEvent>
#include <QSignalBlocker>

namespace skeldon {

CProfileList::CProfileList(QWidget* parent)
    : QListWidget(parent)
{
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            emit LineChosen(row);
    });
}

void CProfileList::Show(const CProfileLines& lines, int selected)
{
    const QSignalBlocker quiet(this);
    clear();
    for (const ProfileLine& line : lines.Lines()) {
        auto* const item = new QListWidgetItem(PrintableText(line.text), this);
        item->setData(Qt::UserRole, line.storeIndex);
        item->setToolTip(item->text());
    }
    setCurrentRow(selected);
}

void CProfileList::mousePressEvent(QMouseEvent* event)
{
    const int before = currentRow();
    QListWidget::mousePressEvent(event);
    const QListWidgetItem* const item = itemAt(event->pos());
    if (event->button() == Qt::LeftButton && item != nullptr && row(item) == before)
        emit LineChosen(before);
}

} // namespace skeldon
