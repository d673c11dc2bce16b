#include "app/WaitCursor.h"

#include <QGuiApplication>

namespace skeldon {

CWaitCursor::CWaitCursor()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

CWaitCursor::~CWaitCursor()
{
    QGuiApplication::restoreOverrideCursor();
}

} // namespace skeldon
