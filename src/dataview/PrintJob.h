#pragma once

#include "chart/model/PagePlan.h"
#include "chart/view/DisplayPrintDialog.h"
#include "chart/view/Printers.h"
#include "resources/StringTable.h"

#include <QString>

#include <memory>

class QPainter;
class QPrinter;
class QWidget;

namespace skeldon {

class CChartWnd;
class CMeasuredList;

/// Prints the chart, or the list, of the data view: asks, prepares once, prints page after page. Is
/// made for the first print and kept, since the dialog remembers the printer.
class CPrintJob
{
public:
    /// What is printed.
    struct Source
    {
        CChartWnd& chart;
        CMeasuredList& list;
    };

    /// Throws where memory does not suffice. `view` is the parent of the dialog and of messages.
    /// All of them must outlive the job.
    CPrintJob(QWidget& view, const Source& source, CPrinters& printers);
    ~CPrintJob();
    CPrintJob(const CPrintJob&) = delete;
    CPrintJob& operator=(const CPrintJob&) = delete;

    /// Makes the dialog ready: all of `count` lines are offered, and `pdfPath` where no printer is
    /// installed. Throws where memory does not suffice.
    void Offer(const PrintSettings& settings, int count, const QString& pdfPath);
    /// Asks and prints. `settings` are those of the dialog after its OK.
    void Run(PrintSettings& settings);

    /// The PDF file printed last; empty for none.
    [[nodiscard]] QString PdfPath() const { return m_pdfPath; }

private:
    bool OnPreparePrinting(PrintSettings& settings);
    void OnBeginPrinting();
    /// False ends the printing without a message.
    bool OnPrint(QPainter& painter, int page);
    void OnEndPrinting();

    enum class Outcome
    {
        Printed,
        Ended, ///< for want of memory
        Failed,
    };
    Outcome PrintPages();
    void Warn(StringId text);
    [[nodiscard]] NaturalSize NaturalSizeOf(const PrintSettings& settings) const;

    QWidget& m_view;
    Source m_source;
    CPrinters& m_printers;
    CDisplayPrintDialog m_dialog;
    PrintSettings m_settings;
    PrintLines m_lines;
    QString m_pdfPath;
    PagePlan m_plan;
};

} // namespace skeldon
