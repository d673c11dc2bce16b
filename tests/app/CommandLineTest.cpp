#include "app/CommandLine.h"

#include <QTest>

using namespace skeldon;
using namespace Qt::StringLiterals;

class CCommandLineTest : public QObject
{
    Q_OBJECT

private slots:
    void WordsDecideViewFileAndMonitor_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<bool>("display");
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("monitor");
        const auto row = [](const char* name, const QStringList& words, bool display,
                            const QString& file, bool monitor) {
            QTest::newRow(name) << words << display << file << monitor;
        };
        row("nothing", {}, false, {}, false);
        row("a file brings the data view", {u"a.skd"_s}, true, u"a.skd"_s, false);
        row("the second plain word is dropped", {u"a.skd"_s, u"b.skd"_s}, true, u"a.skd"_s, false);
        row("a dropped word leaves the view", {u"a.skd"_s, u"-setup"_s, u"b.skd"_s}, false,
            u"a.skd"_s, false);
        row("setup behind the file", {u"a.skd"_s, u"-setup"_s}, false, u"a.skd"_s, false);
        row("setup before the file", {u"-setup"_s, u"a.skd"_s}, true, u"a.skd"_s, false);
        row("display", {u"-display"_s}, true, {}, false);
        row("the later of two views", {u"-display"_s, u"-setup"_s}, false, {}, false);
        row("monitor alone", {u"-mon"_s}, false, {}, true);
        row("all together", {u"--mon"_s, u"a.skd"_s, u"--setup"_s}, false, u"a.skd"_s, true);

        row("two dashes", {u"--display"_s}, true, {}, false);
        row("three dashes are another flag", {u"---display"_s}, false, {}, false);
        row("capitals", {u"-DISPLAY"_s, u"--MON"_s}, true, {}, true);
        row("mixed case", {u"-display"_s, u"-SetUp"_s}, false, {}, false);
        row("text behind a colon", {u"-display:any thing"_s}, true, {}, false);
        row("nothing behind the colon", {u"-Display:"_s}, true, {}, false);
        row("two colons", {u"-mon:a:b"_s}, false, {}, true);
        row("colon in front", {u"-:display"_s}, false, {}, false);

        row("longer words are other flags", {u"-monitor"_s, u"-displays"_s}, false, {}, false);
        row("shorter words are other flags", {u"-mo"_s, u"-disp"_s}, false, {}, false);
        row("blanks count", {u"- display"_s, u"-mon "_s}, false, {}, false);
        row("dashes alone", {u"-"_s, u"--"_s}, false, {}, false);
        row("flags of other programs", {u"-p"_s, u"-pt"_s, u"-dde"_s, u"-Automation"_s}, false, {},
            false);

        row("a slash begins a file", {u"/display"_s}, true, u"/display"_s, false);
        row("a path", {u"/home/me/mon.skd"_s, u"-mon"_s}, true, u"/home/me/mon.skd"_s, true);
        row("the word of a flag without dashes", {u"setup"_s}, true, u"setup"_s, false);
        row("a file keeps its colon and case", {u"D:\\Data:1.SKD"_s}, true, u"D:\\Data:1.SKD"_s,
            false);
        row("a file beyond ASCII", {u"計測 1.skd"_s}, true, u"計測 1.skd"_s, false);
    }

    void WordsDecideViewFileAndMonitor()
    {
        QFETCH(const QStringList, words);
        CSkeldonCommandLine line;
        line.Parse(words);
        QTEST(line.m_startInDisplay, "display");
        QTEST(line.m_fileName, "file");
        QTEST(line.m_enableMonitor, "monitor");
    }

    void OneWordIsTakenByWhatItIsSaidToBe()
    {
        CSkeldonCommandLine line;
        line.ParseParam(u"-setup"_s, false, false);
        QCOMPARE(line.m_fileName, u"-setup"_s);
        QVERIFY(line.m_startInDisplay);
        line.ParseParam(u"setup"_s, true, true);
        QVERIFY(!line.m_startInDisplay);
        line.ParseParam(u"other.skd"_s, true, true);
        QCOMPARE(line.m_fileName, u"-setup"_s);
        QVERIFY(!line.m_startInDisplay);
    }

    void WordsStandBehindTheProgramsName()
    {
        const char* const given[] = {"skeldon-light", "-display", "\xE8\xA8\x88 1.skd"};
        QCOMPARE(WordsOf(3, given), (QStringList{u"-display"_s, u"計 1.skd"_s}));
        QCOMPARE(WordsOf(1, given), QStringList());
        QCOMPARE(WordsOf(0, given), QStringList());
    }
};

QTEST_GUILESS_MAIN(CCommandLineTest)
#include "CommandLineTest.moc"
