#include "app/Clipboard.h"
#include "app/DataText.h"
#include "app/DesktopPrompts.h"
#include "app/FileChoice.h"
#include "app/WaitCursor.h"
#include "resources/Translation.h"
#include "support/window/TestApp.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace skeldon;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(skeldon::BoxKind)
Q_DECLARE_METATYPE(skeldon::Answer)

namespace {

/// Does something to the dialog that comes up next, once it is on the screen.
template <class Dialog>
class CVisitor : public QTimer
{
public:
    explicit CVisitor(std::function<void(Dialog&)> visit)
        : m_visit(std::move(visit))
    {
        callOnTimeout([this] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || !dialog->isActiveWindow() || ++m_visits > 1)
                return;
            stop();
            m_visit(*dialog);
        });
        start(1);
    }
    int m_visits = 0;

private:
    std::function<void(Dialog&)> m_visit;
};

using CBoxVisitor = CVisitor<QMessageBox>;
using CDialogVisitor = CVisitor<QFileDialog>;

void Touch(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("a file can not be prepared");
}

} // namespace

class CPromptsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    CDesktopPrompts m_desktop;

    [[nodiscard]] QString In(const QString& name) const { return m_folder->filePath(name); }

    [[nodiscard]] FileQuestion Question(const QString& name = {}) const
    {
        return {u"Export in CSV format"_s,
                m_folder->path(),
                name,
                {u"Comma separated text(csv) (*.csv)"_s, u"All (*)"_s}};
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    // --- message boxes ---

    void EachKindOfBoxHasItsIconAndButtons_data()
    {
        QTest::addColumn<BoxKind>("kind");
        QTest::addColumn<int>("icon");
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("preselected");
        const auto row = [](const char* name, BoxKind kind, QMessageBox::Icon icon,
                            QMessageBox::StandardButtons buttons,
                            QMessageBox::StandardButton preselected) {
            QTest::newRow(name) << kind << int{icon} << static_cast<int>(buttons)
                                << int{preselected};
        };
        row("warning", BoxKind::Warning, QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok);
        row("information", BoxKind::Information, QMessageBox::Information, QMessageBox::Ok,
            QMessageBox::Ok);
        row("yes or no", BoxKind::YesNo, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
            QMessageBox::Yes);
        row("no or yes", BoxKind::NoYes, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
            QMessageBox::No);
        row("yes, no or neither", BoxKind::YesNoCancel, QMessageBox::Question,
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel);
    }

    void EachKindOfBoxHasItsIconAndButtons()
    {
        QFETCH(const BoxKind, kind);
        QWidget parent;
        int icon = -1;
        int buttons = -1;
        int preselected = -1;
        QString text;
        QWidget* over = nullptr;
        CBoxVisitor visitor([&](QMessageBox& box) {
            icon = box.icon();
            buttons = static_cast<int>(box.standardButtons());
            preselected = box.standardButton(qobject_cast<QAbstractButton*>(box.focusWidget()));
            text = box.text();
            over = box.parentWidget();
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        const QString words = u"%s & <b>1 < 2</b>\n第二"_s;
        m_desktop.ShowBox(&parent, kind, words);
        QCOMPARE(visitor.m_visits, 1);
        QTEST(icon, "icon");
        QTEST(buttons, "buttons");
        QTEST(preselected, "preselected");
        QCOMPARE(text, words);
        QCOMPARE(over, &parent);
    }

    void KeysAnswerABox_data()
    {
        QTest::addColumn<BoxKind>("kind");
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<Answer>("answer");
        const auto row = [](const char* name, BoxKind kind, const QList<int>& keys, Answer answer) {
            QTest::newRow(name) << kind << keys << answer;
        };
        row("warning, Enter", BoxKind::Warning, {Qt::Key_Return}, Answer::Ok);
        row("warning, Escape", BoxKind::Warning, {Qt::Key_Escape}, Answer::Ok);
        row("information, Enter", BoxKind::Information, {Qt::Key_Return}, Answer::Ok);
        row("information, Escape", BoxKind::Information, {Qt::Key_Escape}, Answer::Ok);
        row("yes or no, Enter", BoxKind::YesNo, {Qt::Key_Return}, Answer::Yes);
        row("yes or no, Escape", BoxKind::YesNo, {Qt::Key_Escape}, Answer::No);
        row("yes or no, next", BoxKind::YesNo, {Qt::Key_Tab, Qt::Key_Space}, Answer::No);
        row("no or yes, Enter", BoxKind::NoYes, {Qt::Key_Return}, Answer::No);
        row("no or yes, Escape", BoxKind::NoYes, {Qt::Key_Escape}, Answer::No);
        row("no or yes, next", BoxKind::NoYes, {Qt::Key_Tab, Qt::Key_Space}, Answer::Yes);
        row("three, Enter", BoxKind::YesNoCancel, {Qt::Key_Return}, Answer::Cancel);
        row("three, Escape", BoxKind::YesNoCancel, {Qt::Key_Escape}, Answer::Cancel);
    }

    void KeysAnswerABox()
    {
        QFETCH(const BoxKind, kind);
        QFETCH(const QList<int>, keys);
        CBoxVisitor visitor([&keys](QMessageBox& box) {
            for (const int key : keys)
                QTest::keyClick(box.focusWidget(), static_cast<Qt::Key>(key));
        });
        const Answer answer = m_desktop.ShowBox(nullptr, kind, u"?"_s);
        QCOMPARE(visitor.m_visits, 1);
        QTEST(answer, "answer");
    }

    void EachButtonIsItsAnswer_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<Answer>("answer");
        QTest::newRow("yes") << int{QMessageBox::Yes} << Answer::Yes;
        QTest::newRow("no") << int{QMessageBox::No} << Answer::No;
        QTest::newRow("cancel") << int{QMessageBox::Cancel} << Answer::Cancel;
    }

    void EachButtonIsItsAnswer()
    {
        QFETCH(const int, button);
        CBoxVisitor visitor([button](QMessageBox& box) {
            QTest::mouseClick(box.button(static_cast<QMessageBox::StandardButton>(button)),
                              Qt::LeftButton);
        });
        const Answer answer = m_desktop.ShowBox(nullptr, BoxKind::YesNoCancel, u"?"_s);
        QCOMPARE(visitor.m_visits, 1);
        QTEST(answer, "answer");
    }

    void ClosingABoxByItsFrameIsEscape_data()
    {
        QTest::addColumn<BoxKind>("kind");
        QTest::addColumn<Answer>("answer");
        QTest::newRow("warning") << BoxKind::Warning << Answer::Ok;
        QTest::newRow("yes or no") << BoxKind::YesNo << Answer::No;
        QTest::newRow("no or yes") << BoxKind::NoYes << Answer::No;
        QTest::newRow("three") << BoxKind::YesNoCancel << Answer::Cancel;
    }

    void ClosingABoxByItsFrameIsEscape()
    {
        QFETCH(const BoxKind, kind);
        CBoxVisitor visitor([](QMessageBox& box) { box.close(); });
        const Answer answer = m_desktop.ShowBox(nullptr, kind, u"?"_s);
        QCOMPARE(visitor.m_visits, 1);
        QTEST(answer, "answer");
    }

    void ABoxIsNamedForTheProgramAndSetsTheWaitCursorAside()
    {
        QString title;
        bool wasWaiting = true;
        CBoxVisitor visitor([&](QMessageBox& box) {
            title = box.windowTitle();
            wasWaiting = QApplication::overrideCursor() != nullptr;
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        {
            const CWaitCursor outer;
            const CWaitCursor inner;
            m_desktop.ShowBox(nullptr, BoxKind::Warning, u"?"_s);
            QVERIFY(QApplication::overrideCursor() != nullptr);
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        }
        QVERIFY(QApplication::overrideCursor() == nullptr);
        QCOMPARE(visitor.m_visits, 1);
        QCOMPARE(title, u"SKELDON Light"_s);
        QVERIFY(!wasWaiting);
    }

    // --- file dialogs ---

    void AFileDialogShowsWhatItWasGiven()
    {
        QString title;
        QStringList filters;
        QString folder;
        QString name;
        CDialogVisitor visitor([&](QFileDialog& dialog) {
            title = dialog.windowTitle();
            filters = dialog.nameFilters();
            folder = dialog.directory().path();
            name = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s)->text();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        const FileQuestion question = Question(u"data.csv"_s);
        QVERIFY(!m_desktop.AskSavePath(nullptr, question).has_value());
        QCOMPARE(visitor.m_visits, 1);
        QCOMPARE(title, question.title);
        QCOMPARE(filters, question.filters);
        QCOMPARE(QDir(folder).canonicalPath(), QDir(m_folder->path()).canonicalPath());
        QCOMPARE(name, u"data.csv"_s);
    }

    void AProposedNameCanBeTakenAsItStands()
    {
        CDialogVisitor visitor([](QFileDialog& dialog) {
            QTest::keyClick(dialog.findChild<QLineEdit*>(u"fileNameEdit"_s), Qt::Key_Return);
        });
        QCOMPARE(m_desktop.AskSavePath(nullptr, Question(u"計測.csv"_s)), In(u"計測.csv"_s));
        QCOMPARE(visitor.m_visits, 1);
    }

    void TheSaveDialogAsksNothingAboutAFileThatIsThere()
    {
        Touch(In(u"data.csv"_s));
        CDialogVisitor visitor([](QFileDialog& dialog) {
            QTest::keyClick(dialog.findChild<QLineEdit*>(u"fileNameEdit"_s), Qt::Key_Return);
        });
        QCOMPARE(m_desktop.AskSavePath(nullptr, Question(u"data.csv"_s)), In(u"data.csv"_s));
    }

    void AFileToOpenIsTakenByItsName()
    {
        Touch(In(u"data.skd"_s));
        CDialogVisitor visitor([](QFileDialog& dialog) {
            auto* const edit = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
            QTest::keyClicks(edit, u"data.skd"_s);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        FileQuestion question = Question();
        question.filters = QStringList{u"SKELDON file(skd,sks) (*.skd *.sks)"_s, u"All (*)"_s};
        QCOMPARE(m_desktop.AskOpenPath(nullptr, question), In(u"data.skd"_s));
    }

    void ANameToOpenIsGivenNoExtension()
    {
        Touch(In(u"data"_s));
        Touch(In(u"data.skd"_s));
        CDialogVisitor visitor([](QFileDialog& dialog) {
            auto* const edit = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
            QTest::keyClicks(edit, u"data"_s);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        FileQuestion question = Question();
        question.filters = QStringList{u"SKELDON file(skd,sks) (*.skd *.sks)"_s, u"All (*)"_s};
        QCOMPARE(m_desktop.AskOpenPath(nullptr, question), In(u"data"_s));
    }

    void OpeningIsCancelledByEscape()
    {
        CDialogVisitor visitor(
            [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QVERIFY(!m_desktop.AskOpenPath(nullptr, Question()).has_value());
        QCOMPARE(visitor.m_visits, 1);
    }

    void ADialogOpensWhereItsFolderIsGone()
    {
        CDialogVisitor visitor(
            [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        FileQuestion question = Question(u"data.csv"_s);
        question.folder = In(u"not/there"_s);
        QVERIFY(!m_desktop.AskSavePath(nullptr, question).has_value());
        QCOMPARE(visitor.m_visits, 1);
    }

    // --- where to write to ---

    void TheQuestionGoesToTheDialogAsItIs()
    {
        const test::CTestApp app;
        const FileQuestion question = Question(u"x.csv"_s);
        QVERIFY(!AskSaveTarget(nullptr, question, "csv").has_value());
        QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{1});
        const test::Prompt& shown = app.m_prompts->m_shown.front();
        QCOMPARE(shown.kind, test::Prompt::Kind::SavePath);
        QCOMPARE(shown.question.title, question.title);
        QCOMPARE(shown.question.folder, question.folder);
        QCOMPARE(shown.question.name, question.name);
        QCOMPARE(shown.question.filters, question.filters);
    }

    void TheExtensionIsReplaced_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("target");
        QTest::newRow("right") << u"data.csv"_s << u"data.csv"_s;
        QTest::newRow("capitals stay") << u"data.CSV"_s << u"data.CSV"_s;
        QTest::newRow("other") << u"data.txt"_s << u"data.csv"_s;
        QTest::newRow("none") << u"data"_s << u"data.csv"_s;
        QTest::newRow("two") << u"data.2009.txt"_s << u"data.2009.csv"_s;
        QTest::newRow("beyond ASCII") << u"計測é.txt"_s << u"計測é.csv"_s;
    }

    void TheExtensionIsReplaced()
    {
        QFETCH(const QString, chosen);
        QFETCH(const QString, target);
        const test::CTestApp app;
        app.m_prompts->m_paths.push_back(In(chosen));
        const auto answer = AskSaveTarget(nullptr, Question(), "csv");
        QVERIFY(answer.has_value());
        QCOMPARE(answer->chosen, In(chosen));
        QCOMPARE(FromPath(answer->target), In(target));
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }

    void TheOverwriteQuestionIsAboutWhatWillBeWritten()
    {
        const test::CTestApp app;
        Touch(In(u"data.csv"_s));
        app.m_prompts->m_paths.push_back(In(u"data.txt"_s));
        app.m_prompts->m_answers.push_back(Answer::Yes);
        const auto answer = AskSaveTarget(nullptr, Question(), "csv");
        QVERIFY(answer.has_value());
        QCOMPARE(answer->chosen, In(u"data.txt"_s));
        QCOMPARE(FromPath(answer->target), In(u"data.csv"_s));
        QCOMPARE(
            app.m_prompts->Boxes(),
            QStringList(In(u"data.csv"_s) + u" already exists.\nDo you want to replace it?"_s));
        QCOMPARE(app.m_prompts->m_shown.back().boxKind, BoxKind::YesNo);
    }

    void AFileThatWillNotBeWrittenIsNotAskedAbout()
    {
        const test::CTestApp app;
        Touch(In(u"data.txt"_s));
        app.m_prompts->m_paths.push_back(In(u"data.txt"_s));
        QVERIFY(AskSaveTarget(nullptr, Question(), "csv").has_value());
        QCOMPARE(app.m_prompts->Boxes(), QStringList());
    }

    void NoAsksAgainForAPath()
    {
        const test::CTestApp app;
        Touch(In(u"data.csv"_s));
        for (const QString& name : {u"data.csv"_s, u"data"_s, u"other"_s})
            app.m_prompts->m_paths.push_back(In(name));
        app.m_prompts->m_answers = {Answer::No, Answer::No};
        const auto answer = AskSaveTarget(nullptr, Question(), "csv");
        QVERIFY(answer.has_value());
        QCOMPARE(FromPath(answer->target), In(u"other.csv"_s));
        QCOMPARE(app.m_prompts->Boxes().size(), 2);
        QVERIFY(app.m_prompts->m_paths.empty());
    }

    void AskedAgainTheDialogStandsWhereTheUserWas()
    {
        const test::CTestApp app;
        QVERIFY(QDir(m_folder->path()).mkdir(u"deep"_s));
        Touch(In(u"deep/data.csv"_s));
        app.m_prompts->m_paths = {In(u"deep/data.txt"_s), std::nullopt};
        app.m_prompts->m_answers = {Answer::No};
        QVERIFY(!AskSaveTarget(nullptr, Question(u"proposed.csv"_s), "csv").has_value());
        const FileQuestion& again = app.m_prompts->m_shown.back().question;
        QCOMPARE(again.folder, In(u"deep"_s));
        QCOMPARE(again.name, u"data.txt"_s);
        QCOMPARE(again.title, Question().title);
        QCOMPARE(again.filters, Question().filters);
    }

    void NoAndCancelGiveNothing()
    {
        const test::CTestApp app;
        Touch(In(u"data.csv"_s));
        app.m_prompts->m_paths = {In(u"data.csv"_s), std::nullopt};
        app.m_prompts->m_answers = {Answer::No};
        QVERIFY(!AskSaveTarget(nullptr, Question(), "csv").has_value());
        QCOMPARE(app.m_prompts->m_shown.size(), std::size_t{3});
    }

    void AWriteFailureNamesThePathAndTheReason()
    {
        QCOMPARE(WriteFailureText(u"/data/計測.csv"_s,
                                  std::make_error_code(std::errc::no_space_on_device)),
                 u"/data/計測.csv\nFailed to write.\nNo space left on device"_s);
        QCOMPARE(
            WriteFailureText(u"/100%s.csv"_s, std::make_error_code(std::errc::permission_denied)),
            u"/100%s.csv\nFailed to write.\nPermission denied"_s);
    }

    void PathsGoThereAndBack()
    {
        const QString path = u"/home/me/計測 é/100%.skd"_s;
        QCOMPARE(ToPath(path).string(), path.toStdString());
        QCOMPARE(FromPath(ToPath(path)), path);
    }

    // --- texts and the clipboard ---

    void LinesGoToTheClipboardAsOneText_data()
    {
        QTest::addColumn<QList<QByteArray>>("lines");
        QTest::addColumn<QString>("text");
        QTest::newRow("usual") << QList<QByteArray>{"Date/Time,X axis(G)", "2009/05/01 12.30,1.2 "}
                               << u"Date/Time,X axis(G)\r\n2009/05/01 12.30,1.2 \r\n"_s;
        QTest::newRow("form feed alone") << QList<QByteArray>{"a", "\f", "b"} << u"a\r\n\fb\r\n"_s;
        QTest::newRow("form feed with more")
            << QList<QByteArray>{"\fa", "\f\f"} << u"\fa\r\n\f\f\r\n"_s;
        QTest::newRow("empty line") << QList<QByteArray>{"", "a"} << u"\r\na\r\n"_s;
        QTest::newRow("code page") << QList<QByteArray>{"20\xB0 C"} << u"20° C\r\n"_s;
    }

    void LinesGoToTheClipboardAsOneText()
    {
        QFETCH(const QList<QByteArray>, lines);
        std::vector<std::string> bytes;
        for (const QByteArray& line : lines)
            bytes.push_back(line.toStdString());
        const test::CTestApp app;
        QApplication::clipboard()->setText(u"before"_s);
        QVERIFY(CopyLinesToClipboard(bytes));
        QTEST(QApplication::clipboard()->text(), "text");
    }

    void APictureGoesToTheClipboard()
    {
        const test::CTestApp app;
        QImage picture(3, 2, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(CopyPictureToClipboard(picture));
        QCOMPARE(QApplication::clipboard()->image(), picture);
    }

    void WithoutAPictureTheClipboardStays()
    {
        const test::CTestApp app;
        QApplication::clipboard()->setText(u"before"_s);
        QVERIFY(!CopyPictureToClipboard({}));
        QCOMPARE(QApplication::clipboard()->text(), u"before"_s);
    }

    void AClipboardThatRefusesIsTold()
    {
        const test::CTestApp app;
        QApplication::clipboard()->setText(u"before"_s);
        app.m_prompts->m_clipboardFails = true;
        QVERIFY(!CopyLinesToClipboard({"a"}));
        QVERIFY(!CopyPictureToClipboard(QImage(3, 2, QImage::Format_RGB32)));
        QCOMPARE(QApplication::clipboard()->text(), u"before"_s);
    }

    void TheDesktopsClipboardTakesWhatItIsGiven()
    {
        auto contents = std::make_unique<QMimeData>();
        contents->setText(u"a"_s);
        QVERIFY(m_desktop.PutOnClipboard(std::move(contents)));
        QCOMPARE(QApplication::clipboard()->text(), u"a"_s);
    }

    // --- colours ---

    void AColourIsChosenFromThePresentOneOn()
    {
        QColor first;
        QTimer::singleShot(0, qApp, [&first] {
            auto* const dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            first = dialog->currentColor();
            dialog->setCurrentColor(QColor(0x11, 0x22, 0x33));
            dialog->accept();
        });
        const auto colour = m_desktop.AskColour(nullptr, 0xC50C01);
        QCOMPARE(first, QColor(0x01, 0x0C, 0xC5));
        QVERIFY(colour.has_value());
        QCOMPARE(*colour, 0x332211U);
    }

    void AColourCanBeLeftAlone()
    {
        QTimer::singleShot(
            0, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        QVERIFY(!m_desktop.AskColour(nullptr, 0xC50C01).has_value());
    }

    void TextsOfTheDataCodePageGoThereAndBack()
    {
        QCOMPARE(FromDataText("Temp\xE9rature \x80"), u"Température €"_s);
        QCOMPARE(ToDataText(u"Température €"_s), "Temp\xE9rature \x80");
        QCOMPARE(ToDataText(u"計 x"_s), "? x");
        QCOMPARE(FromDataText("計"), u"計"_s);
        QCOMPARE(FromDataText(""), QString());
    }

    void CharactersWithoutShapeAreNotDrawn()
    {
        QCOMPARE(PrintableText(u"a\u0081\nb\u200Bc\U0001F4C8"_s), u"abc\U0001F4C8"_s);
        QCOMPARE(PrintableText(u"Max 2.0 G 計測"_s), u"Max 2.0 G 計測"_s);
        QCOMPARE(PrintableText(u"\x01\x02"_s), QString());
    }
};

QTEST_MAIN(CPromptsTest)
#include "PromptsTest.moc"
