#include "chart/view/ChartPropertyDialog.h"
#include "controls/ColourSample.h"
#include "resources/Translation.h"
#include "support/window/TestApp.h"

#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;
using namespace Qt::StringLiterals;

namespace {

const QStringList ColourKeys{u"IconColorX"_s,    u"IconColorY"_s,   u"IconColorZ"_s,
                             u"IconColorG"_s,    u"IconColorC"_s,   u"IconColorH"_s,
                             u"IconColorItem"_s, u"IconColorMark"_s};
const QList<ColourRef> Standard{0xC50CC5, 0x800000, 0x008000, 0x008080,
                                0x0202C1, 0xF98B49, 0x000000, 0x0000FF};
constexpr int Absent = -77;

/// The dialog over settings of its own.
class CDialog
{
public:
    explicit CDialog(const QString& language = u"English"_s)
        : m_test(language)
    {
        InstallTranslation(App().IsJapanese());
    }
    ~CDialog()
    {
        m_dialog.reset();
        InstallTranslation(false);
    }
    CDialog(const CDialog&) = delete;
    CDialog& operator=(const CDialog&) = delete;

    /// What the store holds is given before this.
    void Show()
    {
        m_dialog = std::make_unique<CChartPropertyDialog>();
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    [[nodiscard]] CChartPropertyDialog& Dialog() { return *m_dialog; }
    [[nodiscard]] CSettings& Settings() { return m_test.m_app->Settings(); }
    [[nodiscard]] CScriptedPrompts& Prompts() { return *m_test.m_prompts; }
    [[nodiscard]] int Stored(const QString& key)
    {
        return Settings().GetInt(SystemSection, key, Absent);
    }
    [[nodiscard]] QList<int> StoredColours()
    {
        QList<int> colours;
        for (const QString& key : ColourKeys)
            colours << Stored(key);
        return colours;
    }
    void Store(const QString& key, int value) { Settings().WriteInt(SystemSection, key, value); }

    [[nodiscard]] QList<CColourSample*> Samples()
    {
        return m_dialog->findChildren<CColourSample*>();
    }
    [[nodiscard]] QList<ColourRef> Shown()
    {
        QList<ColourRef> colours;
        for (const CColourSample* const sample : Samples())
            colours << sample->Colour();
        return colours;
    }
    [[nodiscard]] QList<QPushButton*> Browses()
    {
        QList<QPushButton*> buttons = m_dialog->findChildren<QPushButton*>();
        buttons.removeIf([](const QPushButton* button) { return button->text() != u"Bowse..."; });
        return buttons;
    }
    [[nodiscard]] QPushButton* Button(const QString& text)
    {
        for (QPushButton* const button : m_dialog->findChildren<QPushButton*>()) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
    [[nodiscard]] QGroupBox* Group(const QString& title)
    {
        for (QGroupBox* const group : m_dialog->findChildren<QGroupBox*>()) {
            if (group->title() == title)
                return group;
        }
        return nullptr;
    }
    [[nodiscard]] QRadioButton* Radio(const QString& group, const QString& text)
    {
        for (QRadioButton* const button : Group(group)->findChildren<QRadioButton*>()) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
    /// Text of the button that is checked in the group.
    [[nodiscard]] QString Checked(const QString& group)
    {
        for (const QRadioButton* const button : Group(group)->findChildren<QRadioButton*>()) {
            if (button->isChecked())
                return button->text();
        }
        return {};
    }
    [[nodiscard]] QLineEdit* Title() { return m_dialog->findChild<QLineEdit*>(); }
    void Click(const QString& button) { QTest::mouseClick(Button(button), Qt::LeftButton); }

private:
    CTestApp m_test;
    std::unique_ptr<CChartPropertyDialog> m_dialog;
};

const QString Screen = u"&Lines weight for monitor"_s;
const QString Paper = u"Line weight for &printing"_s;
const QString Format = u"Time &format"_s;

} // namespace

/// The dialog with the chart's colours, weights, time format and title.
class PropertyDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void StartsWithTheDefaultsOfAnEmptyStore()
    {
        CDialog test;
        test.Show();
        QCOMPARE(test.Dialog().windowTitle(), u"Chart properties"_s);
        QCOMPARE(test.Shown(), Standard);
        QCOMPARE(test.Checked(Screen), u"Thin"_s);
        QCOMPARE(test.Checked(Paper), u"Thick"_s);
        QCOMPARE(test.Checked(Format), u"Time"_s);
        QCOMPARE(test.Title()->text(), u"KORVA measured result chart"_s);
    }

    void StartsWithWhatIsStored()
    {
        CDialog test;
        for (int i = 0; i < ColourKeys.size(); ++i)
            test.Store(ColourKeys[i], 0x010203 * (i + 1));
        test.Store(u"DrawGraphPic"_s, 2);
        test.Store(u"PrintGraphPic"_s, 1);
        test.Store(u"GraphHorz"_s, 5);
        test.Settings().WriteText(SystemSection, u"GraphTitle"_s, u"Crate, 7%"_s);
        test.Show();
        for (int i = 0; i < ColourKeys.size(); ++i)
            QCOMPARE(test.Shown()[i], static_cast<ColourRef>(0x010203 * (i + 1)));
        QCOMPARE(test.Checked(Screen), u"Thick"_s);
        QCOMPARE(test.Checked(Paper), u"Thin"_s);
        QCOMPARE(test.Checked(Format), u"Elapsed Time"_s);
        QCOMPARE(test.Title()->text(), u"Crate, 7%"_s);
    }

    void EveryTextStands()
    {
        CDialog test;
        test.Show();
        QStringList labels;
        for (const QLabel* const label : test.Dialog().findChildren<QLabel*>())
            labels << label->text();
        QCOMPARE(labels,
                 (QStringList{u"&X axis :"_s, u"&Y axis :"_s, u"&Z axis :"_s, u"&Resultant :"_s,
                              u"deg &C :"_s, u"&Humidity :"_s, u"&Direction :"_s, u"&Mark"_s}));
        QStringList groups;
        for (const QGroupBox* const group : test.Dialog().findChildren<QGroupBox*>())
            groups << group->title();
        QCOMPARE(groups, (QStringList{u"Color"_s, Screen, Paper, Format, u"Print &title"_s}));
        QVERIFY(test.Button(u"&Standard colors"_s) != nullptr);
        QVERIFY(test.Button(u"OK"_s) != nullptr);
        QVERIFY(test.Button(u"Cancel"_s) != nullptr);
    }

    void ColoursStandInOneColumnWithTheRestAtTheirRight()
    {
        CDialog test;
        test.Show();
        const auto place = [&test](const QWidget* widget) {
            return QRect(widget->mapTo(&test.Dialog(), QPoint()), widget->size());
        };
        int below = 0;
        for (int i = 0; i < 7; ++i) {
            const QRect sample = place(test.Samples()[i]);
            QCOMPARE(sample.left(), place(test.Samples()[0]).left());
            QVERIFY(sample.top() >= below);
            below = sample.bottom();
            QVERIFY(place(test.Browses()[i]).left() > sample.right());
        }
        const QRect colours = place(test.Group(u"Color"_s));
        QVERIFY(place(test.Button(u"&Standard colors"_s)).top() > below);
        int bottom = 0;
        for (const QString& group : {Screen, Paper, Format, u"Print &title"_s}) {
            const QRect rect = place(test.Group(group));
            QVERIFY(rect.left() > colours.right());
            QVERIFY(rect.top() > bottom);
            bottom = rect.bottom();
        }
        for (const QString& button : {u"OK"_s, u"Cancel"_s}) {
            QVERIFY(place(test.Button(button)).top() > bottom);
            QVERIFY(place(test.Button(button)).left() > colours.right());
        }
    }

    void TheMarkIsNotOffered()
    {
        CDialog test;
        test.Show();
        QCOMPARE(test.Samples().size(), 8);
        QCOMPARE(test.Browses().size(), 8);
        for (int i = 0; i < 8; ++i) {
            QCOMPARE(test.Samples()[i]->isVisible(), i < 7);
            QCOMPARE(test.Browses()[i]->isVisible(), i < 7);
        }
        QVERIFY(!test.Dialog().findChildren<QLabel*>().last()->isVisible());
    }

    void IsCentredOnItsParent()
    {
        const CTestApp test;
        QWidget parent;
        parent.setGeometry(100, 60, 640, 480);
        parent.show();
        CChartPropertyDialog dialog(&parent);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const QPoint apart = dialog.geometry().center() - parent.geometry().center();
        // A title bar may shift it by some pixels.
        QVERIFY2(std::abs(apart.x()) <= 16, qPrintable(QString::number(apart.x())));
        QVERIFY2(std::abs(apart.y()) <= 32, qPrintable(QString::number(apart.y())));
    }

    void APickedColourIsShownAndNotYetWritten()
    {
        CDialog test;
        test.Show();
        for (int i = 0; i < 7; ++i) {
            test.Prompts().m_colours = {0x102030U + static_cast<ColourRef>(i)};
            QTest::mouseClick(test.Browses()[i], Qt::LeftButton);
            QCOMPARE(test.Prompts().m_shown.back().kind, Prompt::Kind::Colour);
            QCOMPARE(test.Prompts().m_shown.back().colour, Standard[i]);
            QCOMPARE(test.Shown()[i], 0x102030U + static_cast<ColourRef>(i));
        }
        QCOMPARE(test.StoredColours(), QList<int>(8, Absent));
        // The next choice begins where the last one ended.
        QTest::mouseClick(test.Browses()[2], Qt::LeftButton);
        QCOMPARE(test.Prompts().m_shown.back().colour, 0x102032U);
        QCOMPARE(test.Shown()[2], 0x102032U); // cancelled
    }

    void ASwatchShowsItsColour()
    {
        CDialog test;
        test.Show();
        test.Prompts().m_colours = {0x10D0E0};
        QTest::mouseClick(test.Browses()[0], Qt::LeftButton);
        const QImage face = test.Samples()[0]->grab().toImage();
        QCOMPARE(face.pixelColor(face.rect().center()), QColor(0xE0, 0xD0, 0x10));
    }

    void OkWritesEverything()
    {
        CDialog test;
        test.Show();
        test.Prompts().m_colours = {0x00FF7F};
        QTest::mouseClick(test.Browses()[6], Qt::LeftButton);
        QTest::mouseClick(test.Radio(Screen, u"Thick"_s), Qt::LeftButton);
        QTest::mouseClick(test.Radio(Paper, u"Thin"_s), Qt::LeftButton);
        QTest::mouseClick(test.Radio(Format, u"Elapsed Time"_s), Qt::LeftButton);
        test.Title()->selectAll();
        QTest::keyClicks(test.Title(), u"Crate; 50% of \"it\", 100 C"_s);
        test.Click(u"OK"_s);
        QCOMPARE(test.Dialog().result(), static_cast<int>(QDialog::Accepted));
        QVERIFY(!test.Dialog().isVisible());
        QCOMPARE(test.StoredColours(), (QList<int>{0xC50CC5, 0x800000, 0x008000, 0x008080, 0x0202C1,
                                                   0xF98B49, 0x00FF7F, 0x0000FF}));
        QCOMPARE(test.Stored(u"DrawGraphPic"_s), 2);
        QCOMPARE(test.Stored(u"PrintGraphPic"_s), 1);
        QCOMPARE(test.Stored(u"GraphHorz"_s), 1);
        QCOMPARE(test.Settings().GetText(SystemSection, u"GraphTitle"_s, u"none"_s),
                 u"Crate; 50% of \"it\", 100 C"_s);
    }

    void WhatOkWritesIsThereAtTheNextStart()
    {
        const CTestApp test;
        {
            CChartPropertyDialog dialog;
            dialog.findChild<QLineEdit*>()->setText(u"計測 = [7]"_s);
            dialog.accept();
        }
        App().Settings().Sync();
        const CSettings other(test.SettingsFile());
        const ChartProperties properties = ReadChartProperties(other);
        QCOMPARE(properties.title, u"計測 = [7]"_s);
        QCOMPARE(properties.colours, StandardColours());
    }

    void CancelWritesNothing()
    {
        CDialog test;
        test.Show();
        test.Prompts().m_colours = {0x00FF7F};
        QTest::mouseClick(test.Browses()[0], Qt::LeftButton);
        QTest::mouseClick(test.Radio(Screen, u"Thick"_s), Qt::LeftButton);
        test.Title()->setText(u"other"_s);
        test.Click(u"Cancel"_s);
        QVERIFY(!test.Dialog().isVisible());
        QCOMPARE(test.StoredColours(), QList<int>(8, Absent));
        for (const QString& key : {u"DrawGraphPic"_s, u"PrintGraphPic"_s, u"GraphHorz"_s})
            QCOMPARE(test.Stored(key), Absent);
        QCOMPARE(test.Settings().GetText(SystemSection, u"GraphTitle"_s, u"none"_s), u"none"_s);
        test.Show(); // anew: the picked colour is gone
        QCOMPARE(test.Shown(), Standard);
    }

    void EscapeCancels()
    {
        CDialog test;
        test.Show();
        QTest::keyClick(&test.Dialog(), Qt::Key_Escape);
        QVERIFY(!test.Dialog().isVisible());
        QCOMPARE(test.Dialog().result(), static_cast<int>(QDialog::Rejected));
        QCOMPARE(test.StoredColours(), QList<int>(8, Absent));
    }

    void AnEmptyTitleStaysEmpty()
    {
        CDialog test;
        test.Show();
        test.Title()->clear();
        test.Click(u"OK"_s);
        QCOMPARE(test.Settings().GetText(SystemSection, u"GraphTitle"_s, u"none"_s), QString());
        test.Show();
        QCOMPARE(test.Title()->text(), QString());
        App().Settings().Sync();
        QCOMPARE(ReadChartProperties(App().Settings()).title, QString());
    }

    void StandardColoursLeaveTheRest()
    {
        CDialog test;
        for (const QString& key : ColourKeys)
            test.Store(key, 0x123456);
        test.Store(u"DrawGraphPic"_s, 2);
        test.Store(u"PrintGraphPic"_s, 1);
        test.Store(u"GraphHorz"_s, 1);
        test.Settings().WriteText(SystemSection, u"GraphTitle"_s, u"Crate"_s);
        test.Show();
        test.Click(u"&Standard colors"_s);
        QCOMPARE(test.Shown(), Standard);
        QCOMPARE(test.StoredColours(), QList<int>(8, 0x123456)); // not written yet
        QCOMPARE(test.Checked(Screen), u"Thick"_s);
        QCOMPARE(test.Checked(Paper), u"Thin"_s);
        QCOMPARE(test.Checked(Format), u"Elapsed Time"_s);
        QCOMPARE(test.Title()->text(), u"Crate"_s);
        test.Click(u"OK"_s);
        QCOMPARE(test.Stored(u"IconColorX"_s), 0xC50CC5);
        QCOMPARE(test.Stored(u"IconColorMark"_s), 0x0000FF);
    }

    void TheColourOfMarksIsWrittenAsItWasRead()
    {
        CDialog test;
        test.Store(u"IconColorMark"_s, 0x445566);
        test.Show();
        test.Click(u"OK"_s);
        QCOMPARE(test.Stored(u"IconColorMark"_s), 0x445566);
    }

    void AWeightOfThreeBecomesOne_data()
    {
        QTest::addColumn<int>("weight");
        for (const int weight : {3, 4, 0, -1, 99})
            QTest::addRow("%d", weight) << weight;
    }

    void AWeightOfThreeBecomesOne()
    {
        QFETCH(const int, weight);
        CDialog test;
        test.Store(u"DrawGraphPic"_s, weight);
        test.Store(u"PrintGraphPic"_s, weight);
        test.Show();
        QCOMPARE(test.Checked(Screen), u"Thin"_s);
        QCOMPARE(test.Checked(Paper), u"Thin"_s);
        QCOMPARE(ReadChartProperties(App().Settings()).screenWeight, weight); // draws with it
        test.Click(u"OK"_s);
        QCOMPARE(test.Stored(u"DrawGraphPic"_s), 1);
        QCOMPARE(test.Stored(u"PrintGraphPic"_s), 1);
    }

    void WorksFromTheKeyboard()
    {
        CDialog test;
        test.Show();
        QCOMPARE(test.Dialog().focusWidget(), test.Browses()[0]);
        // A letter goes to the row's button, as everywhere; the space bar presses it.
        QTest::keyClick(&test.Dialog(), Qt::Key_H, Qt::AltModifier);
        QCOMPARE(test.Dialog().focusWidget(), test.Browses()[5]);
        test.Prompts().m_colours = {0x00FF7F};
        QTest::keyClick(test.Browses()[5], Qt::Key_Space);
        QCOMPARE(test.Shown()[5], 0x00FF7FU);
        // A group's letter goes to what is checked in it, and the arrow keys change that.
        QTest::keyClick(&test.Dialog(), Qt::Key_P, Qt::AltModifier);
        QCOMPARE(test.Dialog().focusWidget(), test.Radio(Paper, u"Thick"_s));
        QTest::keyClick(test.Dialog().focusWidget(), Qt::Key_Left);
        QCOMPARE(test.Checked(Paper), u"Thin"_s);
        QTest::keyClick(&test.Dialog(), Qt::Key_T, Qt::AltModifier);
        QCOMPARE(test.Dialog().focusWidget(), test.Title());
        QTest::keyClick(test.Title(), Qt::Key_Return);
        QVERIFY(!test.Dialog().isVisible());
        QCOMPARE(test.Stored(u"IconColorH"_s), 0x00FF7F);
        QCOMPARE(test.Stored(u"PrintGraphPic"_s), 1);
    }

    void TabGoesDownTheColumns()
    {
        CDialog test;
        test.Show();
        QList<QWidget*> expected;
        for (int i = 0; i < 7; ++i)
            expected << test.Browses()[i];
        expected << test.Button(u"&Standard colors"_s) << test.Radio(Screen, u"Thin"_s)
                 << test.Radio(Paper, u"Thick"_s) << test.Radio(Format, u"Time"_s) << test.Title()
                 << test.Button(u"OK"_s) << test.Button(u"Cancel"_s) << test.Browses()[0];
        for (QWidget* const widget : expected) {
            QCOMPARE(test.Dialog().focusWidget(), widget);
            QTest::keyClick(widget, Qt::Key_Tab);
        }
    }

    void ScreenReadersTellTheRowsApart()
    {
        CDialog test;
        test.Show();
        const QStringList names{u"X axis"_s, u"Y axis"_s,   u"Z axis"_s,   u"Resultant"_s,
                                u"deg C"_s,  u"Humidity"_s, u"Direction"_s};
        for (int i = 0; i < names.size(); ++i) {
            QAccessibleInterface* const sample =
                QAccessible::queryAccessibleInterface(test.Samples()[i]);
            QCOMPARE(sample->text(QAccessible::Name), names[i]);
            QCOMPARE(sample->role(), QAccessible::Graphic);
            QCOMPARE(sample->text(QAccessible::Value), ToColour(Standard[i]).name().toUpper());
            QAccessibleInterface* const browse =
                QAccessible::queryAccessibleInterface(test.Browses()[i]);
            QCOMPARE(browse->text(QAccessible::Name), names[i] + u" Bowse..."_s);
        }
        QCOMPARE(QAccessible::queryAccessibleInterface(test.Title())->text(QAccessible::Name),
                 u"Print title"_s);
    }

    void NothingIsCutInEitherLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << u"English"_s;
        QTest::newRow("Japanese") << u"Japanese"_s;
    }

    void NothingIsCutInEitherLanguage()
    {
        QFETCH(const QString, language);
        CDialog test(language);
        test.Show();
        for (const QWidget* const widget : test.Dialog().findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->parentWidget() == test.Title())
                continue;
            QVERIFY(test.Dialog().rect().contains(
                QRect(widget->mapTo(&test.Dialog(), QPoint()), widget->size())));
            const QSize least = widget->minimumSizeHint();
            QVERIFY(widget->width() >= least.width() && widget->height() >= least.height());
        }
        QSet<QChar> letters;
        for (const QLabel* const label : test.Dialog().findChildren<QLabel*>()) {
            const QString text = label->text();
            QVERIFY(text.contains(u'&'));
            const QChar letter = text[text.indexOf(u'&') + 1];
            QVERIFY(!letters.contains(letter));
            letters << letter;
        }
    }
};

QTEST_MAIN(PropertyDialogTest)
#include "PropertyDialogTest.moc"
