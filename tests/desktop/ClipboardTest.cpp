#include "app/Clipboard.h"
#include "app/DesktopPrompts.h"
#include "app/PasteGuard.h"
#include "support/window/TestServices.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>
#include <QProcess>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>

using namespace skeldon;
using namespace Qt::StringLiterals;

namespace {

constexpr int WaitMs = 20'000;

// What this program does when a test starts it as another one. The words are its argument.
const QString ReadText = u"read-text"_s;
const QString ReadPicture = u"read-picture"_s;
const QString OwnAndHang = u"own-and-hang"_s;
const QString OwnAndAnswer = u"own-and-answer"_s;

void Tell(const QByteArray& text)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    std::fflush(stdout);
}

/// Does as another program would, by that program's own connection to the display.
int RunAsAnother(const QString& word)
{
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (word == OwnAndHang || word == OwnAndAnswer) {
        for (const QClipboard::Mode mode : {QClipboard::Clipboard, QClipboard::Selection})
            clipboard.setText(u"given"_s, mode);
        QCoreApplication::processEvents();
        Tell("owned\n");
        return word == OwnAndHang ? std::raise(SIGSTOP) : QCoreApplication::exec();
    }
    if (word == ReadText) {
        Tell(clipboard.text().toUtf8());
        return 0;
    }
    const QImage image = clipboard.image();
    const QColor pixel = image.isNull() ? QColor() : image.pixelColor(1, 0);
    Tell(u"%1 x %2 %3"_s.arg(image.width()).arg(image.height()).arg(pixel.name()).toUtf8());
    return 0;
}

/// This program as another one, which ends with the test at the latest.
class CAnother : public QProcess
{
public:
    explicit CAnother(const QString& word)
    {
        start(QCoreApplication::applicationFilePath(), {word});
    }
    ~CAnother() override
    {
        kill();
        waitForFinished();
    }
};

/// What another program reads from the clipboard. This one answers meanwhile.
QByteArray ReadByAnother(const QString& word)
{
    CAnother reader(word);
    if (!QTest::qWaitFor([&reader] { return reader.state() == QProcess::NotRunning; }, WaitMs))
        return "(not answered)";
    return reader.readAllStandardOutput();
}

/// Whether the program was stopped by its signal.
bool IsStopped(const QProcess& process)
{
    QFile state(u"/proc/%1/stat"_s.arg(process.processId()));
    return state.open(QIODevice::ReadOnly) && state.readAll().contains(") T ");
}

/// A virtual display for as long as this lives.
class CDisplay
{
public:
    CDisplay()
    {
        m_server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x1024x24"_s,
                                   u"-noreset"_s, u"-nolisten"_s, u"tcp"_s});
        while (!m_server.canReadLine() && m_server.waitForReadyRead(WaitMs)) {
        }
        m_number = m_server.readLine().trimmed();
    }
    CDisplay(const CDisplay&) = delete;
    CDisplay& operator=(const CDisplay&) = delete;
    ~CDisplay()
    {
        m_server.terminate();
        m_server.waitForFinished();
    }
    /// The display's number; empty without one.
    [[nodiscard]] QByteArray Number() const { return m_number; }

private:
    QProcess m_server;
    QByteArray m_number;
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(QLineEdit&)>)

/// The clipboard that programs share, on a display of its own.
class ClipboardTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        AppServices services =
            test::TestServices(m_folder->filePath(u"settings.ini"_s), u"English"_s, m_clock);
        services.prompts = std::make_unique<CDesktopPrompts>();
        m_app = std::make_unique<CSkeldonApp>(std::move(services));
        m_picture = QImage(300, 200, QImage::Format_RGB32);
        m_picture.fill(QColor(0x11, 0x77, 0xEE));
    }

    void cleanup() { m_app.reset(); }

    void OthersReadTheText()
    {
        QVERIFY(CopyLinesToClipboard({"Date/Time,X axis(G)", "20\xB0 C"}));
        const QByteArray expected = u"Date/Time,X axis(G)\r\n20° C\r\n"_s.toUtf8();
        QCOMPARE(ReadByAnother(ReadText), expected);
        QCOMPARE(ReadByAnother(ReadText), expected); // it stays there
    }

    void OthersReadThePicture()
    {
        QVERIFY(CopyPictureToClipboard(m_picture));
        QCOMPARE(ReadByAnother(ReadPicture), "300 x 200 #1177ee");
        QCOMPARE(ReadByAnother(ReadPicture), "300 x 200 #1177ee");
    }

    void TheNextCopyTakesThePlaceOfTheLast()
    {
        QVERIFY(CopyPictureToClipboard(m_picture));
        QVERIFY(CopyLinesToClipboard({"a"}));
        QCOMPARE(ReadByAnother(ReadPicture), "0 x 0 #000000");
        QCOMPARE(ReadByAnother(ReadText), "a\r\n");
    }

    void AnOwnerThatHangsHoldsNobodyUp_data()
    {
        QTest::addColumn<bool>("isPicture");
        QTest::newRow("text") << false;
        QTest::newRow("picture") << true;
    }

    void AnOwnerThatHangsHoldsNobodyUp()
    {
        QFETCH(const bool, isPicture);
        CAnother owner(OwnAndHang);
        QTRY_VERIFY_WITH_TIMEOUT(owner.canReadLine() && IsStopped(owner), WaitMs);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(isPicture ? CopyPictureToClipboard(m_picture) : CopyLinesToClipboard({"a"}));
        // Asking the owner for anything would take the toolkit five seconds to give up.
        QVERIFY2(timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(ReadByAnother(isPicture ? ReadPicture : ReadText),
                 isPicture ? QByteArray("300 x 200 #1177ee") : QByteArray("a\r\n"));
    }

    void AnOwnerThatHangsCanNotBePasted_data()
    {
        QTest::addColumn<std::function<void(QLineEdit&)>>("paste");
        const auto add = [](const char* name, std::function<void(QLineEdit&)> paste) {
            QTest::newRow(name) << std::move(paste);
        };
        add("Ctrl and V",
            [](QLineEdit& edit) { QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier); });
        add("Shift and Insert",
            [](QLineEdit& edit) { QTest::keyClick(&edit, Qt::Key_Insert, Qt::ShiftModifier); });
        add("selection by keys", [](QLineEdit& edit) {
            QTest::keyClick(&edit, Qt::Key_Insert, Qt::ControlModifier | Qt::ShiftModifier);
        });
        add("middle button", [](QLineEdit& edit) { QTest::mouseClick(&edit, Qt::MiddleButton); });
        add("menu", [](QLineEdit& edit) {
            QContextMenuEvent menu(QContextMenuEvent::Keyboard, {3, 3}, edit.mapToGlobal(QPoint()));
            QApplication::sendEvent(&edit, &menu);
        });
    }

    void AnOwnerThatHangsCanNotBePasted()
    {
        QFETCH(const std::function<void(QLineEdit&)>, paste);
        CAnother owner(OwnAndHang);
        QTRY_VERIFY_WITH_TIMEOUT(owner.canReadLine() && IsStopped(owner), WaitMs);
        CPasteGuard guard;
        qApp->installEventFilter(&guard);
        QLineEdit edit(u"kept"_s);
        edit.show();
        QElapsedTimer timer;
        timer.start();
        paste(edit);
        // The toolkit alone would give up after 15 seconds.
        QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(edit.text(), u"kept"_s);
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
        // Other keys go on.
        QTest::keyClick(&edit, Qt::Key_X);
        QCOMPARE(edit.text(), u"keptx"_s);
    }

    void FieldsWithAnEditInsideAreGuardedToo()
    {
        CAnother owner(OwnAndHang);
        QTRY_VERIFY_WITH_TIMEOUT(owner.canReadLine() && IsStopped(owner), WaitMs);
        CPasteGuard guard;
        qApp->installEventFilter(&guard);
        QComboBox combo;
        combo.setEditable(true);
        QSpinBox spin;
        QElapsedTimer timer;
        timer.start();
        for (QWidget* const field : {static_cast<QWidget*>(&combo), static_cast<QWidget*>(&spin)}) {
            field->show();
            QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
            QContextMenuEvent menu(QContextMenuEvent::Keyboard, {3, 3},
                                   field->mapToGlobal(QPoint()));
            QApplication::sendEvent(field, &menu);
            QCOMPARE(QApplication::activePopupWidget(), nullptr);
        }
        QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
    }

    void AnOwnerThatAnswersIsPasted()
    {
        CPasteGuard guard;
        qApp->installEventFilter(&guard);
        QLineEdit edit;
        edit.show();
        CAnother owner(OwnAndAnswer);
        QTRY_VERIFY_WITH_TIMEOUT(owner.canReadLine(), WaitMs);
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(edit.text(), u"given"_s);
        QTest::mouseClick(&edit, Qt::MiddleButton);
        QCOMPARE(edit.text().count(u"given"_s), 2);
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, {3, 3}, edit.mapToGlobal(QPoint()));
        QApplication::sendEvent(&edit, &menu);
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QApplication::activePopupWidget()->close();
    }

    void WhatThisProgramCopiedIsPasted()
    {
        CPasteGuard guard;
        qApp->installEventFilter(&guard);
        QVERIFY(CopyLinesToClipboard({"own"}));
        QLineEdit edit;
        edit.show();
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
        QVERIFY(edit.text().startsWith(u"own"_s));
    }

private:
    CSystemClock m_clock;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CSkeldonApp> m_app;
    QImage m_picture;
};

int main(int argc, char** argv)
{
    const QString word = argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (QStringList{ReadText, ReadPicture, OwnAndHang, OwnAndAnswer}.contains(word)) {
        const QGuiApplication application(argc, argv);
        return RunAsAnother(word);
    }
    const CDisplay display;
    if (display.Number().isEmpty())
        qFatal("no virtual display");
    qputenv("DISPLAY", ':' + display.Number());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application(argc, argv);
    ClipboardTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ClipboardTest.moc"
