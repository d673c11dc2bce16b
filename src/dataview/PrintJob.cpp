#include "dataview/PrintJob.h"

#include "app/SkeldonApp.h"
#include "app/WaitCursor.h"
#include "chart/view/ChartWnd.h"
#include "dataview/ListPage.h"
#include "dataview/MeasuredList.h"

#include <QFile>
#include <QPainter>
#include <QPrinter>

#include <algorithm>

namespace skeldon {

namespace {

/// Whether a PDF file is there to its end: a full disk shows nowhere else.
bool IsWholePdf(const QString& path)
{
    constexpr qint64 TailBytes = 16;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) &&
           file.seek(std::max(file.size() - TailBytes, qint64{0})) &&
           file.readAll().contains("%%EOF");
}

PrintPaper PaperOf(const QPrinter& printer)
{
    const QRect rect = printer.pageLayout().paintRectPixels(printer.resolution());
    return {printer.logicalDpiX(), printer.logicalDpiY(), rect.width(), rect.height()};
}

} // namespace

CPrintJob::CPrintJob(QWidget& view, const Source& source, CPrinters& printers)
    : m_view(view)
    , m_source(source)
    , m_printers(printers)
    , m_dialog(printers, &view)
{}

CPrintJob::~CPrintJob() = default;

void CPrintJob::Offer(const PrintSettings& settings, int count, const QString& pdfPath)
{
    m_dialog.m_settings = settings;
    m_dialog.m_lines = {1, std::max(count, 1)};
    m_dialog.m_pdfPath = pdfPath;
    m_dialog.OnInitDialog(count);
}

void CPrintJob::Run(PrintSettings& settings)
{
    if (!OnPreparePrinting(settings)) {
        m_dialog.m_printer.reset();
        return;
    }
    OnBeginPrinting();
    const Outcome outcome = PrintPages();
    m_dialog.m_printer.reset();
    OnEndPrinting();
    if (outcome == Outcome::Failed)
        Warn(StringId::PrintFailed);
}

bool CPrintJob::OnPreparePrinting(PrintSettings& settings)
{
    if (!App().Prompts().RunDialog(m_dialog) || !m_dialog.m_printer)
        return false;
    settings = m_settings = m_dialog.m_settings;
    m_lines = m_dialog.m_lines;
    QPrinter& printer = *m_dialog.m_printer;
    const NaturalSize natural = NaturalSizeOf(m_settings);
    // For service alone: copies come out in some order in any case.
    if (App().m_ctrlAtStart && m_dialog.m_copies > 1 && m_dialog.m_collate &&
        !m_printers.CanCollate(printer))
        Warn(StringId::CollateNotSupported);
    printer.setPageOrientation(m_settings.Form().horz != 0 ? QPageLayout::Landscape
                                                           : QPageLayout::Portrait);
    const auto plan = PlanPages(m_settings, PaperOf(printer), natural, m_lines);
    if (!plan) {
        Warn(StringId::PrintTooSmall);
        return false;
    }
    m_plan = *plan;
    return true;
}

NaturalSize CPrintJob::NaturalSizeOf(const PrintSettings& settings) const
{
    if (settings.IsChart()) {
        const QSize size = m_source.chart.GetNaturalSize();
        return {size.width(), size.height(), 0};
    }
    const ListPrintMetrics metrics = m_source.list.GetPrintMetrics();
    return {metrics.rowWidth, metrics.rowHeight, metrics.headerHeight};
}

void CPrintJob::OnBeginPrinting()
{
    App().Frame()->EnableSystemClose(false);
}

CPrintJob::Outcome CPrintJob::PrintPages()
{
    const CWaitCursor wait;
    QPrinter& printer = *m_dialog.m_printer;
    printer.setCreator(Text(StringId::AppName));
    const bool makesCopies = printer.supportsMultipleCopies();
    if (makesCopies) {
        printer.setCopyCount(m_dialog.m_copies);
        printer.setCollateCopies(m_dialog.m_collate);
    }
    const bool isPdf = !m_dialog.m_pdfPath.isEmpty();
    if (isPdf) {
        m_pdfPath = m_dialog.m_pdfPath;
        printer.setOutputFileName(m_pdfPath);
    }
    QPainter painter;
    if (!painter.begin(&printer))
        return Outcome::Failed;
    const int timesEach = makesCopies ? 1 : m_dialog.m_copies;
    for (int i = 0; i < m_plan.pageCount * timesEach; ++i) {
        if (i > 0 && !printer.newPage())
            return Outcome::Failed;
        if (!OnPrint(painter, i / timesEach + 1)) {
            printer.abort();
            painter.end();
            if (isPdf)
                QFile::remove(m_pdfPath);
            return Outcome::Ended;
        }
    }
    const bool isDone = painter.end() && printer.printerState() != QPrinter::Error;
    return isDone && (!isPdf || IsWholePdf(m_pdfPath)) ? Outcome::Printed : Outcome::Failed;
}

bool CPrintJob::OnPrint(QPainter& painter, int page)
{
    painter.save();
    painter.translate(m_plan.left, m_plan.top);
    painter.setClipRect(0, 0, m_plan.width, m_plan.height);
    painter.fillRect(0, 0, m_plan.width, m_plan.height, Qt::white);
    bool isDone = true;
    if (m_settings.IsChart())
        isDone = m_source.chart.PrintChart(painter, m_plan.drawWidth, m_plan.drawHeight);
    else
        m_source.list.PrintPage(
            painter, {m_plan.drawWidth, m_plan.drawHeight, LinesOfPage(m_plan, m_lines, page), page,
                      m_plan.pageCount, m_settings.mark != 0, m_settings.extract != 0});
    painter.restore();
    return isDone;
}

void CPrintJob::OnEndPrinting()
{
    App().Frame()->EnableSystemClose(true);
}

void CPrintJob::Warn(StringId text)
{
    App().Prompts().ShowBox(&m_view, BoxKind::Warning, Text(text));
}

} // namespace skeldon
