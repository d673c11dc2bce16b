#include "app/CommandLine.h"

#include <QFile>

namespace skeldon {

void CSkeldonCommandLine::ParseParam(const QString& word, bool isFlag, bool /*isLast*/)
{
    if (!isFlag) {
        if (m_fileName.isEmpty()) {
            m_fileName = word;
            m_startInDisplay = true;
        }
        return;
    }
    const QString flag = word.section(QLatin1Char(':'), 0, 0).toLower();
    if (flag == QLatin1String("setup"))
        m_startInDisplay = false;
    else if (flag == QLatin1String("display"))
        m_startInDisplay = true;
    else if (flag == QLatin1String("mon"))
        m_enableMonitor = true;
}

void CSkeldonCommandLine::Parse(const QStringList& words)
{
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& word = words[i];
        const bool isFlag = word.startsWith(QLatin1Char('-'));
        const int dashes = word.startsWith(QLatin1String("--")) ? 2 : 1;
        ParseParam(isFlag ? word.mid(dashes) : word, isFlag, i + 1 == words.size());
    }
}

QStringList WordsOf(int argc, const char* const* argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words << QFile::decodeName(argv[i]);
    return words;
}

} // namespace skeldon
