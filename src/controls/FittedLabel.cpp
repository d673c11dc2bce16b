#include "controls/FittedLabel.h"

#include "controls/Caption.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace skeldon {

CFittedLabel::CFittedLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

bool CFittedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip &&
        FitCaption(text(), font(), contentsRect().width()).text != text()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           Qt::convertFromPlainText(text()), this);
        return true;
    }
    return QLabel::event(event);
}

void CFittedLabel::paintEvent(QPaintEvent* /*event*/)
{
    const FittedCaption fitted = FitCaption(text(), font(), contentsRect().width());
    QPainter painter(this);
    drawFrame(&painter);
    painter.setFont(fitted.font);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), fitted.text, foregroundRole());
}

} // namespace skeldon
