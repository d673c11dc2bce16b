#pragma once

#include <QString>
#include <QStringList>

namespace skeldon {

/// What the program was started with.
class CSkeldonCommandLine
{
public:
    /// Takes one word. A flag comes without its dashes; what follows a ":" in it is dropped, and
    /// letter case does not count. Flags that are not known are passed over.
    void ParseParam(const QString& word, bool isFlag, bool isLast);
    /// Takes all words behind the program's name. A word that begins with "-" is a flag; one that
    /// begins with "/" is a path.
    void Parse(const QStringList& words);

    bool m_startInDisplay = false; ///< the data view comes first
    QString m_fileName;            ///< data file to open; empty for none
    bool m_enableMonitor = false;  ///< the monitor command stays in the menus
};

/// The words behind the program's name, of what `main` was given.
[[nodiscard]] QStringList WordsOf(int argc, const char* const* argv);

} // namespace skeldon
