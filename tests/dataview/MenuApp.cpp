#include "MenuApp.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

namespace skeldon::test {

namespace {

/// The actions from the bar down to the first entry that gives the command; empty without one.
QList<QAction*> PathTo(const QList<QAction*>& actions, CommandId command)
{
    for (QAction* const action : actions) {
        if (action->menu() != nullptr) {
            const QList<QAction*> below = PathTo(action->menu()->actions(), command);
            if (!below.isEmpty())
                return QList<QAction*>{action} + below;
        } else if (!action->isSeparator() && action->data().toInt() == static_cast<int>(command)) {
            return {action};
        }
    }
    return {};
}

void Collect(const QList<QAction*>& actions, Commands& commands)
{
    for (const QAction* const action : actions) {
        if (action->menu() != nullptr)
            Collect(action->menu()->actions(), commands);
        else if (!action->isSeparator())
            commands.insert(static_cast<CommandId>(action->data().toInt()));
    }
}

} // namespace

Commands operator+(Commands some, const Commands& more)
{
    some.insert(more.begin(), more.end());
    return some;
}

Commands operator-(Commands some, const Commands& less)
{
    for (const CommandId command : less)
        some.erase(command);
    return some;
}

QString NamesOf(const Commands& commands)
{
    QStringList numbers;
    for (const CommandId command : commands)
        numbers << QString::number(static_cast<int>(command));
    return numbers.join(u' ');
}

CMenuApp::CMenuApp(const QString& language)
    : CFrameApp(language)
    , m_isJapanese(language == QLatin1String("Japanese"))
{
    Settings().WriteInt(SystemSection, QStringLiteral("OnlineSecond"), 1);
    QVERIFY(Start({QStringLiteral("-display"), QStringLiteral("-mon")}));
}

Commands CMenuApp::InMenus()
{
    Commands commands;
    Collect(Bar().actions(), commands);
    return commands;
}

Commands CMenuApp::Allowed()
{
    Commands allowed;
    for (const CommandId command : InMenus()) {
        const QAction* const entry = GoTo(command);
        if (entry != nullptr && entry->isEnabled())
            allowed.insert(command);
        CloseMenus();
    }
    return allowed;
}

bool CMenuApp::Choose(CommandId command)
{
    QAction* const entry = GoTo(command);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (entry == nullptr || menu == nullptr)
        return false;
    const bool isEnabled = entry->isEnabled();
    if (isEnabled)
        QTest::keyClick(menu, Qt::Key_Return);
    else
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    CloseMenus();
    QCoreApplication::processEvents();
    return isEnabled;
}

bool CMenuApp::IsTicked(CommandId command)
{
    const QAction* const entry = GoTo(command);
    const bool isTicked = entry != nullptr && entry->isChecked();
    CloseMenus();
    return isTicked;
}

QAction* CMenuApp::GoTo(CommandId command)
{
    const QList<QAction*> path = PathTo(Bar().actions(), command);
    if (path.isEmpty())
        return nullptr;
    Bar().setActiveAction(path[0]);
    for (int i = 1; i < path.size(); ++i) {
        QMenu* const menu = path[i - 1]->menu();
        if (!QTest::qWaitFor([menu] { return menu->isVisible(); }))
            return nullptr;
        if (i + 1 < path.size() || path[i]->isEnabled())
            menu->setActiveAction(path[i]);
    }
    return path.back();
}

void CMenuApp::CloseMenus()
{
    while (QWidget* const popup = QApplication::activePopupWidget())
        popup->close();
}

} // namespace skeldon::test
