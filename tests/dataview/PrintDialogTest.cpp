#include "PrintApp.h"
#include "chart/view/LineNumberEdit.h"
#include "controls/SkinButton.h"
#include "resources/StringTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QPageSetupDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

const QString NoCollation = QStringLiteral("This printer does not support Collate Copies.");
const QString Failed = QStringLiteral("Failed to print.");

QRadioButton* Radio(const QWidget& dialog, const char* text)
{
    return ChildNamed<QRadioButton>(dialog, QString::fromUtf8(text));
}

QGroupBox* Box(const QWidget& dialog, const char* title)
{
    for (auto* const box : dialog.findChildren<QGroupBox*>()) {
        if (box->title() == QLatin1String(title))
            return box;
    }
    return nullptr;
}

CLineNumberEdit& Line(const QWidget& dialog, const char* name)
{
    for (auto* const edit : dialog.findChildren<CLineNumberEdit*>()) {
        if (edit->accessibleName() == QLatin1String(name))
            return *edit;
    }
    qFatal("no such field");
}

QComboBox& Names(const QWidget& dialog)
{
    return *dialog.findChild<QComboBox*>();
}

QSpinBox& Copies(const QWidget& dialog)
{
    return *dialog.findChild<QSpinBox*>();
}

QCheckBox& Collate(const QWidget& dialog)
{
    return *dialog.findChild<QCheckBox*>();
}

int Stored(CViewApp& app, const char* key)
{
    return app.Settings().GetInt(SystemSection, QLatin1String(key), -1);
}

/// Leaves the view, which then stores what it keeps.
void Leave(CViewApp& app)
{
    app.View().OnCommand(CommandId::ViewSetup);
    QCOMPARE(app.Frame().m_view, ViewIndex::Setup);
}

} // namespace

class PrintDialogTest : public QObject
{
    Q_OBJECT

private slots:
    // --- the command ---

    void ThereIsNothingToPrintWithoutData()
    {
        CPrintApp app;
        QVERIFY(!app.Can(CommandId::Print));
        QVERIFY(!app.View().Button(DataViewButton::Print).isEnabled());
        bool isAsked = false;
        app.Print([&isAsked](CDisplayPrintDialog&) { isAsked = true; });
        QVERIFY(!isAsked);
        app.Prompts().m_dialogs.clear();
        app.OpenLines(3);
        QVERIFY(app.Can(CommandId::Print));
        QVERIFY(app.View().Button(DataViewButton::Print).isEnabled());
        app.Click(DataViewButton::ZoomIn);
        QVERIFY(!app.Can(CommandId::Print));
        QVERIFY(!app.View().Button(DataViewButton::Print).isEnabled());
    }

    void TheButtonPrints()
    {
        CPrintApp app;
        app.OpenLines(3);
        app.Prompts().m_dialogs.push_back([](QDialog&) { return true; });
        app.Click(DataViewButton::Print);
        QCOMPARE(PageCount(app.Pdf()), 1);
    }

    void NothingIsAskedOfThePrintersBeforeTheFirstPrint()
    {
        CPrintApp app;
        app.OpenLines(3);
        QVERIFY(app.m_printers->m_opened.isEmpty());
        QVERIFY(app.View().findChild<CDisplayPrintDialog*>() == nullptr);
    }

    void WithoutMemoryThereIsNoDialog()
    {
        CPrintApp app;
        app.OpenLines(3);
        app.m_printers->m_isMemoryShort = true;
        app.Print();
        QCOMPARE(app.Prompts().Boxes(), QStringList{"There is not enough memory."});
        QVERIFY(!QFile::exists(app.Pdf()));
    }

    // --- the dialog ---

    void ItStartsWithTheChart()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.PrintCancelled([](CDisplayPrintDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Print"));
            QVERIFY(Radio(dialog, "Chart")->isChecked());
            QVERIFY(!Radio(dialog, "List")->isChecked());
            QVERIFY(Box(dialog, "Print range")->isVisible());
            QVERIFY(!Box(dialog, "Print r&ange")->isVisible());
            QVERIFY(ChildNamed<QLabel>(dialog, "Print of charts is in view image.")->isVisible());
            QCOMPARE(Line(dialog, "First line").text(), QStringLiteral("1"));
            QCOMPARE(Line(dialog, "Last line").text(), QStringLiteral("20"));
            QVERIFY(!Collate(dialog).isChecked());
            QCOMPARE(Copies(dialog).value(), 1);
            QCOMPARE(Collate(dialog).text(), QStringLiteral("Colla&te"));
        });
        QVERIFY(!QFile::exists(app.Pdf()));
    }

    void TheListHasALineRange()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.PrintCancelled([](CDisplayPrintDialog& dialog) {
            QTest::mouseClick(Radio(dialog, "List"), Qt::LeftButton, {}, {8, 8});
            QVERIFY(!Box(dialog, "Print range")->isVisible());
            QVERIFY(Box(dialog, "Print r&ange")->isVisible());
            QVERIFY(
                ChildNamed<QLabel>(dialog, "Allowable range is from 1 to 20 lines.")->isVisible());
            QVERIFY(ChildNamed<QLabel>(dialog, "Pring range is 1 to 9999 lines.") == nullptr);
        });
        // Whatever was chosen last, it starts with the chart again.
        app.PrintCancelled([](CDisplayPrintDialog& dialog) {
            QVERIFY(Radio(dialog, "Chart")->isChecked());
            QVERIFY(Box(dialog, "Print range")->isVisible());
        });
    }

    void PreviewAndOptionsAreNeverShown()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.PrintCancelled([](CDisplayPrintDialog& dialog) {
            for (const char* text : {"Pre&view", "&Options..."}) {
                const auto* const button = ChildNamed<QPushButton>(dialog, QLatin1String(text));
                QVERIFY(button != nullptr);
                QVERIFY(!button->isVisible());
            }
            for (const StringId text : {StringId::PrintAdvancedChart, StringId::PrintAdvancedList})
                QVERIFY(ChildNamed<QPushButton>(dialog, Text(text)) == nullptr);
        });
    }

    void ItIsJapaneseInJapanese()
    {
        CPrintApp app(QStringLiteral("Japanese"));
        app.OpenLines(20);
        app.PrintCancelled([](CDisplayPrintDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("印刷"));
            QVERIFY(Radio(dialog, "グラフ") != nullptr);
            QVERIFY(ChildNamed<QLabel>(dialog, "指定できる範囲は 1 から 20 行です。") != nullptr);
        });
    }

    void SpinButtonsAndArrowsStepWithinTheRange()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.PrintCancelled([](CDisplayPrintDialog& dialog) {
            Radio(dialog, "List")->click();
            CLineNumberEdit& first = Line(dialog, "First line");
            QTest::keyClick(&first, Qt::Key_Down);
            QCOMPARE(first.text(), QStringLiteral("1"));
            QTest::keyClick(&first, Qt::Key_Up);
            QCOMPARE(first.text(), QStringLiteral("2"));
            const auto buttons = first.findChildren<QAbstractButton*>();
            QCOMPARE(buttons.size(), 2);
            QTest::mouseClick(buttons[0], Qt::LeftButton);
            QCOMPARE(first.text(), QStringLiteral("3"));
            QTest::mouseClick(buttons[1], Qt::LeftButton);
            QCOMPARE(first.text(), QStringLiteral("2"));
            for (const QAbstractButton* const button : buttons)
                QVERIFY(first.rect().contains(button->geometry()));
            Line(dialog, "Last line").setText(QStringLiteral("20"));
            QTest::keyClick(&Line(dialog, "Last line"), Qt::Key_Up);
            QCOMPARE(Line(dialog, "Last line").text(), QStringLiteral("20"));
        });
    }

    void ALineOutOfRangeKeepsItOpen()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.Print([&app](CDisplayPrintDialog& dialog) {
            Radio(dialog, "List")->click();
            CLineNumberEdit& last = Line(dialog, "Last line");
            last.setText(QStringLiteral("21"));
            dialog.accept();
            QVERIFY(dialog.isVisible());
            QCOMPARE(app.Frame().m_status, QStringLiteral("Input the value of 20 from 1"));
            QCOMPARE(last.selectedText(), QStringLiteral("21"));
            QCOMPARE(app.Prompts().m_beeps, 1);
            QVERIFY(!QFile::exists(app.Pdf()));
            last.setText(QStringLiteral("2"));
        });
        QCOMPARE(PageCount(app.Pdf()), 1);
    }

    void TheRangeIsValidatedForTheChartToo()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.Print([](CDisplayPrintDialog& dialog) {
            Line(dialog, "First line").setText({});
            dialog.accept();
            QVERIFY(dialog.isVisible());
            Line(dialog, "First line").setText(QStringLiteral("4"));
        });
        QCOMPARE(PageCount(app.Pdf()), 1);
    }

    void TheSmallerLineIsTheFirst()
    {
        CPrintApp app;
        app.OpenLines(20);
        PrintLines lines;
        app.Prompts().m_dialogs.push_back([&lines](QDialog& dialog) {
            Line(dialog, "First line").setText(QStringLiteral("15"));
            Line(dialog, "Last line").setText(QStringLiteral("3"));
            dialog.accept();
            lines = dynamic_cast<CDisplayPrintDialog&>(dialog).m_lines;
            return false;
        });
        app.View().OnCommand(CommandId::Print);
        QCOMPARE(lines.first, 3);
        QCOMPARE(lines.last, 15);
    }

    void EachPrintStartsWithAllLines()
    {
        CPrintApp app;
        app.OpenLines(20);
        QStringList offered;
        const auto take = [&offered](QDialog& dialog) {
            offered += Line(dialog, "First line").text();
            offered += Line(dialog, "Last line").text();
            Line(dialog, "First line").setText(QStringLiteral("3"));
            Line(dialog, "Last line").setText(QStringLiteral("15"));
            dialog.accept();
            return false;
        };
        for (int i = 0; i < 2; ++i) {
            app.Prompts().m_dialogs.push_back(take);
            app.View().OnCommand(CommandId::Print);
        }
        const QStringList all{QStringLiteral("1"), QStringLiteral("20")};
        QCOMPARE(offered, all + all);
    }

    void TheListButtonPrintsTheChart()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.Print([](CDisplayPrintDialog& dialog) { Radio(dialog, "List")->click(); });
        QVERIFY(PageText(app.Pdf()).contains(QStringLiteral("KORVA measured result chart")));
        QVERIFY(!PageText(app.Pdf()).contains(QStringLiteral("SKELDON :")));
    }

    // --- what is kept ---

    void OkStoresItsConstants()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.Print([](CDisplayPrintDialog& dialog) { Radio(dialog, "List")->click(); });
        Leave(app);
        for (const char* key :
             {"PrintGraph", "PrintMatchL", "PrintHorzL", "PrintMatchG", "PrintHorzG"})
            QVERIFY2(Stored(app, key) == 1, key);
        for (const char* key : {"PrintZoomL", "PrintZoomG"})
            QVERIFY2(Stored(app, key) == 100, key);
        for (const char* key : {"PrintMark", "PrintExtract", "PrintBlankLLeft", "PrintBlankLTop",
                                "PrintBlankLRight", "PrintBlankLBottom", "PrintBlankGLeft",
                                "PrintBlankGTop", "PrintBlankGRight", "PrintBlankGBottom"})
            QVERIFY2(Stored(app, key) == 0, key);
    }

    void WithoutPrintingTheDefaultsAreKept()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.PrintCancelled();
        Leave(app);
        for (const char* key :
             {"PrintGraph", "PrintHorzL", "PrintHorzG", "PrintMark", "PrintExtract"})
            QVERIFY2(Stored(app, key) == 1, key);
        for (const char* key :
             {"PrintMatchL", "PrintMatchG", "PrintBlankLLeft", "PrintBlankGBottom"})
            QVERIFY2(Stored(app, key) == 0, key);
        for (const char* key : {"PrintZoomL", "PrintZoomG"})
            QVERIFY2(Stored(app, key) == 100, key);
    }

    void WhatStandsInTheStoreStaysThere()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("settings.ini"));
        {
            CSettings settings(file);
            settings.WriteInt(SystemSection, QStringLiteral("PrintGraph"), 0);
            settings.WriteInt(SystemSection, QStringLiteral("PrintZoomL"), 73);
            settings.WriteInt(SystemSection, QStringLiteral("PrintHorzG"), 5);
            settings.WriteProfileRect(SystemSection, QStringLiteral("PrintBlankG"),
                                      {QPoint(1, 2), QSize(3, 4)});
        }
        CPrintApp app(QStringLiteral("English"), file);
        Leave(app);
        QCOMPARE(Stored(app, "PrintGraph"), 0);
        QCOMPARE(Stored(app, "PrintZoomL"), 73);
        QCOMPARE(Stored(app, "PrintHorzG"), 5);
        QCOMPARE(Stored(app, "PrintBlankGLeft"), 1);
        QCOMPARE(Stored(app, "PrintBlankGTop"), 2);
        QCOMPARE(Stored(app, "PrintBlankGRight"), 4);
        QCOMPARE(Stored(app, "PrintBlankGBottom"), 6);
    }

    // --- the printers ---

    void TheDefaultPrinterIsOfferedFirstAndTheLastOneNextTime()
    {
        CPrintApp app;
        app.m_printers->m_names = {QStringLiteral("Jet"), QStringLiteral("Laser"),
                                   QStringLiteral("Plotter")};
        app.m_printers->m_default = QStringLiteral("Laser");
        app.OpenLines(3);
        app.Print([](CDisplayPrintDialog& dialog) {
            QCOMPARE(Names(dialog).count(), 3);
            QCOMPARE(Names(dialog).currentText(), QStringLiteral("Laser"));
            Names(dialog).setCurrentText(QStringLiteral("Plotter"));
        });
        QVERIFY(QFile::exists(app.Path(QStringLiteral("Plotter.pdf"))));
        QVERIFY(!QFile::exists(app.Pdf()));
        app.PrintCancelled([](CDisplayPrintDialog& dialog) {
            QCOMPARE(Names(dialog).currentText(), QStringLiteral("Plotter"));
        });
    }

    void APrinterThatHasGoneIsTold()
    {
        CPrintApp app;
        app.m_printers->m_gone = {QStringLiteral("Laser")};
        app.OpenLines(3);
        app.PrintCancelled([](CDisplayPrintDialog& dialog) {
            dialog.accept();
            QVERIFY(dialog.isVisible());
        });
        QCOMPARE(app.Prompts().Boxes(), QStringList{Failed});
    }

    void WithoutAPrinterItWritesAPdfFile()
    {
        CPrintApp app;
        app.m_printers->m_names.clear();
        app.OpenLines(3);
        const QString path = app.Path(QStringLiteral("report.v2"));
        app.Prompts().m_paths.push_back(path);
        app.Print([](CDisplayPrintDialog& dialog) {
            QCOMPARE(Names(dialog).count(), 1);
            QCOMPARE(Names(dialog).currentText(), QStringLiteral("PDF file"));
        });
        const Prompt& asked = app.Prompts().m_shown.back();
        QCOMPARE(asked.kind, Prompt::Kind::SavePath);
        QCOMPARE(asked.question.name, QStringLiteral("crate.pdf"));
        QCOMPARE(asked.question.filters.value(0), QStringLiteral("PDF file(pdf) (*.pdf)"));
        QCOMPARE(PageCount(app.Path(QStringLiteral("report.pdf"))), 1);
        QCOMPARE(app.Prompts().Boxes(), QStringList());

        // The next one lies beside it.
        app.Prompts().m_paths.push_back(std::nullopt);
        app.PrintCancelled([](CDisplayPrintDialog& dialog) {
            dialog.accept();
            QVERIFY(dialog.isVisible()); // no file was chosen
        });
        QCOMPARE(app.Prompts().m_shown.back().question.folder, app.m_test.Folder());
    }

    void AFileThatCanNotBeWrittenIsTold()
    {
        CPrintApp app;
        app.m_printers->m_names.clear();
        app.OpenLines(3);
        app.Prompts().m_paths.push_back(app.Path(QStringLiteral("missing/report.pdf")));
        app.Print();
        QCOMPARE(app.Prompts().Boxes(), QStringList{Failed});
        QVERIFY(app.Frame().m_closeEnabled);
        QVERIFY(app.Can(CommandId::Print));
    }

    void AnExistingFileIsAskedAbout()
    {
        CPrintApp app;
        app.m_printers->m_names.clear();
        app.OpenLines(3);
        const QString path = app.Path(QStringLiteral("kept.pdf"));
        WriteBytes(path, "kept");
        app.Prompts().m_paths = {path, std::nullopt};
        app.Prompts().m_answers.push_back(Answer::No);
        app.PrintCancelled([](CDisplayPrintDialog& dialog) { dialog.accept(); });
        QCOMPARE(BytesOf(path), QByteArray("kept"));
    }

    void PropertiesShowTheLandscapePageThatComesOut()
    {
        CPrintApp app;
        app.OpenLines(3);
        std::vector<QPageLayout::Orientation> shown;
        app.PrintCancelled([&](CDisplayPrintDialog& dialog) {
            app.Prompts().m_dialogs.push_back([&](QDialog& properties) {
                const QPrinter& printer = *dynamic_cast<QPageSetupDialog&>(properties).printer();
                shown.push_back(printer.pageLayout().orientation());
                return false;
            });
            ChildNamed<QPushButton>(dialog, QStringLiteral("&Properties..."))->click();
        });
        QCOMPARE(shown, std::vector{QPageLayout::Landscape});
    }

    void OnlyTheUnitedStatesPrintOnLetter()
    {
        const auto paperIn = [](const char* locale) {
            return UsualPaper(QLocale(QLatin1String(locale)).measurementSystem());
        };
        QCOMPARE(paperIn("en_US"), QPageSize::Letter);
        QCOMPARE(paperIn("en_GB"), QPageSize::A4);
        QCOMPARE(paperIn("de_DE"), QPageSize::A4);
        QCOMPARE(paperIn("ja_JP"), QPageSize::A4);
    }

    void PrintersAreNoFinerThanNeeded()
    {
        CDesktopPrinters printers;
        const auto pdf = printers.Open({});
        QVERIFY(pdf != nullptr);
        QCOMPARE(pdf->outputFormat(), QPrinter::PdfFormat);
        QCOMPARE(pdf->resolution(), 600);
        QVERIFY(!printers.CanCollate(*pdf));
        QVERIFY(printers.Open(QStringLiteral("no printer of this name")) == nullptr);
    }

    // --- copies ---

    void CopiesArePrintedWhereThePrinterMakesNone()
    {
        CPrintApp app;
        app.OpenLines(3);
        app.Print([](CDisplayPrintDialog& dialog) { Copies(dialog).setValue(3); });
        QCOMPARE(PageCount(app.Pdf()), 3);
        for (int page = 1; page <= 3; ++page)
            QVERIFY(PageText(app.Pdf(), page).contains(QStringLiteral("crate.skd")));
    }

    void CollationIsMissedOnlyIfAllHolds_data()
    {
        QTest::addColumn<bool>("ctrl");
        QTest::addColumn<bool>("canCollate");
        QTest::addColumn<int>("copies");
        QTest::addColumn<bool>("isChecked");
        QTest::addColumn<bool>("isTold");
        QTest::newRow("all") << true << false << 2 << true << true;
        QTest::newRow("no Ctrl at start") << false << false << 2 << true << false;
        QTest::newRow("printer collates") << true << true << 2 << true << false;
        QTest::newRow("one copy") << true << false << 1 << true << false;
        QTest::newRow("not checked") << true << false << 2 << false << false;
    }

    void CollationIsMissedOnlyIfAllHolds()
    {
        QFETCH(bool, ctrl);
        QFETCH(bool, canCollate);
        QFETCH(int, copies);
        QFETCH(bool, isChecked);
        QFETCH(bool, isTold);
        CPrintApp app;
        App().m_ctrlAtStart = ctrl;
        app.m_printers->m_canCollate = canCollate;
        app.OpenLines(3);
        app.Print([=](CDisplayPrintDialog& dialog) {
            Copies(dialog).setValue(copies);
            Collate(dialog).setChecked(isChecked);
        });
        QCOMPARE(app.Prompts().Boxes(), isTold ? QStringList{NoCollation} : QStringList());
        QCOMPARE(PageCount(app.Pdf()), copies); // the job goes on
    }

    void TheWindowCanNotBeClosedWhilePagesArePrinted()
    {
        CPrintApp app;
        app.OpenLines(3);
        bool isEnabled = true;
        app.m_printers->m_onNewPage = [&] { isEnabled = app.Frame().m_closeEnabled; };
        app.Print([](CDisplayPrintDialog& dialog) { Copies(dialog).setValue(2); });
        QVERIFY(!isEnabled);
        QVERIFY(app.Frame().m_closeEnabled);
    }
};

QTEST_MAIN(PrintDialogTest)
#include "PrintDialogTest.moc"
