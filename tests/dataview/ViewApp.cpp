#include "ViewApp.h"

#include "app/FileChoice.h"
#include "controls/SkinButton.h"
#include "files/DataFile.h"
#include "resources/Translation.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

namespace skeldon::test {

CMeasureRecord LineAfter(int seconds, std::uint16_t flags)
{
    CMeasureRecord line{CalendarSeconds{0}};
    line.SetValues(FromLocalFields({2009, 5, 1, 12, 30, 15}) + seconds, 250, 1.234, 0.5, -0.25,
                   23.5, 45.75);
    line.SetFlags(flags);
    return line;
}

CMeasureData MeasuredLines(int count)
{
    CMeasureData measured;
    for (int i = 0; i < count; ++i)
        measured.AddRecord(LineAfter(i));
    measured.m_modelName = "KORVA QM-70";
    measured.m_release = "1.02";
    measured.SetSampling(4);
    measured.SetInterval(11);
    measured.m_threshold = 15;
    measured.m_hostNumber = 7;
    measured.m_hazard = 300;
    measured.m_endless = true;
    measured.m_fromFile = true;
    return measured;
}

CViewApp::CViewApp(const QString& language, const QString& settings)
    : m_test(language, settings)
{
    InstallTranslation(App().IsJapanese());
    m_view = std::make_unique<CDisplayView>();
    m_test.m_frame.m_window = m_view.get();
}

CViewApp::~CViewApp()
{
    m_test.m_frame.m_window = nullptr;
    m_view.reset();
    InstallTranslation(false);
}

void CViewApp::Show(QSize client)
{
    m_view->OnInitialUpdate();
    m_view->resize(client);
    m_view->show();
    m_view->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
}

void CViewApp::Settle()
{
    QCoreApplication::processEvents();
}

QString CViewApp::Path(const QString& name) const
{
    return m_test.m_folder.filePath(name);
}

QString CViewApp::FileOf(const CMeasureData& measured, const QString& name)
{
    const QString path = Path(name);
    if (WriteFile(measured, ToPath(path)))
        QTest::qFail("the data file was not written", __FILE__, __LINE__);
    return path;
}

void CViewApp::Open(const QString& path)
{
    Prompts().m_paths.push_back(path);
    m_view->OnCommand(CommandId::Open);
    Settle();
}

void CViewApp::OpenLines(int count)
{
    Open(FileOf(MeasuredLines(count), QStringLiteral("crate.skd")));
}

void CViewApp::Modify()
{
    CMeasureRecord line = m_view->Data().GetRecord(0);
    line.SetFlags(line.m_flags ^ RecordFlag::Marked);
    m_view->Data().SetRecord(0, line);
    m_view->RefreshControls();
}

void CViewApp::GetData(int count)
{
    const std::string port = Path(QStringLiteral("korva")).toStdString();
    m_recorder = std::make_unique<CBackgroundProgram>(
        SIMULATOR, std::vector<std::string>{"--lines", std::to_string(count), "--link", port});
    QVERIFY2(!m_recorder->Ready().empty(), "the simulator did not start");
    m_test.m_port = port;
    m_test.m_frame.m_connected = App().Link().FindRecorderPort();
    m_view->OnCommand(CommandId::GetData);
    Settle();
}

void CViewApp::Click(DataViewButton button)
{
    QTest::mouseClick(&m_view->Button(button), Qt::LeftButton);
    Settle();
}

QString CViewApp::Cell(int row, ListColumn column)
{
    const QModelIndex index = List().model()->index(row, static_cast<int>(column));
    return List().model()->data(index, Qt::AccessibleTextRole).toString();
}

QImage CViewApp::Picture()
{
    return m_view->grab().toImage();
}

QByteArray BytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace skeldon::test
