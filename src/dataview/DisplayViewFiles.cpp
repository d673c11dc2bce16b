// The data view's work with files and the clipboard.
#include "dataview/DisplayView.h"

#include "app/Clipboard.h"
#include "app/CsvSettings.h"
#include "app/DataFolder.h"
#include "app/FileChoice.h"
#include "app/SkeldonApp.h"
#include "app/WaitCursor.h"
#include "base/Paths.h"
#include "chart/view/ChartWnd.h"
#include "files/CsvFile.h"
#include "files/DataFile.h"
#include "resources/FileFilters.h"
#include "resources/StringTable.h"
#include "setup/conditions/SaveFileName.h"

#include <QFileInfo>

#include <string>

namespace skeldon {

namespace {

constexpr const char* CsvPathKey = "CsvPath";

void KeepFolder(const char* key, const QString& chosen)
{
    App().Settings().WriteText(SystemSection, QLatin1String(key), QFileInfo(chosen).path());
}

} // namespace

QString CDisplayView::FolderOf(const char* key) const
{
    return WithoutSeparator(
        App().Settings().GetText(SystemSection, QLatin1String(key), DefaultDataFolder()));
}

QString CDisplayView::ProposedName() const
{
    return QString::fromStdString(MakeSaveFileName(0, m_data.m_hostNumber, {}));
}

void CDisplayView::Open()
{
    if (!CanOperate() || !QuerySave())
        return;
    const auto path =
        App().Prompts().AskOpenPath(this, {Text(StringId::TitleOpenData),
                                           FolderOf(DataPathKey),
                                           {},
                                           FileFilters(Text(StringId::FilterOpenData))});
    if (!path)
        return;
    KeepFolder(DataPathKey, *path);
    OpenPath(*path);
}

void CDisplayView::OpenStartFile()
{
    if (CanOperate() && QuerySave())
        OpenPath(m_strStartFile);
}

void CDisplayView::OpenPath(const QString& path)
{
    ClearData();
    if (LoadFile(ToPath(path))) {
        m_strDataPath = path;
    } else {
        Warn(StringId::FailedToRead);
    }
    RefreshControls();
}

bool CDisplayView::LoadFile(const std::filesystem::path& path)
{
    const CWaitCursor wait;
    m_data.m_signature = 0;
    SetStatusText(Text(StringId::LoadingFiles));
    Pump();
    const bool isRead = static_cast<bool>(ReadFile(m_data, path));
    ResetStatus();
    if (!isRead)
        return false;
    AnalyseAndReport(false);
    m_data.StoreSignature();
    m_extractCopy = m_data.m_extract;
    return true;
}

void CDisplayView::Save()
{
    if (!CanSave())
        return;
    SaveTo(WithExtension(ToPath(m_strDataPath), "skd"));
    RefreshControls();
}

CDisplayView::SaveOutcome CDisplayView::SaveAs()
{
    const auto target = AskSaveTarget(this,
                                      {Text(StringId::TitleSaveData), FolderOf(DataPathKey),
                                       ProposedName(), FileFilters(Text(StringId::FilterSaveData))},
                                      "skd");
    if (!target)
        return SaveOutcome::Cancelled;
    KeepFolder(DataPathKey, target->chosen);
    Pump();
    const bool isSaved = SaveTo(target->target);
    RefreshControls();
    return isSaved ? SaveOutcome::Saved : SaveOutcome::Failed;
}

bool CDisplayView::SaveTo(const std::filesystem::path& target)
{
    const CWaitCursor wait;
    if (const std::error_code error = WriteFile(m_data, target)) {
        // The path that is told is the one the data has had, not the one that failed.
        App().Prompts().ShowBox(this, BoxKind::Warning, WriteFailureText(m_strDataPath, error));
        return false;
    }
    m_data.m_fileName = target.filename().string();
    m_data.StoreSignature();
    m_strDataPath = FromPath(target);
    return true;
}

void CDisplayView::ExportCsvFile()
{
    if (!HasData())
        return;
    const QString name =
        QString::fromStdString(std::string(FileTitleOf(ProposedName().toStdString())) + ".csv");
    const auto target = AskSaveTarget(this,
                                      {Text(StringId::TitleExportCsv), FolderOf(CsvPathKey), name,
                                       FileFilters(Text(StringId::FilterCsv))},
                                      "csv");
    if (!target)
        return;
    KeepFolder(CsvPathKey, target->chosen);
    Pump();
    const CWaitCursor wait;
    const std::error_code error = ExportCsv(m_data, ToPath(target->chosen),
                                            ReadCsvOptions(App().Settings()), LocalCsvNames());
    if (error)
        App().Prompts().ShowBox(this, BoxKind::Warning, WriteFailureText(target->chosen, error));
    RefreshControls(); // what the pump let through saw the view busy
}

void CDisplayView::CopyCsv()
{
    if (m_data.IsEmpty())
        return;
    const CWaitCursor wait;
    const CsvOptions options = ReadCsvOptions(App().Settings());
    CCsvText text(options, m_data.m_hasHumidity);
    std::vector<std::string> lines;
    lines.reserve(m_data.GetSize() + 1);
    lines.push_back(text.Header(LocalCsvNames()));
    for (const CMeasureRecord& record : m_data.Records())
        lines.push_back(text.Row(record));
    TellCopied(CopyLinesToClipboard(lines));
}

void CDisplayView::CopyChart()
{
    TellCopied(m_chart->CopyToClipboard());
}

void CDisplayView::TellCopied(bool isCopied)
{
    App().Prompts().Beep();
    if (isCopied) {
        SetStatusText(Text(StringId::CopiedToClipboard));
        return;
    }
    ResetStatus();
    Warn(StringId::CannotCopy);
}

} // namespace skeldon
