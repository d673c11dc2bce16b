// The data view on paper.
#include "dataview/DisplayView.h"

#include "chart/view/Printers.h"
#include "dataview/PrintJob.h"
#include "resources/StringTable.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <new>

namespace skeldon {

void CDisplayView::SetPrinters(std::unique_ptr<CPrinters> printers)
{
    m_printJob.reset();
    m_printers = std::move(printers);
}

/// Beside the PDF file before, else where data files lie; under the data's name.
QString CDisplayView::ProposedPdfPath(const QString& before) const
{
    const QString folder =
        before.isEmpty() ? FolderOf(DataPathKey) : QFileInfo(before).absolutePath();
    const QString name = m_strDataPath == m_strUnsaved ? ProposedName() : m_strDataPath;
    return QDir(folder).filePath(QFileInfo(name).completeBaseName() + QStringLiteral(".pdf"));
}

void CDisplayView::OnFilePrint()
{
    constexpr std::size_t MostLines = std::numeric_limits<int>::max();
    const auto count = static_cast<int>(std::min(m_data.GetSize(), MostLines));
    try {
        if (!m_printers)
            m_printers = std::make_unique<CDesktopPrinters>();
        if (!m_printJob)
            m_printJob = std::make_unique<CPrintJob>(*this, CPrintJob::Source{*m_chart, *m_list},
                                                     *m_printers);
        m_printJob->Offer(m_printSettings, count, ProposedPdfPath(m_printJob->PdfPath()));
    } catch (const std::bad_alloc&) {
        return Warn(StringId::PrintNoMemory);
    }
    m_printJob->Run(m_printSettings);
    QMetaObject::invokeMethod(this, &CDisplayView::RefreshControls, Qt::QueuedConnection);
}

} // namespace skeldon
