#include "app/SkeldonApp.h"
#include "app/platform/LockFile.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace skeldon;

namespace {

/// A program that ends with the test at the latest.
class CProgram : public QProcess
{
public:
    ~CProgram() override { End(); }

    void End()
    {
        kill();
        waitForFinished();
    }
};

} // namespace

/// The built program as a user starts it, in a home of its own and without a screen.
class ProgramTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        QVERIFY(m_home->isValid());
        // The lock is looked for in this process, too.
        qputenv("XDG_RUNTIME_DIR", m_home->path().toUtf8());
    }

    void SecondStartEndsWithoutAWord()
    {
        CProgram first;
        Start(first, {});
        QVERIFY(IsUp(first));
        CProgram second;
        Start(second, {});
        QVERIFY(second.waitForFinished());
        QCOMPARE(second.exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(second.readAllStandardOutput(), QByteArray());
        QCOMPARE(second.readAllStandardError(), QByteArray());
        QCOMPARE(first.state(), QProcess::Running);
    }

    void NextStartFollowsAKilledOne()
    {
        CProgram first;
        Start(first, {});
        QVERIFY(IsUp(first));
        first.End();
        CProgram next;
        Start(next, {});
        QVERIFY(IsUp(next));
    }

    /// Words that mean something to the toolkit mean nothing here.
    void ToolkitTakesNoneOfTheWords_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("platform") << QStringList{"-platform", "nowhere"};
        QTest::newRow("platform with two dashes") << QStringList{"--platform", "nowhere"};
        QTest::newRow("display") << QStringList{"-display", "nowhere.skd"};
    }

    void ToolkitTakesNoneOfTheWords()
    {
        QFETCH(const QStringList, words);
        CProgram program;
        Start(program, words);
        QVERIFY(IsUp(program));
        QVERIFY(!program.waitForFinished(StaysMs));
    }

    void FoldersThatCanNotBeMadeStopNobody()
    {
        QFile file(Path("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QProcessEnvironment environment = Environment();
        for (const char* const name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            environment.insert(QLatin1String(name), Path("file"));
        CProgram program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(SKELDON_LIGHT), {"-display"});
        QVERIFY(IsUp(program));
        QVERIFY(!program.waitForFinished(StaysMs));
    }

    void DataFolderIsMadeAtTheFirstStart()
    {
        CProgram program;
        Start(program, {});
        QTRY_VERIFY(QDir(Path("Documents/KORVA")).exists());
    }

    void cleanup() { m_home.reset(); }

private:
    /// How long a program is watched that is to stay.
    static constexpr int StaysMs = 300;

    [[nodiscard]] QString Path(const char* name) const
    {
        return m_home->filePath(QLatin1String(name));
    }

    [[nodiscard]] QProcessEnvironment Environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_home->path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), Path("config"));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), Path("data"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_home->path());
        environment.insert(QStringLiteral("SKELDON_PORT"), Path("port"));
        return environment;
    }

    void Start(QProcess& program, const QStringList& words)
    {
        program.setProcessEnvironment(Environment());
        program.start(QStringLiteral(SKELDON_LIGHT), words);
        QVERIFY(program.waitForStarted());
    }

    /// Whether the program comes to where it is the one that runs.
    [[nodiscard]] static bool IsUp(const QProcess& program)
    {
        return QTest::qWaitFor([&] {
                   CLockFile lock;
                   return lock.Open(CSkeldonApp::InstanceName) &&
                          lock.TryLock() == CLockFile::Outcome::HeldElsewhere;
               }) &&
               program.state() == QProcess::Running;
    }

    std::unique_ptr<QTemporaryDir> m_home;
};

QTEST_MAIN(ProgramTest)
#include "ProgramTest.moc"
