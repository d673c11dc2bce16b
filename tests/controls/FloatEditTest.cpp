#include "controls/FloatEdit.h"
#include "controls/EditForm.h"
#include "controls/FloatComboEdit.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

/// The box for decimals under real keys.
class FloatEditTest : public QObject, private CEditForm<CFloatEdit>
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void TypedTextKeepsRule_data();
    void TypedTextKeepsRule();
    void ThirdDecimalShowsMessage();
    void SecondPointIsRefusedSilently();
    void SixteenthDigitIsRefusedSilently();
    void SelectionIsTakenIntoAccount();
    void CharacterInsideIsJudgedByWholeText();
    void InputMethodIsFiltered();
    void SetValueDoesNotClamp();
    void InvalidTextIsReported_data();
    void InvalidTextIsReported();
    void EmptyTextIsInvalid();
    void PastedTextIsCheckedByGetValue();
    void ComboTypesAndChooses();
};

void FloatEditTest::init()
{
    StartIn(QStringLiteral("English"));
    m_edit->SetRange(-10, 50, 2);
}

void FloatEditTest::cleanup()
{
    Close();
}

void FloatEditTest::TypedTextKeepsRule_data()
{
    QTest::addColumn<double>("lower");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");

    QTest::newRow("digits and a point")
        << 0.0 << 2 << QStringLiteral("a1b2.c5") << QStringLiteral("12.5");
    QTest::newRow("no decimals, no point")
        << 0.0 << 0 << QStringLiteral("1.5") << QStringLiteral("15");
    QTest::newRow("minus first") << -1.0 << 2 << QStringLiteral("-5-.-5") << QStringLiteral("-5.5");
    QTest::newRow("no minus where nothing is negative")
        << 0.0 << 2 << QStringLiteral("-5") << QStringLiteral("5");
    QTest::newRow("no exponent") << 0.0 << 2 << QStringLiteral("1e5") << QStringLiteral("15");
    QTest::newRow("any number of decimals")
        << 0.0 << -1 << QStringLiteral("0.0000000000000000000012")
        << QStringLiteral("0.0000000000000000000012");
}

void FloatEditTest::TypedTextKeepsRule()
{
    QFETCH(double, lower);
    QFETCH(int, decimals);
    QFETCH(QString, typed);
    QFETCH(QString, text);
    m_edit->SetRange(lower, 50, decimals);
    QTest::keyClicks(m_edit, typed);
    QCOMPARE(m_edit->text(), text);
    QCOMPARE(Beeps(), 0);
}

void FloatEditTest::ThirdDecimalShowsMessage()
{
    QTest::keyClicks(m_edit, QStringLiteral("1.25"));
    QVERIFY(Status().isEmpty());
    QTest::keyClick(m_edit, Qt::Key_3);
    QCOMPARE(m_edit->text(), QStringLiteral("1.25"));
    QCOMPARE(Status(), QStringLiteral("Decimals are allowed to 2."));
    QCOMPARE(Beeps(), 1);
}

void FloatEditTest::SecondPointIsRefusedSilently()
{
    QTest::keyClicks(m_edit, QStringLiteral("1.2."));
    QCOMPARE(m_edit->text(), QStringLiteral("1.2"));
    QVERIFY(Status().isEmpty());
    QCOMPARE(Beeps(), 0);
}

void FloatEditTest::SixteenthDigitIsRefusedSilently()
{
    QTest::keyClicks(m_edit, QStringLiteral("1234567890123456"));
    QCOMPARE(m_edit->text(), QStringLiteral("123456789012345"));
    QVERIFY(Status().isEmpty());
    QCOMPARE(Beeps(), 0);
}

void FloatEditTest::SelectionIsTakenIntoAccount()
{
    QTest::keyClicks(m_edit, QStringLiteral("1.25"));
    m_edit->setSelection(1, 2); // ".2"
    QTest::keyClick(m_edit, Qt::Key_Period);
    QCOMPARE(m_edit->text(), QStringLiteral("1.5"));
    m_edit->selectAll();
    QTest::keyClick(m_edit, Qt::Key_Minus);
    QCOMPARE(m_edit->text(), QStringLiteral("-"));
}

void FloatEditTest::CharacterInsideIsJudgedByWholeText()
{
    QTest::keyClicks(m_edit, QStringLiteral("1234"));
    m_edit->setCursorPosition(1);
    QTest::keyClick(m_edit, Qt::Key_Period); // would leave three decimals
    QCOMPARE(m_edit->text(), QStringLiteral("1234"));
    QCOMPARE(Beeps(), 1);
    m_edit->setCursorPosition(2);
    QTest::keyClick(m_edit, Qt::Key_Period);
    QCOMPARE(m_edit->text(), QStringLiteral("12.34"));
    m_edit->setCursorPosition(0);
    QTest::keyClick(m_edit, Qt::Key_9); // digits before the point are free
    QCOMPARE(m_edit->text(), QStringLiteral("912.34"));
}

void FloatEditTest::InputMethodIsFiltered()
{
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("1.2\u3002"
                                            "56"));
    QApplication::sendEvent(m_edit, &event);
    QCOMPARE(m_edit->text(), QStringLiteral("1.25"));
    QCOMPARE(Beeps(), 1);
}

void FloatEditTest::SetValueDoesNotClamp()
{
    m_edit->SetValue(3);
    QCOMPARE(m_edit->text(), QStringLiteral("3.00"));
    m_edit->SetValue(100);
    QCOMPARE(m_edit->text(), QStringLiteral("100.00"));
    double value = 0;
    QVERIFY(!m_edit->GetValue(value));
    QCOMPARE(value, 50.0);
}

void FloatEditTest::InvalidTextIsReported_data()
{
    AddMessageColumns();

    QTest::newRow("English") << QStringLiteral("English") << QString()
                             << QStringLiteral("Input the value of 19.8 from 0.2.");
    QTest::newRow("English, named")
        << QStringLiteral("English") << QStringLiteral("Threshold")
        << QStringLiteral("Input the value of 19.8 from 0.2 to Threshold.");
    QTest::newRow("Japanese")
        << QStringLiteral("Japanese") << QString()
        << QString::fromUtf8("0.2 \u304b\u3089 19.8 \u306e\u5024\u3092\u5165\u529b\u3057\u3066"
                             "\u304f\u3060\u3055\u3044\u3002");
    QTest::newRow("Japanese, named")
        << QStringLiteral("Japanese") << QStringLiteral("Threshold")
        << QString::fromUtf8("Threshold\u306b\u306f 0.2 \u304b\u3089 19.8 \u306e\u5024\u3092"
                             "\u5165\u529b\u3057\u3066\u304f\u3060\u3055\u3044\u3002");
}

void FloatEditTest::InvalidTextIsReported()
{
    QFETCH(QString, language);
    QFETCH(QString, name);
    QFETCH(QString, message);
    StartIn(language);
    m_edit->SetRange(19.8, 0.2, 1);
    m_edit->m_strName = name;
    QTest::keyClicks(m_edit, QStringLiteral("0.1"));
    double value = 0;
    QVERIFY(!m_edit->GetValue(value));
    QCOMPARE(value, 0.2);
    QCOMPARE(Status(), message);
    QCOMPARE(Beeps(), 1);
    QVERIFY(m_edit->hasFocus());
    QCOMPARE(m_edit->selectedText(), QStringLiteral("0.1"));
}

void FloatEditTest::EmptyTextIsInvalid()
{
    double value = 77;
    QVERIFY(!m_edit->GetValue(value));
    QCOMPARE(value, -10.0);
    QCOMPARE(Status(), QStringLiteral("Input the value of 50.00 from -10.00."));
}

void FloatEditTest::PastedTextIsCheckedByGetValue()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("99 G"));
    QTest::keySequence(m_edit, QKeySequence::Paste);
    QCOMPARE(m_edit->text(), QStringLiteral("99 G"));
    double value = 0;
    QVERIFY(!m_edit->GetValue(value));
    QCOMPARE(value, 50.0);
}

void FloatEditTest::ComboTypesAndChooses()
{
    CFloatComboEdit combo(m_form.get());
    combo.move(100, 0);
    combo.show();
    combo.addItems({QStringLiteral("1.0"), QStringLiteral("2.5")});
    combo.SetRange(5, 0.1, 1);
    combo.SetName(QStringLiteral("Hazard"));
    combo.SetValue(0.5);
    QCOMPARE(combo.currentText(), QStringLiteral("0.5"));
    combo.m_edit->setFocus();
    combo.m_edit->selectAll();
    QTest::keyClicks(combo.m_edit, QStringLiteral("7.25"));
    QCOMPARE(combo.currentText(), QStringLiteral("7.2"));
    double value = 0;
    QVERIFY(!combo.GetValue(value));
    QCOMPARE(value, 5.0);
    QCOMPARE(Status(), QStringLiteral("Input the value of 5.0 from 0.1 to Hazard."));
    combo.setCurrentIndex(1);
    QVERIFY(combo.GetValue(value));
    QCOMPARE(value, 2.5);
}

QTEST_MAIN(FloatEditTest)
#include "FloatEditTest.moc"
