#pragma once

#include "app/View.h"
#include "chart/model/PrintSettings.h"
#include "data/MeasureData.h"
#include "dataview/ConditionSummary.h"
#include "dataview/DataViewLayout.h"

#include <array>
#include <filesystem>
#include <memory>

namespace skeldon {

class CChartWnd;
class CConnectionIcon;
class CListSplitter;
class CMeasuredList;
class CPrinters;
class CPrintJob;
class CProgressWindow;
class CSkinButton;
class CSummaryStrip;
struct ButtonForm;
enum class DispUnit;
enum class MeasureGraphCode;

/// The form on which one measured data set is read back, opened, studied, saved and exported. It
/// owns the data set; list and chart look at it.
class CDisplayView : public CView
{
    Q_OBJECT

public:
    explicit CDisplayView(QWidget* parent = nullptr);
    ~CDisplayView() override;

    void OnInitialUpdate() override;
    void OnCommand(CommandId command) override;
    [[nodiscard]] CommandState StateOf(CommandId command) const override;
    void OnUpdate(DocumentHint hint, int argument) override;
    [[nodiscard]] QSize SmallestSize() const override;

    // --- what can be done now ---

    /// Nothing is under way: no transfer, no filling of the list, no choice of an area.
    [[nodiscard]] bool CanOperate() const;
    [[nodiscard]] bool HasData() const;
    [[nodiscard]] bool CanSave() const;
    [[nodiscard]] bool CanGetData() const;
    [[nodiscard]] bool CanZoomIn() const;
    [[nodiscard]] bool CanZoomOut() const;
    [[nodiscard]] bool CanScaleUp() const;
    [[nodiscard]] bool CanScaleDown() const;

    [[nodiscard]] const CMeasureData& Data() const { return m_data; }
    /// The data set, for changes from outside; `RefreshControls` must follow.
    [[nodiscard]] CMeasureData& Data() { return m_data; }
    /// What the window's title shows: empty, a path, or the word for unsaved data.
    [[nodiscard]] QString DataPath() const { return m_strDataPath; }
    [[nodiscard]] QString Summary() const;
    [[nodiscard]] CMeasuredList& List() { return *m_list; }
    [[nodiscard]] CChartWnd& Chart() { return *m_chart; }
    [[nodiscard]] CSkinButton& Button(DataViewButton button) const;

    /// Prints on these from now on, in place of the desktop's printers.
    void SetPrinters(std::unique_ptr<CPrinters> printers);

    /// Brings title and buttons into line with what can be done now.
    void RefreshControls();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    enum class SaveOutcome
    {
        Saved,
        Cancelled,
        Failed,
    };

    // Layout.
    void MakeButtons();
    void SetUpButtons();
    void LayOut();
    void HoldBorder();
    void MoveSplitter(int border);
    [[nodiscard]] CDataViewLayout Layout() const;
    void ReadSettings();
    void ReadChartSettings();
    void WriteSettings();
    void ReadGeneralSettings();
    void ShowSummary(const ConditionSummary& summary);
    void PaintBands(QPainter& painter) const;
    void ShowPointer(bool isOnBar);

    // Commands.
    bool OnChartCommand(CommandId command);
    [[nodiscard]] CommandState StateAtRest(CommandId command) const;
    [[nodiscard]] CommandState DormantState(CommandId command) const;
    void ToggleSeries(const ButtonForm& series);
    void ToggleZoomIn();
    void SetDispUnit(DispUnit unit);
    void ChangeChartProperties();
    void LeaveForSetup();
    void Exit();
    void OnMeasureGraph(MeasureGraphCode code, int argument);
    void EndAreaSelection(int argument);

    // Files.
    void Open();
    void OpenPath(const QString& path);
    void OpenStartFile();
    bool LoadFile(const std::filesystem::path& path);
    void Save();
    SaveOutcome SaveAs();
    bool SaveTo(const std::filesystem::path& target);
    void ExportCsvFile();
    void CopyCsv();
    void CopyChart();
    void TellCopied(bool isCopied);
    [[nodiscard]] QString ProposedName() const;
    [[nodiscard]] QString FolderOf(const char* key) const;
    /// Setting of the folder in which files were opened or saved the last time.
    static constexpr const char* DataPathKey = "DataPath";

    // Paper.
    void OnFilePrint();
    [[nodiscard]] QString ProposedPdfPath(const QString& before) const;

    // The data set.
    [[nodiscard]] bool QuerySave();
    void ClearData();
    void AnalyseAndReport(bool repairYear);
    void Pump();
    void Warn(StringId text);

    // Get data and online recording.
    /// Saves and drops what is there. False where the user cancels or the recorder is gone: the
    /// data is still there then.
    [[nodiscard]] bool MakeRoomForTransfer();
    void GetData();
    void RecordOnline();
    void RunReadBack(int expected);
    void ReadBackLoop(CProgressWindow& window, int expected);

    bool m_bViewReady = false;
    bool m_bLayoutDone = false;
    bool m_bBusy = false;
    QString m_strDataPath;
    QString m_strStartFile;
    QString m_strUnsaved;
    int m_listBorder = CDataViewLayout::DefaultListBorder;
    bool m_isBorderRead = false; ///< and not yet held to the window
    bool m_isPointerOnBar = false;
    bool m_bDragging = false;
    int m_nDragOffset = 0;
    CMeasureData m_data;
    ExtractConditions m_extractCopy;
    bool m_bSaveInfo = true;
    PrintSettings m_printSettings;
    std::unique_ptr<CPrinters> m_printers; ///< none before the first print
    std::unique_ptr<CPrintJob> m_printJob; ///< likewise
    std::array<CSkinButton*, static_cast<std::size_t>(DataViewButton::Count)> m_buttons{};
    CConnectionIcon* m_connection;
    CMeasuredList* m_list;
    CListSplitter* m_splitter;
    CChartWnd* m_chart;
    CSummaryStrip* m_summary;
};

} // namespace skeldon
