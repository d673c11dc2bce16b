#include "dataview/ListSplitter.h"

#include "app/Colour.h"
#include "resources/StringTable.h"

#include <QKeyEvent>
#include <QPainter>

namespace skeldon {

namespace {

/// A row of the list, and four of them.
constexpr int Step = 16;
constexpr int Page = 4 * Step;
/// That of selected rows of the list.
constexpr ColourRef FocusColour = 0x800000;

} // namespace

CListSplitter::CListSplitter(QWidget* parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(Text(StringId::NameSplitter));
}

void CListSplitter::SetBorder(int border, int highest, int lowest)
{
    const bool isChanged = m_border != border;
    m_border = border;
    m_highest = highest;
    m_lowest = lowest;
    if (isChanged)
        AnnounceValue(this);
}

QAccessible::Role CListSplitter::AccessibleRole() const
{
    return QAccessible::Splitter;
}

QString CListSplitter::AccessibleValue() const
{
    return QString::number(m_border);
}

bool CListSplitter::GaugeNumbers(int& present, int& smallest, int& largest) const
{
    present = m_border;
    smallest = m_highest;
    largest = m_lowest;
    return true;
}

void CListSplitter::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        return emit Moved(m_border - Step);
    case Qt::Key_Down:
        return emit Moved(m_border + Step);
    case Qt::Key_PageUp:
        return emit Moved(m_border - Page);
    case Qt::Key_PageDown:
        return emit Moved(m_border + Page);
    case Qt::Key_Home:
        return emit Moved(m_highest);
    case Qt::Key_End:
        return emit Moved(m_lowest);
    default:
        QWidget::keyPressEvent(event);
    }
}

void CListSplitter::paintEvent(QPaintEvent* /*event*/)
{
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.fillRect(rect(), ToColour(FocusColour));
}

} // namespace skeldon
