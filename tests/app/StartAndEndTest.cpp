#include "app/CtrlKey.h"
#include "app/SkeldonApp.h"
#include "app/platform/SharedBlock.h"
#include "recorder/RecorderPort.h"
#include "support/window/TestApp.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <sys/mman.h>
#include <unistd.h>

using namespace skeldon;
using namespace Qt::StringLiterals;

namespace {

/// A frame that notes what it finds when it is told to build its views.
class CWatchingFrame final : public CFrame
{
public:
    void SetStatusText(const QString& text) override { m_status = text; }
    void ResetStatus() override { m_status = u"(reset)"_s; }
    void SetCaption(const QString& /*text*/) override {}
    [[nodiscard]] bool IsConnected() const override { return false; }
    [[nodiscard]] ViewIndex CurrentView() const override { return ViewIndex::Setup; }
    void SwitchView(ViewIndex /*view*/) override {}
    [[nodiscard]] bool IsPlacementRestored() const override { return false; }
    void EnableSystemClose(bool /*enabled*/) override {}
    [[nodiscard]] bool IsSystemCloseEnabled() const override { return true; }
    void CloseFrame() override {}
    [[nodiscard]] QWidget* Window() override { return nullptr; }
    bool BuildViews(ViewIndex first) override
    {
        m_first = first;
        if (m_whenBuilt)
            m_whenBuilt();
        return m_canBuild;
    }

    std::optional<ViewIndex> m_first; ///< none: no views were asked for
    std::function<void()> m_whenBuilt;
    bool m_canBuild = true;
    QString m_status;
};

/// Names that no other program knows.
const std::string BlockName = "skeldon test start " + std::to_string(getpid());
constexpr const char* MutexName = "skeldon test start mutex";

/// What the main window's field of the shared block holds.
std::uint32_t SharedHandle()
{
    const CSharedBlock block(BlockName);
    return block.GetWords() == nullptr ? 0xFFFFFFFF : block.GetWords()[0];
}

CLockFile::Outcome TryInstanceLock()
{
    CLockFile other;
    other.Open(CSkeldonApp::InstanceName);
    return other.TryLock();
}

} // namespace

class CStartAndEndTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_home;
    CSystemClock m_clock;
    CWatchingFrame* m_frame = nullptr;
    std::unique_ptr<CWatchingFrame> m_ownFrame;
    test::CScriptedPrompts* m_prompts = nullptr;
    int m_framesMade = 0;
    std::string m_port;

    [[nodiscard]] QString Store() const { return m_home->filePath(u"store.ini"_s); }
    [[nodiscard]] QString DataFolder() const { return m_home->filePath(u"Documents/KORVA"_s); }

    void Write(const QString& path, const QByteArray& text)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("a file can not be prepared");
    }

    [[nodiscard]] QByteArray StoreText() const
    {
        QFile file(Store());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// What `MakeApp` hands over, for tests that change it.
    AppServices MakeServices()
    {
        AppServices services;
        services.settings = std::make_unique<CSettings>(Store());
        auto prompts = std::make_unique<test::CScriptedPrompts>();
        m_prompts = prompts.get();
        services.prompts = std::move(prompts);
        services.finder = std::make_unique<test::CTestCable>(m_port);
        services.opener = SystemPortOpener();
        services.clock = &m_clock;
        services.language = u"English"_s;
        services.sharedBlock = BlockName;
        services.sharedMutex = MutexName;
        services.makeFrame = [this] {
            ++m_framesMade;
            App().SetFrame(m_frame);
            return m_frame;
        };
        return services;
    }

    std::unique_ptr<CSkeldonApp> MakeApp() { return std::make_unique<CSkeldonApp>(MakeServices()); }

private slots:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        qputenv("HOME", m_home->path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", m_home->filePath(u"config"_s).toLocal8Bit());
        qputenv("XDG_RUNTIME_DIR", m_home->path().toLocal8Bit());
        qunsetenv("SKELDON_CTRL_AT_START");
        m_ownFrame = std::make_unique<CWatchingFrame>();
        m_frame = m_ownFrame.get();
        m_framesMade = 0;
    }

    void cleanup() { shm_unlink(('/' + BlockName).c_str()); }

    // --- the start ---

    void ByThemselvesTheNamesAreTheFamilys()
    {
        const AppServices services;
        QCOMPARE(services.sharedBlock, "brennick-works SKELDON Sharing Momory");
        QCOMPARE(services.sharedMutex, "brennick-works SKELDON Sharing MutexKey");
    }

    void BeforeTheStartNothingIsDecided()
    {
        Write(Store(), "[System]\nDispUnit=2\n");
        const auto app = MakeApp();
        QCOMPARE(app->m_viewBaseColour, ColourRef{1});
        QCOMPARE(app->m_dispUnit, 0);
        QCOMPARE(app->m_language, QString());
        QVERIFY(!app->m_ctrlAtStart);
        QVERIFY(app->Frame() == nullptr);
        QVERIFY(app->MainWindow() == nullptr);
        QCOMPARE(TryInstanceLock(), CLockFile::Outcome::Taken);
        QCOMPARE(&App(), app.get());
    }

    void ByTheTimeOfTheFrameAllItNeedsIsKnown()
    {
        Write(Store(), "[System]\nDispUnit=2\nViewBase=0\n");
        qputenv("SKELDON_CTRL_AT_START", "1");
        AppServices services = MakeServices();
        services.language = u"Japanese"_s;
        int asked = 0;
        services.makeFrame = [&]() -> CFrame* {
            ++asked;
            [&] {
                QCOMPARE(TryInstanceLock(), CLockFile::Outcome::HeldElsewhere);
                QVERIFY(App().m_ctrlAtStart);
                QVERIFY(App().IsJapanese());
                QCOMPARE(App().m_viewBaseColour, ColourRef{0xC8D0D4});
                QCOMPARE(App().m_dispUnit, 2);
                QCOMPARE(App().m_commandLine.m_fileName, u"x.skd"_s);
                QVERIFY(App().m_commandLine.m_enableMonitor);
                QCOMPARE(SharedHandle(), 0U);
            }();
            return m_frame;
        };
        CSkeldonApp app(std::move(services));
        QVERIFY(app.InitInstance({u"-mon"_s, u"x.skd"_s}));
        QCOMPARE(asked, 1);
        QCOMPARE(app.Frame(), m_frame);
    }

    void TheHandleIsToldBeforeTheViewsAreBuiltAndTheFolderMadeAfterwards()
    {
        const auto app = MakeApp();
        std::uint32_t handle = 0;
        bool hadFolder = true;
        m_frame->m_whenBuilt = [&] {
            handle = SharedHandle();
            hadFolder = QFileInfo::exists(DataFolder());
        };
        QVERIFY(app->InitInstance({}));
        // Without numbered windows the process stands for its window.
        QCOMPARE(handle, static_cast<std::uint32_t>(QCoreApplication::applicationPid()));
        QVERIFY(!hadFolder);
        QVERIFY(QFileInfo(DataFolder()).isDir());
        QVERIFY(m_prompts->m_shown.empty());
        QCOMPARE(m_prompts->m_beeps, 0);
    }

    void TheCommandLineSaysWhichViewComesFirst()
    {
        {
            const auto app = MakeApp();
            QVERIFY(app->InitInstance({}));
            QCOMPARE(m_frame->m_first, ViewIndex::Setup);
        }
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({u"a.skd"_s}));
        QCOMPARE(m_frame->m_first, ViewIndex::Display);
    }

    void ASecondStartEndsWithNothingMade()
    {
        CLockFile first;
        QVERIFY(first.Open("brennick-works SKELDON MutexKey"));
        QCOMPARE(first.TryLock(), CLockFile::Outcome::Taken);
        {
            CSharedLink running(BlockName, MutexName);
            running.SetWindowHandle(4711);
            const auto app = MakeApp();
            QVERIFY(!app->InitInstance({u"a.skd"_s}));
            QCOMPARE(m_framesMade, 0);
            QCOMPARE(SharedHandle(), 4711U);
            QVERIFY(m_prompts->m_shown.empty());
            QCOMPARE(m_prompts->m_beeps, 0);
            running.SetWindowHandle(0);
        }
        QCOMPARE(SharedHandle(), 0U);
        QVERIFY(!QFileInfo::exists(m_home->filePath(u"Documents"_s)));
        QVERIFY(!QFileInfo::exists(Store()));
        QCOMPARE(TryInstanceLock(), CLockFile::Outcome::HeldElsewhere);

        first.Close();
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        QCOMPARE(m_framesMade, 1);
    }

    void ALockThatCanNotBeMadeStopsNobody()
    {
        qputenv("XDG_RUNTIME_DIR", m_home->filePath(u"not there"_s).toLocal8Bit());
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        QVERIFY(m_frame->m_first.has_value());
        app->ExitInstance();
    }

    void ALockThatIsAFolderStopsNobody()
    {
        QVERIFY(QDir(m_home->path()).mkdir(QLatin1String(CSkeldonApp::InstanceName)));
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
    }

    void WithoutAFrameTheStartFails()
    {
        m_frame = nullptr;
        const auto app = MakeApp();
        QVERIFY(!app->InitInstance({}));
        QCOMPARE(SharedHandle(), 0U);
        QVERIFY(!QFileInfo::exists(DataFolder()));
        QVERIFY(m_prompts->m_shown.empty());
    }

    void WithoutViewsTheStartFails()
    {
        m_frame->m_canBuild = false;
        const auto app = MakeApp();
        QVERIFY(!app->InitInstance({}));
        QVERIFY(!QFileInfo::exists(DataFolder()));
        QVERIFY(m_prompts->m_shown.empty());
    }

    void TheFaceOfTheFormsFollowsItsSetting_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<ColourRef>("colour");
        QTest::newRow("missing") << QByteArray() << ColourRef{0xD8E9EC};
        QTest::newRow("1") << QByteArray("ViewBase=1\n") << ColourRef{0xD8E9EC};
        QTest::newRow("other number") << QByteArray("ViewBase=-9\n") << ColourRef{0xD8E9EC};
        QTest::newRow("text") << QByteArray("ViewBase=grey\n") << ColourRef{0xD8E9EC};
        QTest::newRow("0") << QByteArray("ViewBase=0\n") << ColourRef{0xC8D0D4};
    }

    void TheFaceOfTheFormsFollowsItsSetting()
    {
        QFETCH(const QByteArray, text);
        Write(Store(), "[System]\n" + text);
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        QTEST(app->m_viewBaseColour, "colour");
    }

    // --- the language ---

    void JapaneseIsKnownInAnyCase_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("isJapanese");
        QTest::newRow("usual") << u"Japanese"_s << true;
        QTest::newRow("capitals") << u"JAPANESE"_s << true;
        QTest::newRow("small") << u"japanese"_s << true;
        QTest::newRow("English") << u"English"_s << false;
        QTest::newRow("longer") << u"Japanese (Japan)"_s << false;
        QTest::newRow("not told") << QString() << false;
    }

    void JapaneseIsKnownInAnyCase()
    {
        QFETCH(const QString, language);
        AppServices services = MakeServices();
        services.language = language;
        CSkeldonApp app(std::move(services));
        QVERIFY(app.InitInstance({}));
        QCOMPARE(app.m_language, language);
        QTEST(app.IsJapanese(), "isJapanese");
    }

    // --- the Ctrl key ---

    void TheVariableStandsForTheCtrlKey_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("isDown");
        QTest::newRow("1") << QByteArray("1") << true;
        QTest::newRow("0") << QByteArray("0") << false;
        QTest::newRow("empty") << QByteArray("") << false;
        QTest::newRow("11") << QByteArray("11") << false;
        QTest::newRow("yes") << QByteArray("yes") << false;
    }

    void TheVariableStandsForTheCtrlKey()
    {
        QFETCH(const QByteArray, value);
        QVERIFY(!IsCtrlDown());
        qputenv("SKELDON_CTRL_AT_START", value);
        QTEST(IsCtrlDown(), "isDown");
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        QTEST(app->m_ctrlAtStart, "isDown");
    }

    void ACtrlKeyThatIsHeldIsSeen()
    {
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::keyPress(window.windowHandle(), Qt::Key_F24, Qt::ControlModifier);
        QVERIFY(IsCtrlDown());
        QTest::keyRelease(window.windowHandle(), Qt::Key_F24, Qt::NoModifier);
        QVERIFY(!IsCtrlDown());
    }

    // --- the data folder ---

    void TheDataFolderIsMadeWhereTheSettingNamesIt()
    {
        CSettings(Store()).WriteText(SystemSection, u"DataPath"_s, DataFolder());
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        QVERIFY(QFileInfo(DataFolder()).isDir());
    }

    void MissingParentsOfTheDataFolderAreMade()
    {
        QVERIFY(QDir(m_home->path()).mkdir(u"config"_s));
        Write(m_home->filePath(u"config/user-dirs.dirs"_s),
              "XDG_DOCUMENTS_DIR=\"$HOME/some/where/else\"\n");
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        QVERIFY(QFileInfo(m_home->filePath(u"some/where/else/KORVA"_s)).isDir());
        QVERIFY(!QFileInfo::exists(m_home->filePath(u"Documents"_s)));
    }

    void AnotherDataFolderIsNeitherTestedNorMade()
    {
        const QString other = m_home->filePath(u"mine"_s);
        CSettings(Store()).WriteText(SystemSection, u"DataPath"_s, other);
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        QVERIFY(!QFileInfo::exists(other));
        QVERIFY(!QFileInfo::exists(DataFolder()));
        QVERIFY(m_prompts->m_shown.empty());
    }

    void ADataFolderThatCanNotBeMadeStopsNobody()
    {
        Write(m_home->filePath(u"Documents"_s), "a file");
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        QVERIFY(!QFileInfo::exists(DataFolder()));
        QVERIFY(m_prompts->m_shown.empty());
    }

    // --- the display's unit ---

    void TheUnitIsWrittenBackAsItWas_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<int>("unit");
        QTest::addColumn<int>("shown");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char* name, const char* before, int unit, int shown,
                            const char* after) {
            QTest::newRow(name) << QByteArray(before) << unit << shown << QByteArray(after);
        };
        row("missing", "", 0, 0, "[System]\nDispUnit=0\n");
        row("0", "[System]\nDispUnit=0\n", 0, 0, "[System]\nDispUnit=0\n");
        row("1", "[System]\nDispUnit=1\n", 1, 1, "[System]\nDispUnit=1\n");
        row("2", "[System]\nDispUnit=2\n", 2, 2, "[System]\nDispUnit=2\n");
        row("above the table", "[System]\nDispUnit=7\n", 7, 0, "[System]\nDispUnit=7\n");
        row("below the table", "[System]\nDispUnit=-1\n", -1, 0, "[System]\nDispUnit=-1\n");
        row("text", "[System]\nDispUnit=Gal\n", 0, 0, "[System]\nDispUnit=0\n");
        row("overflow", "[System]\nDispUnit=4294967298\n", 0, 0, "[System]\nDispUnit=0\n");
    }

    void TheUnitIsWrittenBackAsItWas()
    {
        QFETCH(const QByteArray, before);
        QFETCH(const int, shown);
        if (!before.isEmpty())
            Write(Store(), before);
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        QTEST(app->m_dispUnit, "unit");
        QCOMPARE(static_cast<int>(app->GetDispUnit()), shown);
        app->ExitInstance();
        QTEST(StoreText(), "after");
    }

    void AUnitThatWasChosenIsKept()
    {
        Write(Store(), "[System]\nDispUnit=1\n");
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        app->m_dispUnit = 2;
        app->ExitInstance();
        QCOMPARE(StoreText(), "[System]\nDispUnit=2\n");
    }

    // --- the end ---

    void TheEndTakesTheHandleBackAndFreesTheInstance()
    {
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        QCOMPARE(TryInstanceLock(), CLockFile::Outcome::HeldElsewhere);
        QVERIFY(SharedHandle() != 0);
        app->ExitInstance();
        QCOMPARE(SharedHandle(), 0U);
        QCOMPARE(TryInstanceLock(), CLockFile::Outcome::Taken);
    }

    void AStoreThatCanNotBeWrittenDoesNotHinderTheEnd()
    {
        QVERIFY(QDir(m_home->path()).mkdir(u"store.ini"_s));
        const auto app = MakeApp();
        QVERIFY(app->InitInstance({}));
        app->ExitInstance();
        QCOMPARE(TryInstanceLock(), CLockFile::Outcome::Taken);
        QVERIFY(m_prompts->m_shown.empty());
    }

    // --- the ways to the frame ---

    void StatusTextsGoToTheFrameOnceThereIsOne()
    {
        const auto app = MakeApp();
        SetStatusText(u"nowhere"_s);
        ResetStatus();
        QCOMPARE(m_frame->m_status, QString());
        QVERIFY(app->InitInstance({}));
        SetStatusText(u"Loading files..."_s);
        QCOMPARE(m_frame->m_status, u"Loading files..."_s);
        ResetStatus();
        QCOMPARE(m_frame->m_status, u"(reset)"_s);
    }

    void TheAboutBoxIsShownOverItsParent()
    {
        QWidget parent;
        QWidget* shownOver = nullptr;
        AppServices services = MakeServices();
        services.showAbout = [&shownOver](QWidget* over) { shownOver = over; };
        CSkeldonApp app(std::move(services));
        app.ShowAbout(&parent);
        QCOMPARE(shownOver, &parent);
    }
};

QTEST_MAIN(CStartAndEndTest)
#include "StartAndEndTest.moc"
