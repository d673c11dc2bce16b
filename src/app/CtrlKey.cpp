#include "app/CtrlKey.h"

#include <QGuiApplication>

namespace skeldon {

bool IsCtrlDown()
{
    return qEnvironmentVariable("SKELDON_CTRL_AT_START") == QLatin1String("1") || IsCtrlKeyDown();
}

bool IsCtrlKeyDown()
{
    return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ControlModifier);
}

} // namespace skeldon
