#pragma once

#include <QObject>

namespace skeldon {

/// Keeps an edit field from reading a clipboard whose owner hangs, which would hold up the whole
/// program: what would paste, or show the menu that offers it, is answered by a beep then. To be
/// installed as an event filter of the application.
class CPasteGuard : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace skeldon
