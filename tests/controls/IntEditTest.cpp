#include "controls/IntEdit.h"
#include "controls/EditForm.h"
#include "controls/IntComboEdit.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

/// The box for whole numbers under real keys.
class IntEditTest : public QObject, private CEditForm<CIntEdit>
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void OnlyDigitsCanBeTyped();
    void EditingKeysWork();
    void RangeOf99TakesTwoCharacters();
    void InputMethodIsFiltered();
    void SetValueClamps();
    void GetValueGivesNumberInRange();
    void InvalidTextIsReported_data();
    void InvalidTextIsReported();
    void InvalidTextKeepsFocusAndSelection();
    void EmptyTextReportsRange();
    void PastedTextIsCheckedByGetValue();
    void NarrowerRangeClampsTextThatIsTooLong();
    void ComboTypesAndChooses();
};

void IntEditTest::init()
{
    StartIn(QStringLiteral("English"));
    m_edit->SetRange(1, 999);
}

void IntEditTest::cleanup()
{
    Close();
}

void IntEditTest::OnlyDigitsCanBeTyped()
{
    QTest::keyClicks(m_edit, QStringLiteral("a1-.2 e3,"));
    QCOMPARE(m_edit->text(), QStringLiteral("123"));
    QCOMPARE(Beeps(), 0); // swallowed without a word
    QVERIFY(Status().isEmpty());
}

void IntEditTest::EditingKeysWork()
{
    QTest::keyClicks(m_edit, QStringLiteral("12"));
    QTest::keyClick(m_edit, Qt::Key_Backspace);
    QCOMPARE(m_edit->text(), QStringLiteral("1"));
    QTest::keyClick(m_edit, Qt::Key_Left);
    QTest::keyClick(m_edit, Qt::Key_Delete);
    QVERIFY(m_edit->text().isEmpty());
    QTest::keyClicks(m_edit, QStringLiteral("45"));
    QTest::keySequence(m_edit, QKeySequence::SelectAll);
    QTest::keySequence(m_edit, QKeySequence::Copy);
    QTest::keyClick(m_edit, Qt::Key_7);
    QCOMPARE(m_edit->text(), QStringLiteral("7"));
    QTest::keySequence(m_edit, QKeySequence::Paste);
    QCOMPARE(m_edit->text(), QStringLiteral("745"));
}

void IntEditTest::RangeOf99TakesTwoCharacters()
{
    m_edit->SetRange(1, 99);
    QTest::keyClicks(m_edit, QStringLiteral("123"));
    QCOMPARE(m_edit->text(), QStringLiteral("12"));
    m_edit->clear();
    m_edit->SetRange(99, 1);
    QTest::keyClicks(m_edit, QStringLiteral("987"));
    QCOMPARE(m_edit->text(), QStringLiteral("98"));
}

void IntEditTest::InputMethodIsFiltered()
{
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("1\uFF12\u3042"
                                            "3"));
    QApplication::sendEvent(m_edit, &event);
    QCOMPARE(m_edit->text(), QStringLiteral("13"));
}

void IntEditTest::SetValueClamps()
{
    QVERIFY(m_edit->SetValue(42));
    QCOMPARE(m_edit->text(), QStringLiteral("42"));
    QVERIFY(!m_edit->SetValue(0));
    QCOMPARE(m_edit->text(), QStringLiteral("1"));
    QVERIFY(!m_edit->SetValue(1000));
    QCOMPARE(m_edit->text(), QStringLiteral("999"));
    QVERIFY(m_edit->SetValue(999));
    QVERIFY(m_edit->SetValue(1));
}

void IntEditTest::GetValueGivesNumberInRange()
{
    QTest::keyClicks(m_edit, QStringLiteral("042"));
    std::uint32_t value = 0;
    QVERIFY(m_edit->GetValue(value));
    QCOMPARE(value, 42U);
    QCOMPARE(Beeps(), 0);
}

void IntEditTest::InvalidTextIsReported_data()
{
    AddMessageColumns();

    // English takes the upper bound first, Japanese the lower.
    QTest::newRow("English") << QStringLiteral("English") << QString()
                             << QStringLiteral("Input the value of 60 from 5");
    QTest::newRow("English, named") << QStringLiteral("English") << QStringLiteral("Time")
                                    << QStringLiteral("Input the value of 60 from 5 to Time");
    QTest::newRow("Japanese") << QStringLiteral("Japanese") << QString()
                              << QString::fromUtf8(
                                     "5 \u304b\u3089 60 \u306e\u5024\u3092\u5165\u529b\u3057\u3066"
                                     "\u304f\u3060\u3055\u3044");
    QTest::newRow("Japanese, named")
        << QStringLiteral("Japanese") << QStringLiteral("Time")
        << QString::fromUtf8("Time\u306b\u306f 5 \u304b\u3089 60 \u306e\u5024\u3092\u5165\u529b"
                             "\u3057\u3066\u304f\u3060\u3055\u3044");
}

void IntEditTest::InvalidTextIsReported()
{
    QFETCH(QString, language);
    QFETCH(QString, name);
    QFETCH(QString, message);
    StartIn(language);
    m_edit->SetRange(60, 5);
    m_edit->m_strName = name;
    QTest::keyClicks(m_edit, QStringLiteral("61"));
    std::uint32_t value = 0;
    QVERIFY(!m_edit->GetValue(value));
    QCOMPARE(value, 60U);
    QCOMPARE(Status(), message);
    QCOMPARE(Beeps(), 1);
}

void IntEditTest::InvalidTextKeepsFocusAndSelection()
{
    m_edit->SetRange(10, 999);
    QTest::keyClicks(m_edit, QStringLiteral("5"));
    m_other->setFocus();
    std::uint32_t value = 0;
    QVERIFY(!m_edit->GetValue(value));
    QCOMPARE(value, 10U);
    QVERIFY(m_edit->hasFocus());
    QCOMPARE(m_edit->text(), QStringLiteral("5")); // the bad text stays
    QCOMPARE(m_edit->selectedText(), QStringLiteral("5"));
}

void IntEditTest::EmptyTextReportsRange()
{
    std::uint32_t value = 77;
    QVERIFY(!m_edit->GetValue(value));
    QCOMPARE(value, 1U);
    QCOMPARE(Status(), QStringLiteral("Input the value of 999 from 1"));
}

void IntEditTest::PastedTextIsCheckedByGetValue()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("x9"));
    QTest::keySequence(m_edit, QKeySequence::Paste);
    QCOMPARE(m_edit->text(), QStringLiteral("x9"));
    std::uint32_t value = 77;
    QVERIFY(!m_edit->GetValue(value));
    QCOMPARE(value, 1U);
    QCOMPARE(Beeps(), 1);
}

void IntEditTest::NarrowerRangeClampsTextThatIsTooLong()
{
    m_edit->SetValue(150);
    m_edit->SetRange(1, 99);
    QCOMPARE(m_edit->text(), QStringLiteral("99")); // and not 15
}

void IntEditTest::ComboTypesAndChooses()
{
    CIntComboEdit combo(m_form.get());
    combo.move(100, 0);
    combo.show();
    combo.addItems({QStringLiteral("10"), QStringLiteral("25")});
    combo.SetRange(30, 5);
    combo.SetName(QStringLiteral("Start option"));
    combo.setFocus();
    QVERIFY(combo.SetValue(12));
    QCOMPARE(combo.currentText(), QStringLiteral("12"));
    combo.m_edit->selectAll();
    QTest::keyClicks(combo.m_edit, QStringLiteral("2a"));
    QCOMPARE(combo.currentText(), QStringLiteral("2")); // nothing is completed
    std::uint32_t value = 0;
    QVERIFY(!combo.GetValue(value));
    QCOMPARE(value, 5U);
    QVERIFY(combo.m_edit->hasFocus());
    QCOMPARE(Status(), QStringLiteral("Input the value of 30 from 5 to Start option"));
    QTest::keyClick(combo.m_edit, Qt::Key_Return);
    QCOMPARE(combo.count(), 2); // what is typed does not go into the list
    combo.setCurrentIndex(1);
    QVERIFY(combo.GetValue(value));
    QCOMPARE(value, 25U);
}

QTEST_MAIN(IntEditTest)
#include "IntEditTest.moc"
