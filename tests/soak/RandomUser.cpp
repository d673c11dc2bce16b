#include "RandomUser.h"

#include "controls/ProgressWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <array>

namespace skeldon::soak {

namespace {

constexpr std::array Keys = {
    Qt::Key_Up,   Qt::Key_Down, Qt::Key_Left,  Qt::Key_Right,  Qt::Key_PageUp, Qt::Key_PageDown,
    Qt::Key_Home, Qt::Key_End,  Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab,    Qt::Key_Escape,
    Qt::Key_F1,   Qt::Key_F10,  Qt::Key_A,     Qt::Key_C,      Qt::Key_D,      Qt::Key_G,
    Qt::Key_S,    Qt::Key_X,    Qt::Key_Z,     Qt::Key_5,      Qt::Key_Minus,  Qt::Key_Period,
    Qt::Key_Plus, Qt::Key_Menu, Qt::Key_Delete};

Qt::KeyboardModifiers AnyModifiers(CRandom& random)
{
    return random.OneOf<Qt::KeyboardModifiers>({Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
                                                Qt::ControlModifier, Qt::ShiftModifier,
                                                Qt::ControlModifier | Qt::ShiftModifier});
}

} // namespace

CRandomUser::CRandomUser(CRandom& random)
    : m_random(random)
{
    LookForDialogs();
}

void CRandomUser::Act(QWidget& window, const std::function<void(const QString&)>& tell)
{
    QWidget& target = AnyTarget(window);
    const QString name = QString::fromLatin1(target.metaObject()->className());
    if (m_random.OneIn(3)) {
        const Qt::Key key = m_random.AnyOf(Keys);
        const Qt::KeyboardModifiers modifiers = AnyModifiers(m_random);
        tell(QStringLiteral("key %1 with %2 on %3")
                 .arg(static_cast<int>(key), 0, 16)
                 .arg(modifiers.toInt(), 0, 16)
                 .arg(name));
        QTest::keyClick(&target, key, modifiers);
        return;
    }
    const QPoint place = AnyPlace(target);
    const int kind = m_random.Below(8);
    tell(QStringLiteral("mouse %1 at %2,%3 of %4")
             .arg(kind)
             .arg(place.x())
             .arg(place.y())
             .arg(name));
    UseMouse(target, place, kind);
}

void CRandomUser::UseMouse(QWidget& target, const QPoint& place, int kind)
{
    const QPointer<QWidget> held(&target);
    const QPoint other = AnyPlace(target);
    const Qt::KeyboardModifiers modifiers = AnyModifiers(m_random);
    switch (kind) {
    case 0:
        QTest::mouseClick(&target, Qt::RightButton, modifiers, place);
        return;
    case 1:
        QTest::mouseDClick(&target, Qt::LeftButton, modifiers, place);
        return;
    case 2:
    case 3:
        QTest::mousePress(&target, Qt::LeftButton, modifiers, place);
        if (held)
            QTest::mouseMove(held, (place + other) / 2);
        if (held)
            QTest::mouseMove(held, other);
        if (held)
            QTest::mouseRelease(held, Qt::LeftButton, modifiers, other);
        return;
    case 4: {
        constexpr int Notch = 120;
        QWheelEvent event(place, target.mapToGlobal(place), {},
                          {0, m_random.Between(-3, 3) * Notch}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&target, &event);
        return;
    }
    case 5:
        QTest::mouseMove(&target, place);
        return;
    default:
        QTest::mouseClick(&target, Qt::LeftButton, modifiers, place);
    }
}

QPoint CRandomUser::AnyPlace(const QWidget& target)
{
    return {m_random.Below(std::max(target.width(), 1)),
            m_random.Below(std::max(target.height(), 1))};
}

QWidget& CRandomUser::AnyTarget(QWidget& window)
{
    std::vector<QWidget*> targets{&window};
    for (QWidget* const child : window.findChildren<QWidget*>()) {
        if (child->isVisible() && child->window() == window.window())
            targets.push_back(child);
    }
    return *m_random.AnyOf(targets);
}

void CRandomUser::LookForDialogs()
{
    // One timer for each look: a timer does not fire again within its own call, and what is done
    // in one dialog may open another.
    constexpr int PauseMs = 5;
    QTimer::singleShot(PauseMs, this, [this] {
        LookForDialogs();
        QWidget* const popup = QApplication::activePopupWidget();
        QWidget* const window = popup != nullptr ? popup : QApplication::activeModalWidget();
        if (window == nullptr || qobject_cast<CProgressWindow*>(window) != nullptr)
            return;
        constexpr int MostActs = 12;
        constexpr int StuckActs = 2000;
        if (std::exchange(m_present, window) != window) {
            m_acts = 0;
            m_patience = m_random.Between(1, MostActs);
        }
        if (++m_acts > StuckActs && m_stuck)
            m_stuck(*window);
        if (popup != nullptr)
            AnswerPopup(*popup);
        else
            AnswerDialog(*window);
    });
}

void CRandomUser::AnswerPopup(QWidget& popup)
{
    if (m_acts > m_patience) {
        popup.close();
        return;
    }
    QTest::keyClick(&popup, m_random.OneOf({Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down,
                                            Qt::Key_Return, Qt::Key_Escape}));
}

void CRandomUser::AnswerDialog(QWidget& window)
{
    if (m_acts <= m_patience) {
        Act(window, [](const QString&) {});
        return;
    }
    auto* const dialog = qobject_cast<QDialog*>(&window);
    if (dialog == nullptr)
        window.close();
    else if (m_acts == m_patience + 1 && m_random.OneIn(2))
        dialog->accept();
    else
        dialog->reject();
}

} // namespace skeldon::soak
