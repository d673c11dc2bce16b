#include "controls/NameEdit.h"
#include "controls/NameRule.h"
#include "controls/Pixels.h"
#include "support/window/TestApp.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

const QString Message = QStringLiteral("Profile name cannot contain  \\\"*./:<>?\\|");

} // namespace

/// The box for the name of a profile under real keys, pastes and drops.
class NameEditTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ForbiddenCharacters_data();
    void ForbiddenCharacters();
    void OtherCharacterPutsStatusBack();
    void PasteWithForbiddenCharacterIsRefusedWhole();
    void PasteWithoutGoesIn();
    void PasteFromMenuIsHeldToTheRule();
    void DropIsHeldToTheRule();
    void InputMethodIsFiltered();
    void NameOfEarlierTimeStays();
    void UndoneNameIsHeldToTheRuleAgain();
    void RefusedTextIsNotAnnounced();

private:
    void Paste(const QString& text);

    std::unique_ptr<CTestApp> m_app;
    std::unique_ptr<CNameEdit> m_edit;
};

void NameEditTest::init()
{
    m_app = std::make_unique<CTestApp>();
    m_edit = std::make_unique<CNameEdit>();
    QVERIFY(ShowActive(*m_edit));
    m_edit->setFocus();
}

void NameEditTest::cleanup()
{
    m_edit.reset();
    m_app.reset();
}

void NameEditTest::Paste(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    QTest::keySequence(m_edit.get(), QKeySequence::Paste);
}

void NameEditTest::ForbiddenCharacters_data()
{
    QTest::addColumn<QChar>("character");
    QTest::addColumn<bool>("isAllowed");
    for (const char c : {'"', '*', '.', '/', ':', '<', '>', '?', '\\', '|'})
        QTest::newRow(QByteArray(1, c).constData()) << QChar::fromLatin1(c) << false;
    for (const char c : {'a', 'Z', '0', ' ', '-', '_', ',', ';', '\'', '&', '%', '(', '+'})
        QTest::newRow(QByteArray(1, c).constData()) << QChar::fromLatin1(c) << true;
}

void NameEditTest::ForbiddenCharacters()
{
    QFETCH(QChar, character);
    QFETCH(bool, isAllowed);
    QCOMPARE(IsNameCharacter(character.unicode()), isAllowed);
    QTest::keyClicks(m_edit.get(), QStringLiteral("a") + character + QStringLiteral("b"));
    const QString inside = isAllowed ? QString(character) : QString();
    QCOMPARE(m_edit->text(), QStringLiteral("a") + inside + QStringLiteral("b"));
    QCOMPARE(m_app->m_prompts->m_beeps, isAllowed ? 0 : 1);
    m_edit->clear();
    QTest::keyClicks(m_edit.get(), QString(character));
    QCOMPARE(m_app->m_frame.m_status, isAllowed ? QStringLiteral("(reset)") : Message);
}

void NameEditTest::OtherCharacterPutsStatusBack()
{
    QTest::keyClick(m_edit.get(), Qt::Key_Asterisk, Qt::ShiftModifier);
    QTest::keyClicks(m_edit.get(), QStringLiteral("*"));
    QCOMPARE(m_app->m_frame.m_status, Message);
    QTest::keyClicks(m_edit.get(), QStringLiteral("n"));
    QCOMPARE(m_app->m_frame.m_status, QStringLiteral("(reset)"));
    QTest::keyClicks(m_edit.get(), QStringLiteral("?"));
    QTest::keyClick(m_edit.get(), Qt::Key_Backspace);
    QCOMPARE(m_app->m_frame.m_status, QStringLiteral("(reset)"));
    QVERIFY(m_edit->text().isEmpty());
}

void NameEditTest::PasteWithForbiddenCharacterIsRefusedWhole()
{
    QTest::keyClicks(m_edit.get(), QStringLiteral("run"));
    Paste(QStringLiteral("a/b"));
    QCOMPARE(m_edit->text(), QStringLiteral("run"));
    QCOMPARE(m_app->m_frame.m_status, Message);
    QCOMPARE(m_app->m_prompts->m_beeps, 1);
    m_edit->selectAll();
    Paste(QStringLiteral("c:d"));
    QCOMPARE(m_edit->text(), QStringLiteral("run"));
    QCOMPARE(m_app->m_prompts->m_beeps, 2);
}

void NameEditTest::PasteWithoutGoesIn()
{
    Paste(QStringLiteral("Transport 7"));
    QCOMPARE(m_edit->text(), QStringLiteral("Transport 7"));
    QCOMPARE(m_app->m_prompts->m_beeps, 0);
}

void NameEditTest::PasteFromMenuIsHeldToTheRule()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("x|y"));
    m_edit->paste();
    QVERIFY(m_edit->text().isEmpty());
    QCOMPARE(m_app->m_frame.m_status, Message);
}

void NameEditTest::DropIsHeldToTheRule()
{
    QMimeData data;
    data.setText(QStringLiteral("x?y"));
    const auto enter = [&] {
        QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_edit.get(), &event);
        QVERIFY(event.isAccepted());
    };
    enter();
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_edit.get(), &drop);
    QVERIFY(m_edit->text().isEmpty());
    QCOMPARE(m_app->m_frame.m_status, Message);
    data.setText(QStringLiteral("xy"));
    enter();
    QDropEvent good(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_edit.get(), &good);
    QCOMPARE(m_edit->text(), QStringLiteral("xy"));
}

void NameEditTest::InputMethodIsFiltered()
{
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("\u8f38\u9001*\u7528"));
    QApplication::sendEvent(m_edit.get(), &event);
    QCOMPARE(m_edit->text(), QString::fromUtf8("\u8f38\u9001\u7528"));
    QCOMPARE(m_app->m_prompts->m_beeps, 1);
}

void NameEditTest::NameOfEarlierTimeStays()
{
    m_edit->SetName(QStringLiteral("v1.2"));
    QCOMPARE(m_edit->text(), QStringLiteral("v1.2"));
    QCOMPARE(m_app->m_prompts->m_beeps, 0);
    Paste(QStringLiteral(".5"));
    QCOMPARE(m_edit->text(), QStringLiteral("v1.2"));
    QCOMPARE(m_app->m_prompts->m_beeps, 1);
    QTest::keyClicks(m_edit.get(), QStringLiteral("b."));
    QCOMPARE(m_edit->text(), QStringLiteral("v1.2b"));
    m_edit->SetName(QStringLiteral("plain"));
    Paste(QStringLiteral(".5"));
    QCOMPARE(m_edit->text(), QStringLiteral("plain"));
}

void NameEditTest::UndoneNameIsHeldToTheRuleAgain()
{
    m_edit->SetName(QStringLiteral("v1.2"));
    m_edit->setCursorPosition(3);
    QTest::keyClick(m_edit.get(), Qt::Key_Backspace);
    QCOMPARE(m_edit->text(), QStringLiteral("v12"));
    QTest::keySequence(m_edit.get(), QKeySequence::Undo);
    QCOMPARE(m_edit->text(), QStringLiteral("v1.2"));
    QCOMPARE(m_app->m_prompts->m_beeps, 0);
    Paste(QStringLiteral(":"));
    QCOMPARE(m_edit->text(), QStringLiteral("v1.2"));
    QCOMPARE(m_app->m_prompts->m_beeps, 1);
    // What another name held does not come back.
    m_edit->SetName(QStringLiteral("v12"));
    m_edit->setCursorPosition(2);
    Paste(QStringLiteral("."));
    QCOMPARE(m_edit->text(), QStringLiteral("v12"));
}

void NameEditTest::RefusedTextIsNotAnnounced()
{
    QSignalSpy changes(m_edit.get(), &QLineEdit::textChanged);
    QTest::keyClicks(m_edit.get(), QStringLiteral("a*"));
    Paste(QStringLiteral("b*"));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes[0][0].toString(), QStringLiteral("a"));
}

QTEST_MAIN(NameEditTest)
#include "NameEditTest.moc"
