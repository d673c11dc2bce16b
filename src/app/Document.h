#pragma once

#include <QObject>

namespace skeldon {

/// What the main window and its views tell each other.
enum class DocumentHint
{
    ActiveView = 1,      ///< the argument is the index of the view that is shown now
    Connection = 2,      ///< the argument is whether a recorder is connected
    Closing = 3,         ///< the program is about to end
    SettingsChanged = 4, ///< the settings sheet was closed with OK
};

/// The broadcast channel between the main window and the views; holds no data.
class CSkeldonDoc : public QObject
{
    Q_OBJECT

public:
    /// Reaches all views before it returns.
    void UpdateAllViews(DocumentHint hint, int argument = 0) { emit Updated(hint, argument); }

signals:
    void Updated(skeldon::DocumentHint hint, int argument);
};

} // namespace skeldon
