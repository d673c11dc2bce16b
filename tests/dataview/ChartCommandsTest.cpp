#include "ViewApp.h"

#include "chart/view/ChartPropertyDialog.h"
#include "chart/view/ChartWnd.h"
#include "controls/ColourSample.h"
#include "controls/SkinButton.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QUrl>

using namespace skeldon;
using namespace skeldon::test;

namespace {

const QColor UsualX(0xC5, 0x0C, 0xC5);
const QColor GreenX(0x11, 0xEE, 0x22);
constexpr ColourRef GreenXRef = 0x22EE11;

bool Holds(const QImage& picture, const QColor& colour)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

bool ChartShows(CViewApp& app, const QColor& colour)
{
    return Holds(app.View().Chart().grab().toImage(), colour);
}

bool ButtonShows(CViewApp& app, const QColor& colour)
{
    return Holds(app.View().Button(DataViewButton::X).grab().toImage(), colour);
}

/// Presses the first button with this text.
void Press(QDialog& dialog, const QString& text)
{
    for (QPushButton* const button : dialog.findChildren<QPushButton*>()) {
        if (button->text() == text)
            return QTest::mouseClick(button, Qt::LeftButton);
    }
    QFAIL("no such button");
}

/// X in green, thick lines, elapsed time.
void Change(CViewApp& app, QDialog& dialog)
{
    app.Prompts().m_colours = {GreenXRef};
    Press(dialog, QStringLiteral("Bowse..."));
    const auto choices = dialog.findChildren<QRadioButton*>();
    QTest::mouseClick(choices[1], Qt::LeftButton);
    QTest::mouseClick(choices[5], Qt::LeftButton);
}

} // namespace

/// Properties and copy of the chart, from the data view.
class ChartCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void PropertiesAreTakenOverOnOk()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        const CChartModel& model = app.View().Chart().Model();
        QVERIFY(ChartShows(app, UsualX) && ButtonShows(app, UsualX));
        app.Prompts().m_dialogs = {[&app](QDialog& dialog) {
            if (qobject_cast<CChartPropertyDialog*>(&dialog) == nullptr)
                return false;
            Change(app, dialog);
            return true;
        }};
        app.Click(DataViewButton::Properties);
        QVERIFY(app.Prompts().m_dialogs.empty());
        QVERIFY(ChartShows(app, GreenX) && !ChartShows(app, UsualX));
        QVERIFY(ButtonShows(app, GreenX) && !ButtonShows(app, UsualX));
        QCOMPARE(model.m_lineWeight, 2);
        QVERIFY(model.m_elapsedAxis);
        QVERIFY(app.View().CanOperate());
    }

    void PropertiesStayOnCancel()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        const CChartModel& model = app.View().Chart().Model();
        const QImage picture = app.View().Chart().grab().toImage();
        app.Prompts().m_dialogs = {[&app](QDialog& dialog) {
            Change(app, dialog);
            return false;
        }};
        app.View().OnCommand(CommandId::ChartProperties);
        QVERIFY(app.Prompts().m_dialogs.empty());
        QCOMPARE(app.View().Chart().grab().toImage(), picture);
        QVERIFY(ButtonShows(app, UsualX));
        QCOMPARE(model.m_lineWeight, 1);
        QVERIFY(!model.m_elapsedAxis);
    }

    void WhatHappensBehindTheDialogFindsTheViewBusy()
    {
        CViewApp app;
        app.Show();
        bool canOperate = true;
        app.Prompts().m_dialogs = {[&](QDialog&) {
            QMetaObject::invokeMethod(
                &app.View(),
                [&] {
                    canOperate = app.View().CanOperate();
                    app.View().RefreshControls();
                },
                Qt::QueuedConnection);
            return true;
        }};
        app.View().OnCommand(CommandId::ChartProperties);
        QVERIFY(!canOperate);
        QVERIFY(app.View().Button(DataViewButton::Open).isEnabled());
        QVERIFY(app.Frame().m_closeEnabled);
    }

    void AWeightOfThreeIsDrawnUntilTheNextOk()
    {
        CViewApp app;
        app.Settings().WriteInt(SystemSection, QStringLiteral("DrawGraphPic"), 3);
        app.Show();
        app.OpenLines(5);
        QCOMPARE(app.View().Chart().Model().m_lineWeight, 3);
        app.Prompts().m_dialogs = {[](QDialog&) { return true; }};
        app.View().OnCommand(CommandId::ChartProperties);
        QCOMPARE(app.View().Chart().Model().m_lineWeight, 1);
        QCOMPARE(app.Settings().GetInt(SystemSection, QStringLiteral("DrawGraphPic"), 0), 1);
    }

    void CopyTellsThatItIsDone()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        QGuiApplication::clipboard()->clear();
        app.View().OnCommand(CommandId::CopyChart);
        QVERIFY(!QGuiApplication::clipboard()->image().isNull());
        QCOMPARE(app.Prompts().m_beeps, 1);
        QCOMPARE(app.Frame().m_status, QStringLiteral("Copied to the clipboard"));
        QCOMPARE(app.Prompts().Boxes(), QStringList());
    }

    void CopyTellsThatItCanNotBeDone_data()
    {
        QTest::addColumn<CommandId>("command");
        QTest::newRow("picture") << CommandId::CopyChart;
        QTest::newRow("text") << CommandId::CopyCsv;
    }

    void CopyTellsThatItCanNotBeDone()
    {
        QFETCH(const CommandId, command);
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
        app.Prompts().m_clipboardFails = true;
        // As the copy before left it.
        app.Frame().SetStatusText(QStringLiteral("Copied to the clipboard"));
        QString status;
        app.Prompts().m_whileShown = [&](const Prompt&) { status = app.Frame().m_status; };
        app.View().OnCommand(command);
        QCOMPARE(app.Prompts().m_beeps, 1);
        QCOMPARE(app.Prompts().Boxes(),
                 QStringList{QStringLiteral("Can not copy to the clipboard.")});
        QCOMPARE(app.Prompts().m_shown.back().boxKind, BoxKind::Warning);
        QCOMPARE(status, QStringLiteral("(reset)"));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
        QVERIFY(app.View().CanOperate());
    }

    void CopyNeedsALine()
    {
        CViewApp app;
        app.Show();
        QVERIFY(!app.Can(CommandId::CopyChart));
        app.OpenLines(0);
        QVERIFY(!app.Can(CommandId::CopyChart));
        app.OpenLines(1);
        QVERIFY(app.Can(CommandId::CopyChart));
    }

    void CopyIsInThePopupOfTheChart()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        QGuiApplication::clipboard()->clear();
        QTest::mouseClick(&app.View().Chart(), Qt::RightButton, {}, {300, 60});
        auto* const popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(popup != nullptr);
        QCOMPARE(popup->actions().size(), 1);
        QCOMPARE(popup->actions()[0]->text(), QStringLiteral("&Copy graph"));
        QTest::keyClick(popup, Qt::Key_C);
        QVERIFY(!QGuiApplication::clipboard()->image().isNull());
        QCOMPARE(app.Frame().m_status, QStringLiteral("Copied to the clipboard"));
    }

    void AClickOnTheChartMovesTheFocusOfTheListAndNoWindow()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(40);
        app.View().OnCommand(CommandId::HorizontalInflate);
        const CChartModel& model = app.View().Chart().Model();
        const CChartRange window = model.m_window.View();
        const auto click = [&](int line) {
            const std::int64_t column = model.m_window.Column(model.m_index.Time(line));
            const QPoint point(static_cast<int>(column) + model.Sizes().gaugeWidth, 60);
            QTest::mouseClick(&app.View().Chart(), Qt::LeftButton, {}, point);
        };
        click(25);
        QCOMPARE(model.m_currentLine, -1); // it is posted
        app.Settle();
        QCOMPARE(app.List().CurrentRow(), 25);
        QCOMPARE(model.m_currentLine, 25);
        QCOMPARE(model.m_window.View(), window);
        // From the list the same line comes to the middle, as far as there are lines.
        QTest::keyClick(&app.List(), Qt::Key_Up);
        QTest::keyClick(&app.List(), Qt::Key_Down);
        QCOMPARE(model.m_currentLine, 25);
        QVERIFY(model.m_window.m_viewStart > window.start);
        QCOMPARE(model.m_window.View().Width(), window.Width());
    }

    void TheChartsOwnCommandsGoOnWhileAnAreaIsChosen()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        app.View().OnCommand(CommandId::HorizontalInflate);
        app.Click(DataViewButton::ZoomIn);
        QVERIFY(!app.View().CanOperate());
        for (const CommandId command :
             {CommandId::CopyChart, CommandId::DisplayAllArea, CommandId::DisplayInCenter})
            QVERIFY(app.Can(command));
        app.View().OnCommand(CommandId::DisplayAllArea);
        QVERIFY(app.View().Chart().Model().m_window.ShowsAll());
        QVERIFY(app.View().Button(DataViewButton::ZoomIn).IsPressed());
    }

    void LargestZoomAllowsNoOther()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        for (int i = 0; i < 10 && app.Can(CommandId::HorizontalInflate); ++i)
            app.View().OnCommand(CommandId::HorizontalInflate);
        QVERIFY(app.View().Chart().Model().m_window.m_atMaxZoom);
        QVERIFY(!app.Can(CommandId::HorizontalInflate));
        QVERIFY(!app.Can(CommandId::SelectArea));
        QVERIFY(!app.View().Button(DataViewButton::ZoomIn).isEnabled());
        app.View().OnCommand(CommandId::HorizontalDeflate);
        QVERIFY(app.Can(CommandId::HorizontalInflate));
        QVERIFY(app.View().Button(DataViewButton::ZoomIn).isEnabled());
    }

    void NothingCanBeDoneWhileAnAreaIsDraggedOut()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(5);
        app.View().OnCommand(CommandId::HorizontalInflate);
        app.Click(DataViewButton::ZoomIn);
        QTest::mousePress(&app.View().Chart(), Qt::LeftButton, {}, {250, 60});
        QTest::mouseMove(&app.View().Chart(), {320, 60});
        QVERIFY(!app.View().Chart().CanRedraw());
        for (int i = 0; i < static_cast<int>(CommandId::Count); ++i)
            QVERIFY2(!app.Can(static_cast<CommandId>(i)), qPrintable(QString::number(i)));
        QTest::mouseRelease(&app.View().Chart(), Qt::LeftButton, {}, {320, 60});
        app.Settle();
        QVERIFY(app.View().CanOperate());
    }

    void DroppedFilesAreIgnored()
    {
        CViewApp app;
        app.Show();
        const QString path = app.FileOf(MeasuredLines(3), QStringLiteral("crate.skd"));
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(path)});
        for (QWidget* const target :
             {static_cast<QWidget*>(&app.View()), static_cast<QWidget*>(&app.View().Chart()),
              static_cast<QWidget*>(app.List().viewport())}) {
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
            enter.ignore();
            QApplication::sendEvent(target, &enter);
            QVERIFY(!enter.isAccepted());
        }
        QVERIFY(app.View().Data().IsEmpty());
    }
};

QTEST_MAIN(ChartCommandsTest)
#include "ChartCommandsTest.moc"
