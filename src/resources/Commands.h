#pragma once

namespace skeldon {

/// Every command that a menu, a button or a key may give.
enum class CommandId
{
    None,

    // Both views, served by the main window.
    Configuration,
    Help,
    OnlineSupport,
    About,
    Monitor,

    // Both views, served by the one that is shown.
    Exit,

    // Data view.
    Open,
    Save,
    SaveAs,
    ExportCsv,
    Print,
    GetData,
    OnlineRecording,
    OnlineConfiguration,
    ShowX,
    ShowY,
    ShowZ,
    ShowResultant,
    ShowTemperature,
    ShowHumidity,
    BarChart,
    SelectArea, ///< the button ZmIn
    HorizontalInflate,
    HorizontalDeflate, ///< also the button ZmOut
    DisplayAllArea,
    VerticalInflate,
    VerticalDeflate,
    DisplayInCenter,
    CopyChart,
    ChartProperties,
    UnitG,
    UnitMs2,
    UnitGal,
    ViewSetup,

    // Measured list; no menu that opens holds them.
    AddMark,
    MarkExtracted,
    RemoveMark,
    RemoveAllMarks,
    DeleteLine,
    DeleteSelected,
    DeleteIllegal,
    CopyCsv,
    DisplayExtract,

    // Without an entry and without action.
    DeleteMarked,
    DeleteUnmarked,
    AddMarkAtClick,
    RemoveMarkAtClick,
    PreviousMark,
    NextMark,
    Extract,
    ShowChart,
    ShowList,
    View3D,
    StartReal,
    StopReal,
    ConfigureReal,

    // Setup view.
    AddProfile,
    UpdateProfile,
    DeleteProfile,
    Receive,
    StartPrompt,
    StartReserved,
    ConditionChange,
    ConditionRestore,
    Wizard,
    ChangeScanningLevel,
    ViewProfile,
    ViewTemplate,
    ViewDataDisplay,

    // Setup view, without an entry and without action.
    Calibrate,
    CalibrateWizard,
    AdjustTemperatureCold,
    AdjustTemperatureHot,
    AutomaticOperation,

    // Keys that neither view serves.
    Copy,
    Cut,
    Paste,
    Undo,
    NextPane,
    PreviousPane,

    Count,
};

} // namespace skeldon
