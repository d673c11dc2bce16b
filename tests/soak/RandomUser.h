#pragma once

#include "Random.h"

#include <QObject>
#include <QString>
#include <QWidget>

#include <functional>

namespace skeldon::soak {

/// Presses keys and moves the mouse without knowing what it does. While it lives, it also answers
/// whatever dialog or menu stands open: it works in it for a while and closes it.
class CRandomUser : public QObject
{
    Q_OBJECT

public:
    explicit CRandomUser(CRandom& random);

    /// Does something to the window or to any control on it; gives what it does before it does it.
    void Act(QWidget& window, const std::function<void(const QString&)>& tell);
    /// Called with every modal window that has outlived its patience.
    std::function<void(QWidget&)> m_stuck;

private:
    void LookForDialogs();
    void AnswerPopup(QWidget& popup);
    void AnswerDialog(QWidget& dialog);
    void UseMouse(QWidget& target, const QPoint& place, int kind);
    [[nodiscard]] QPoint AnyPlace(const QWidget& target);
    [[nodiscard]] QWidget& AnyTarget(QWidget& window);

    CRandom& m_random;
    const QWidget* m_present = nullptr; ///< the dialog or menu that was there the last time
    int m_acts = 0;                     ///< in it so far
    int m_patience = 0;
};

} // namespace skeldon::soak
