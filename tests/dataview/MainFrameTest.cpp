#include "FrameApp.h"

#include "controls/SkinButton.h"
#include "setup/view/SetupView.h"

#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QWindow>

using namespace skeldon;
using namespace skeldon::test;

namespace {

const QString Question = QStringLiteral("The data is not saved. \nDo you want to save it?");

} // namespace

/// The main window from its start to its end.
class MainFrameTest : public QObject
{
    Q_OBJECT

private slots:
    void DataViewComesByWayOfTheSetupView()
    {
        CFrameApp app;
        QVERIFY(app.Start({QStringLiteral("-display")}));
        QCOMPARE(app.m_hints, QStringLiteral("1:0 1:1 "));
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Display);
        QVERIFY(app.View().isVisible());
        QVERIFY(app.Frame().MenuOf(ViewIndex::Display)->isVisible());
        QVERIFY(!app.Frame().MenuOf(ViewIndex::Setup)->isVisible());
    }

    void SetupViewComesAtOnce()
    {
        CFrameApp app;
        QVERIFY(app.Start({}));
        QCOMPARE(app.m_hints, QStringLiteral("1:0 "));
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Setup);
        QVERIFY(!app.View().isVisible());
        QVERIFY(app.Frame().MenuOf(ViewIndex::Setup)->isVisible());
        QVERIFY(!app.Frame().MenuOf(ViewIndex::Display)->isVisible());
    }

    void TitleIsTheProductAndWhatIsShown()
    {
        CFrameApp app;
        app.m_made = [&] { QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light")); };
        QVERIFY(app.Start());
        QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light"));
        app.Frame().SetCaption(QStringLiteral("crate.skd"));
        QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light - crate.skd"));
        app.Frame().SetCaption({});
        QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light"));
    }

    void TitleHasTheWholeNameOfTheFile()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        for (const QString& name : {QStringLiteral("a[*].skd"), QStringLiteral("[*][*]"),
                                    QStringLiteral("50% [x]*&.skd")}) {
            app.Frame().SetCaption(name);
            QCOMPARE(app.Frame().windowHandle()->title(),
                     QStringLiteral("SKELDON Light - ") + name);
        }
    }

    void TitleFollowsTheDataViewWhileItIsHidden()
    {
        CFrameApp app;
        QVERIFY(app.Start({app.WriteLines(QStringLiteral("crate.skd"), 3)}));
        QTRY_COMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light - crate.skd"));
        app.Frame().SwitchView(ViewIndex::Setup);
        app.Frame().SetCaption(QStringLiteral("another"));
        app.PlugIn({});
        QVERIFY(app.Connect());
        QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light - crate.skd"));
    }

    void StartFileIsOpenedBehindTheSetupView()
    {
        CFrameApp app;
        QVERIFY(
            app.Start({app.WriteLines(QStringLiteral("crate.skd"), 3), QStringLiteral("--setup")}));
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Setup);
        app.Frame().SwitchView(ViewIndex::Display);
        QTRY_COMPARE(app.View().Data().GetSize(), std::size_t{3});
    }

    void StartFileThatIsNoneIsTold_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << QStringLiteral("/nowhere/crate.skd");
        QTest::newRow("folder") << QStringLiteral("/tmp");
        QTest::newRow("other file") << QStringLiteral("/proc/version");
    }

    void StartFileThatIsNoneIsTold()
    {
        QFETCH(const QString, path);
        CFrameApp app;
        QVERIFY(app.Start({path}));
        QTRY_COMPARE(app.m_prompts->Boxes(), QStringList(QStringLiteral("Failed to read.")));
        QCOMPARE(app.Frame().windowTitle(), QStringLiteral("SKELDON Light"));
        QVERIFY(app.View().Data().IsEmpty());
    }

    void StatusBarHasThreePanes()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        constexpr int ModelWidth = 140;
        constexpr int ReleaseWidth = 90;
        app.Frame().SetPaneText(0, QStringLiteral("first"));
        app.Frame().SetPaneText(1, QStringLiteral("second"));
        app.Frame().SetPaneText(2, QStringLiteral("third"));
        QApplication::processEvents();
        const auto pane = [&](const char* text) -> QLabel* {
            for (auto* const label : app.Frame().statusBar()->findChildren<QLabel*>()) {
                if (label->text() == QLatin1String(text))
                    return label;
            }
            return nullptr;
        };
        QLabel* const first = pane("first");
        QLabel* const model = pane("second");
        QLabel* const release = pane("third");
        QVERIFY(first != nullptr && model != nullptr && release != nullptr);
        QCOMPARE(model->width(), ModelWidth);
        QCOMPARE(release->width(), ReleaseWidth);
        QCOMPARE(first->frameShape(), QFrame::NoFrame);
        QVERIFY(model->frameShape() != QFrame::NoFrame);
        QVERIFY(release->frameShape() != QFrame::NoFrame);
        QVERIFY(first->x() < model->x() && model->x() < release->x());
        // The first one takes what the window gives.
        const int before = first->width();
        app.Frame().resize(app.Frame().width() + 100, app.Frame().height());
        QTRY_COMPARE(first->width(), before + 100);
        QCOMPARE(model->width(), ModelWidth);
        // What is longer is still read.
        app.Frame().SetPaneText(1, QStringLiteral(" QM70(Max 50.0G) Alpha"));
        QTRY_VERIFY(model->width() >= model->sizeHint().width());
        // A long text does not widen the window.
        const int width = app.Frame().minimumSizeHint().width();
        app.Frame().SetPaneText(0, QString(500, u'x'));
        QCOMPARE(app.Frame().minimumSizeHint().width(), width);
    }

    void StatusTextsComeAndGo()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        SetStatusText(QStringLiteral("Loading files..."));
        QCOMPARE(app.Frame().PaneText(0), QStringLiteral("Loading files..."));
        ResetStatus();
        QCOMPARE(app.Frame().PaneText(0), QStringLiteral("Ready"));
        for (const ViewIndex view : {ViewIndex::Setup, ViewIndex::Display}) {
            SetStatusText(QStringLiteral("something"));
            app.Frame().SwitchView(view);
            QCOMPARE(app.Frame().PaneText(0), QStringLiteral("Ready"));
        }
    }

    void SwitchIsToldToBothViews()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.m_hints.clear();
        app.View().Button(DataViewButton::Setup).click();
        QCOMPARE(app.m_hints, QStringLiteral("1:0 "));
        QCOMPARE(app.Frame().CurrentView(), ViewIndex::Setup);
        QVERIFY(app.Frame().SetupView().isVisible());
        QVERIFY(!app.View().isVisible());
        app.Frame().SwitchView(ViewIndex::Display);
        QCOMPARE(app.m_hints, QStringLiteral("1:0 1:1 "));
        QVERIFY(app.View().isVisible());
        QVERIFY(app.View().isAncestorOf(QApplication::focusWidget()) || app.View().hasFocus());
    }

    void SettingsSheetIsAnnouncedWhenItWasAccepted()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.m_hints.clear();
        app.m_acceptsSheet = false;
        app.Frame().OnCommand(CommandId::Configuration);
        QCOMPARE(app.m_sheets, 1);
        QCOMPARE(app.m_hints, QString());
        app.m_acceptsSheet = true;
        app.Settings().WriteInt(SystemSection, QStringLiteral("SaveInfo"), 0);
        app.Frame().OnCommand(CommandId::Configuration);
        QCOMPARE(app.m_sheets, 2);
        QCOMPARE(app.m_hints, QStringLiteral("4:0 "));
        // The data view heard of it: unsaved data is no longer asked about.
        app.TakeLines(3);
        app.Frame().close();
        QTRY_VERIFY(!app.Frame().isVisible());
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }

    void CloseIsTheExitCommandOfTheView_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("setup view") << QStringLiteral("-setup");
        QTest::newRow("data view") << QStringLiteral("-display");
    }

    void CloseIsTheExitCommandOfTheView()
    {
        QFETCH(const QString, word);
        CFrameApp app;
        QVERIFY(app.Start({word}));
        app.m_hints.clear();
        app.Frame().close();
        // Posted, not sent.
        QVERIFY(app.Frame().isVisible());
        QCOMPARE(app.m_hints, QString());
        QTRY_VERIFY(!app.Frame().isVisible());
        QCOMPARE(app.m_hints, QStringLiteral("3:0 "));
    }

    void PlacementIsSavedBehindTheHintAndBeforeTheEnd()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        const auto isStored = [&] {
            return app.Settings().GetInt(QStringLiteral("Display2"), QStringLiteral("ShowCmd"),
                                         -1) >= 0;
        };
        QVERIFY(!isStored());
        bool wasStoredAtHint = true;
        bool wasVisibleAtHint = false;
        connect(&app.Frame().Document(), &CSkeldonDoc::Updated, this,
                [&](DocumentHint hint, int /*argument*/) {
                    if (hint != DocumentHint::Closing)
                        return;
                    wasStoredAtHint = isStored();
                    wasVisibleAtHint = app.Frame().isVisible();
                });
        app.Frame().close();
        QTRY_VERIFY(!app.Frame().isVisible());
        QVERIFY(!wasStoredAtHint);
        QVERIFY(wasVisibleAtHint);
        QVERIFY(isStored());
    }

    void ColumnWidthsAndUnitAreStoredAtTheEnd()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.View().OnCommand(CommandId::UnitGal);
        app.Frame().close();
        QTRY_VERIFY(!app.Frame().isVisible());
        app.End();
        QVERIFY(app.Settings().GetInt(SystemSection, QStringLiteral("ClmnWidth0"), -1) > 0);
        QCOMPARE(app.Settings().GetInt(SystemSection, QStringLiteral("DispUnit"), -1), 2);
        QVERIFY(QFile::exists(app.SettingsFile()));
    }

    void UnsavedDataIsAskedAbout_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("ends");
        QTest::newRow("Cancel") << static_cast<int>(Answer::Cancel) << false;
        QTest::newRow("No") << static_cast<int>(Answer::No) << true;
        // A dialog that is cancelled then drops the data.
        QTest::newRow("Yes") << static_cast<int>(Answer::Yes) << true;
    }

    void UnsavedDataIsAskedAbout()
    {
        QFETCH(const int, answer);
        QFETCH(const bool, ends);
        CFrameApp app;
        QVERIFY(app.Start());
        app.TakeLines(3);
        app.m_hints.clear();
        app.m_prompts->m_shown.clear();
        app.m_prompts->m_answers = {static_cast<Answer>(answer)};
        app.Frame().close();
        QTRY_VERIFY(!app.m_prompts->m_shown.empty());
        QCOMPARE(app.m_prompts->m_shown.front().text, Question);
        QCOMPARE(app.m_prompts->m_shown.front().boxKind, BoxKind::YesNoCancel);
        QApplication::processEvents();
        QCOMPARE(app.Frame().isVisible(), !ends);
        QCOMPARE(app.m_hints, ends ? QStringLiteral("3:0 ") : QString());
        if (ends)
            return;
        QCOMPARE(app.View().Data().GetSize(), std::size_t{3});
        // Asked again the next time.
        app.m_prompts->m_answers = {Answer::No};
        app.Frame().close();
        QTRY_VERIFY(!app.Frame().isVisible());
    }

    void FailedSaveKeepsTheWindow()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.TakeLines(3);
        app.m_prompts->m_answers = {Answer::Yes};
        app.m_prompts->m_paths = {QStringLiteral("/nowhere/at/all.skd")};
        app.Frame().close();
        QTRY_COMPARE(app.m_prompts->Boxes().size(), 2);
        QVERIFY(app.m_prompts->Boxes().last().contains(QStringLiteral("Failed to write.")));
        QApplication::processEvents();
        QVERIFY(app.Frame().isVisible());
        QCOMPARE(app.View().Data().GetSize(), std::size_t{3});
    }

    void CloseIsGrayedWhileAnAreaIsSelected()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.m_prompts->m_paths = {app.WriteLines(QStringLiteral("crate.skd"), 50)};
        app.View().OnCommand(CommandId::Open);
        CSkinButton& zoomIn = app.View().Button(DataViewButton::ZoomIn);
        QTRY_VERIFY(zoomIn.isEnabled());
        zoomIn.click();
        QVERIFY(zoomIn.IsPressed());
        QVERIFY(!app.View().CanOperate());
        app.Frame().close();
        QApplication::processEvents();
        QVERIFY(app.Frame().isVisible());
        // The wish is not kept.
        app.View().OnCommand(CommandId::SelectArea);
        QTRY_VERIFY(app.View().CanOperate());
        QApplication::processEvents();
        QVERIFY(app.Frame().isVisible());
        app.Frame().close();
        QTRY_VERIFY(!app.Frame().isVisible());
    }

    void DataViewDoesNotGrayTheCloseOfTheSetupView()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        app.m_prompts->m_paths = {app.WriteLines(QStringLiteral("crate.skd"), 50)};
        app.View().OnCommand(CommandId::Open);
        QTRY_VERIFY(app.View().CanOperate());
        app.Frame().SwitchView(ViewIndex::Setup);
        app.View().Button(DataViewButton::ZoomIn).SetPressed(true);
        app.View().RefreshControls();
        app.Frame().close();
        QTRY_VERIFY(!app.Frame().isVisible());
    }

    void HeldKeyIsNoSecondCommand()
    {
        CFrameApp app;
        QVERIFY(app.Start());
        bool isNested = false;
        app.m_prompts->m_whileShown = [&](const Prompt& /*prompt*/) {
            if (std::exchange(isNested, true))
                return;
            QKeyEvent repeated(QEvent::KeyPress, Qt::Key_O, Qt::ControlModifier, QString(), true);
            QApplication::sendEvent(app.Frame().windowHandle(), &repeated);
        };
        app.Press(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{1});
    }
};

QTEST_MAIN(MainFrameTest)
#include "MainFrameTest.moc"
