#include "PrintApp.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <new>

namespace skeldon::test {

namespace {

/// Tells of the pages behind the first.
class CTestPrinter final : public QPrinter
{
public:
    explicit CTestPrinter(const std::function<void()>& onNewPage)
        : QPrinter(QPrinter::HighResolution)
        , m_onNewPage(onNewPage)
    {}

    bool newPage() override
    {
        if (m_onNewPage)
            m_onNewPage();
        return QPrinter::newPage();
    }

private:
    const std::function<void()>& m_onNewPage;
};

QByteArray OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted() || !process.waitForFinished())
        QTest::qFail(qPrintable(program + QStringLiteral(" did not run")), __FILE__, __LINE__);
    return process.readAllStandardOutput();
}

} // namespace

QStringList CTestPrinters::Names()
{
    if (m_isMemoryShort)
        throw std::bad_alloc();
    return m_names;
}

std::unique_ptr<QPrinter> CTestPrinters::Open(const QString& name)
{
    m_opened << name;
    if (m_gone.contains(name))
        return nullptr;
    if (name.isEmpty())
        return CDesktopPrinters().Open({});
    auto printer = std::make_unique<CTestPrinter>(m_onNewPage);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(QDir(m_folder).filePath(name + QStringLiteral(".pdf")));
    printer->setPageSize(m_paper);
    printer->setPageMargins({Margin, Margin, Margin, Margin}, QPageLayout::Point);
    printer->setResolution(m_dpi);
    return printer;
}

CPrintApp::CPrintApp(const QString& language, const QString& settings)
    : CViewApp(language, settings)
{
    auto printers = std::make_unique<CTestPrinters>();
    m_printers = printers.get();
    m_printers->m_folder = m_test.m_folder.path();
    View().SetPrinters(std::move(printers));
    Show();
}

void CPrintApp::Print(const User& user)
{
    Prompts().m_dialogs.push_back([user](QDialog& dialog) {
        if (user)
            user(dynamic_cast<CDisplayPrintDialog&>(dialog));
        return true;
    });
    View().OnCommand(CommandId::Print);
    Settle();
}

void CPrintApp::PrintCancelled(const User& user)
{
    Prompts().m_dialogs.push_back([user](QDialog& dialog) {
        if (user)
            user(dynamic_cast<CDisplayPrintDialog&>(dialog));
        dialog.reject();
        return false;
    });
    View().OnCommand(CommandId::Print);
    Settle();
}

void CPrintApp::PrintWith(const PrintSettings& settings)
{
    Prompts().m_dialogs.push_back([settings](QDialog& dialog) {
        dialog.accept();
        dynamic_cast<CDisplayPrintDialog&>(dialog).m_settings = settings;
        return false;
    });
    View().OnCommand(CommandId::Print);
    Settle();
}

int PageCount(const QString& pdf)
{
    static const QRegularExpression pages(QStringLiteral("Pages: *(\\d+)"));
    const QString info = QString::fromUtf8(OutputOf(QStringLiteral("pdfinfo"), {pdf}));
    return pages.match(info).captured(1).toInt();
}

QImage Page(const QString& pdf, int dpi, int page)
{
    const QString number = QString::number(page);
    return QImage::fromData(
               OutputOf(QStringLiteral("pdftoppm"),
                        {QStringLiteral("-r"), QString::number(dpi), QStringLiteral("-f"), number,
                         QStringLiteral("-l"), number, pdf}))
        .convertToFormat(QImage::Format_RGB32);
}

std::vector<QImage> PicturesOf(const QString& pdf)
{
    const QTemporaryDir folder;
    (void)OutputOf(QStringLiteral("pdfimages"),
                   {QStringLiteral("-png"), pdf, folder.filePath(QStringLiteral("picture"))});
    std::vector<QImage> pictures;
    const QDir files(folder.path());
    for (const QString& name : files.entryList(QDir::Files, QDir::Name))
        pictures.push_back(QImage(files.filePath(name)).convertToFormat(QImage::Format_RGB32));
    return pictures;
}

QString PageText(const QString& pdf, int page)
{
    const QString number = QString::number(page);
    return QString::fromUtf8(OutputOf(QStringLiteral("pdftotext"),
                                      {QStringLiteral("-layout"), QStringLiteral("-f"), number,
                                       QStringLiteral("-l"), number, pdf, QStringLiteral("-")}));
}

} // namespace skeldon::test
