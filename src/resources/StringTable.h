#pragma once

#include <QString>
#include <QtGlobal>

#include <span>

namespace skeldon {

/// Every text that a user sees. Behind an identifier stands what its conversions take, in the
/// order of the English text.
enum class StringId
{
    // Application and main frame.
    AppName,
    Ready,
    ConnectedToRecorder,
    PaneModel,      ///< model name, full scale in G
    PaneModelAlpha, ///< model name, full scale in G
    PaneRelease,
    ButtonOk,
    ButtonCancel,
    ButtonClose,
    AboutVersion,

    // Menus of both views.
    MenuFile,
    MenuFileOpen,
    MenuFileSaveAs,
    MenuFileExportCsv,
    MenuFilePrint,
    MenuFileConfiguration,
    MenuFileExit,
    MenuMeasure,
    MenuMeasureGetData,
    MenuMeasureOnline,
    MenuMeasureOnlineConfiguration,
    MenuChart,
    MenuChartView,
    MenuChartViewX,
    MenuChartViewY,
    MenuChartViewZ,
    MenuChartViewResultant,
    MenuChartViewTemperature,
    MenuChartViewHumidity,
    MenuChartBar,
    MenuChartHorizontal,
    MenuChartHorizontalInflate,
    MenuChartHorizontalDeflate,
    MenuChartDisplayAllArea,
    MenuChartVertical,
    MenuChartVerticalInflate,
    MenuChartVerticalDeflate,
    MenuChartDisplayInCenter,
    MenuChartCopy,
    MenuChartProperty,
    MenuView,
    MenuViewUnit,
    MenuViewUnitG,
    MenuViewUnitMs2,
    MenuViewUnitGal,
    MenuViewSetup,
    MenuViewMonitor,
    MenuHelp,
    MenuHelpHelp,
    MenuHelpAbout,
    MenuHelpSupport,
    MenuEdit,
    MenuEditAdd,
    MenuEditUpdate,
    MenuEditDelete,
    MenuEditReceive,
    MenuMeasureStartPrompt,
    MenuMeasureStartReserved,
    MenuMeasureCondition,
    MenuMeasureConditionChange,
    MenuMeasureConditionRestore,
    MenuMeasureWizard,
    MenuMeasureScanningLevel,
    MenuViewProfile,
    MenuViewTemplate,
    MenuViewDataDisplay,
    MenuListAddMark,
    MenuListMarkExtracted,
    MenuListRemoveMark,
    MenuListRemoveAllMark,
    MenuListDeleteOne,
    MenuListDeleteSelected,
    MenuListDeleteIllegal,
    MenuListCopyCsv,
    MenuChartPopupCopy,
    MenuListDisplayExtract,

    // Data view: buttons.
    ButtonOpen,
    ButtonSave,
    ButtonPrint,
    ButtonGetData,
    ButtonOnlineRecording,
    ButtonSetup,
    ButtonResultant,
    ButtonTemperature,
    ButtonHumidity,
    ButtonZoomIn,
    ButtonZoomOut,
    ButtonProperties,
    ButtonExtract,
    ButtonChart,
    ButtonList,
    Button3DView,
    ButtonPrev,
    ButtonNext,

    // Data view: operations.
    Unsaved,
    ChartTitleDefault,
    ZoomedToMaximum,
    AskSaveData,
    TitleOpenData,
    FilterOpenData,
    FailedToRead,
    LoadingFiles,
    ErrorInDateTime,
    ErrorInTemperature,
    ErrorInHumidity,
    FailedToWrite, ///< path
    TitleSaveData,
    FilterSaveData,
    CannotConnect,
    FailedToGetData,
    NoMeasuredData,
    DoNotSeparate,
    OnlineRecordingError,

    // Data view: functions that this edition keeps by name only.
    PromptStartReal,
    PromptStopReal,
    PromptConfigureReal,
    CaptionReal,
    CaptionStart,
    CaptionReplay,
    AskStopReal,
    AskEndReal,
    StoppingReal,
    StopMeasuring,
    PromptDeleteMarked,
    PromptDeleteUnmarked,
    PromptAddMarkAtClick,
    PromptRemoveMarkAtClick,
    PromptPreviousMark,
    PromptNextMark,
    PromptExtract,

    // Measured list, comma separated text and clipboard.
    ColumnDate,
    ColumnTime,
    ColumnX,
    ColumnY,
    ColumnZ,
    ColumnResultant,
    ColumnTemperature,
    ColumnHumidity,
    MakingLists,
    TitleExportCsv,
    FilterCsv,
    CsvDateTime,
    CsvDate,
    CsvTime,
    CsvX,
    CsvY,
    CsvZ,
    CsvResultant,
    CsvTemperature,
    CsvHumidity,
    CopiedToClipboard,
    CannotCopy,

    // Condition summary and the fields behind it.
    FieldRecords,
    FieldSampling,
    FieldInterval,
    FieldThreshold,
    FieldId,
    FieldHazard,
    FieldEndless,
    SummaryRecords,         ///< count
    SummarySampling,        ///< period in tenths of a millisecond
    SummarySamplingTrace,   ///< period in tenths of a millisecond
    SummaryIntervalSeconds, ///< seconds
    SummaryIntervalMinutes, ///< minutes
    SummaryThreshold,       ///< G
    SummaryId,              ///< host number
    SummaryHazard,          ///< G
    SummaryEndlessOn,

    // Validated edit boxes. The English texts take the upper bound first, the Japanese ones the
    // lower.
    DecimalsAllowed, ///< number of decimals
    IntRange,        ///< upper, lower bound; in Japanese lower, upper
    IntRangeNamed,   ///< upper, lower bound, name; in Japanese name, lower, upper
    FloatRange,      ///< upper, lower bound; in Japanese lower, upper
    FloatRangeNamed, ///< upper, lower bound, name; in Japanese name, lower, upper
    ProfileNameCharacters,

    // Chart.
    ChartNoMemory,
    MakingChart,
    ChartAxes,
    ChartUnitG,
    ChartUnitMs2,
    ChartUnitGal,
    ChartTemperature,
    ChartHumidity,
    ChartTime,
    ChartElapsedTime,

    // Chart properties.
    TitleChartProperties,
    ChartColor,
    ChartColorX,
    ChartColorY,
    ChartColorZ,
    ChartColorResultant,
    ChartColorTemperature,
    ChartColorHumidity,
    ChartColorDirection,
    ChartColorMark,
    ChartBrowse,
    ChartStandardColors,
    ChartScreenLines,
    ChartPrintLines,
    ChartThin,
    ChartThick,
    ChartTimeFormat,
    ChartFormatTime,
    ChartFormatElapsed,
    ChartPrintTitle,

    // Printing.
    PrintList,
    PrintChart,
    PrintRangeOfChart,
    PrintChartIsView,
    PrintRangeOfList,
    PrintRangeTemplate,
    PrintRangeLines, ///< number of lines
    PrintCollate,
    PrintPreview,
    PrintOptions,
    PrintAdvancedChart,
    PrintAdvancedList,
    PrintMargins, ///< millimetres
    PrintZoom,    ///< lowest, highest percent
    PrintNoMemory,
    CollateNotSupported,
    PrintTooSmall,
    PrintListHead, ///< file name, page, number of pages

    // Operations on the recorder.
    TitleCable,
    DisconnectCable,
    AskCalibrate,
    CouldNotCalibrate,
    AskAdjustTemperature,
    CouldNotAdjustTemperature,
    FailedToAdjustHostNumber,
    RemoveCable,
    DatesCorrected,

    // Monitor window.
    TitleMonitor,
    MonitorAlwaysWatched,
    MonitorMaxLines,
    MonitorSet,
    MonitorCalibrate,
    MonitorCommand,
    MonitorCopy,
    MonitorClear,

    // Online recording.
    OnlineSeconds,
    TitleOnlineConfiguration,
    OnlineMaximumTime,
    OnlineMaximumTimeUnit,
    OnlineListMinutes, ///< seconds, whole minutes
    OnlineMaximumName,

    // Fitting of conditions to the connected recorder.
    AskSamplingStandard, ///< the standard value
    StandardSampling,
    AskIntervalStandard, ///< the standard value
    StandardInterval,
    AskThresholdZero,
    AskThresholdApproximate, ///< G
    NoHazard,
    AskHazardCancel,
    AskHazardApproximate, ///< G
    NoEndless,
    NoBuzzer,
    AskIntervalDefault,
    AutomaticNeedsUpdate,
    SamplingOutOfRange,

    // Condition values in words.
    SamplingSeconds,
    SamplingTraceMode,
    IntervalMinutes,
    IntervalSeconds,
    StartPromptly,
    StartOnMagnet,
    StartStopOnMagnet,
    StartPauseOnMagnet,
    StartPauseOffMagnet,
    StartAfterSeconds, ///< seconds

    // Setup view: controls.
    ButtonPromptMeasuring,
    ButtonReservedMeasuring,
    LabelProfile,
    LabelTemplate,
    ButtonAdd,
    ButtonUpdate,
    ButtonDelete,
    ButtonReceive,
    ButtonProfile,
    ButtonTemplate,
    ButtonChange,
    ButtonRestore,
    ButtonWizard,
    PanelInterval,
    PanelThreshold,
    PanelDetectOver,
    PanelId,
    PanelStartOption,
    PanelHazard,
    PanelEndless,
    PanelBuzzer,
    PanelSampling,
    PanelRecords,
    ButtonDataDisplay,
    ButtonAutomatic,
    ButtonCalibrateWizard,

    // Setup view: operations.
    NoFurtherRegistration,
    AskRegisterAs, ///< the old number, the offered one
    CouldNotSaveProfile,
    AskDeleteProfile, ///< profile name
    FailedToReceive,
    StartOptionOutOfRange,
    BuzzerOnlyWithAlpha,
    AskChangeRange, ///< G
    RangeChanged,
    RangeChangeError,
    Connecting,

    // Start of a measurement.
    TitleReservedStart,
    StartOptionInvalid,
    StartDateTime,
    StartDate,
    StartTime,
    ReservationInPast,
    AskStart,              ///< a word, empty for none
    AskStartAfterClearing, ///< a word, empty for none
    AskStartAndClear,      ///< a word, empty for none
    StartQuestionTail,     ///< the start option in words
    CouldNotStart,

    // Setup wizard: heading and description of each page.
    WizardSampling,
    WizardSamplingText,
    WizardInterval,
    WizardIntervalText,
    WizardThreshold,
    WizardThresholdText,
    WizardDetectOver,
    WizardDetectOverText,
    WizardId,
    WizardIdText,
    WizardStartOption,
    WizardStartOptionText,
    WizardHazard,
    WizardHazardText,
    WizardEndless,
    WizardEndlessText,
    WizardBuzzer,
    WizardBuzzerText,

    // Settings sheet.
    TitleConfiguration,
    PageFile,
    FileWizard,
    FileInteractively,
    FileCardForm,
    FileConfirmSaved,
    FilePrompt,
    FileNotPrompt,
    FileProhibitUpdate,
    PageCsv,
    CsvPageResultant,
    CsvPageTemperature,
    CsvPageHumidity,
    CsvPageDateTime,
    CsvPageUnit,
    CsvPageUnitG,
    CsvPageUnitMs2,
    CsvPageUnitGal,
    CsvPageRavelin,
    PageDisplay,
    DisplayColor,
    DisplayClassic,
    DisplayWindowsXp,
    ColorAtNextStart,

    // Card form of the conditions.
    TitleConditionOption,
    OptionSampling,
    OptionInterval,
    OptionThreshold,
    OptionG,
    OptionDetectAbove,
    OptionEndless,
    OptionBuzzer,
    OptionId,
    OptionStartOption,
    OptionHazard,
    ThresholdsName,
    HostNumberName,
    StartOptionName,
    HostNumberInUse, ///< host number

    // Boxes and reasons of this system.
    AskReplaceFile,      ///< path
    CannotDeleteReason,  ///< path, the reason the system gives
    FailedToWriteReason, ///< path, the reason the system gives
    AboutCopyright,
    AboutTitle,

    // Names for what shows only a picture, for screen readers and as tool tips.
    NameButtonX,
    NameButtonY,
    NameButtonZ,
    NameButtonResultant,
    NameButtonTemperature,
    NameButtonHumidity,
    NameButtonZoomIn,
    NameButtonZoomOut,
    NameButtonProperties,
    NameConnection,
    NameRecorder,
    ValueConnected,
    ValueNotConnected,
    NameSummary,
    NameMeasuredList,
    NameChart,
    NameScaleGauge,
    NameSplitter,
    NameProgress,
    NameSpinUp,
    NameSpinDown,
    NameSpinReset,
    NameColourSample,

    // Values of the read-outs for screen readers.
    ValueBlank,
    ValueOff,
    ValueOn,
    ValueSampling,      ///< period in tenths of a millisecond
    ValueSamplingTrace, ///< period in tenths of a millisecond
    ValueSeconds,       ///< seconds
    ValueMinutes,       ///< minutes
    ValueAcceleration,  ///< G
    NameFieldUp,        ///< caption of the field
    NameFieldDown,      ///< caption of the field
    NameFieldToggle,    ///< caption of the field
    NameProfileList,
    NameTemplateList,
    NameProfileName,
    NameMonitorLines,
    NameCenterButton,
    NameAllAreaButton,
    NameBarButton,
    NameElapsed,
    NameTotal,
    ValueScaleStep,
    ValueNoLine,
    ValueLineAt,
    ValueOfSeries,
    ValueInG,
    ValueInMs2,
    ValueInGal,
    ValueInDegrees,
    ValueInPercent,
    OnlineWaiting,

    // Wizard and print dialog: what the system's own dialogs would bring.
    WizardBack,
    WizardNext,
    WizardFinish,
    TitlePrint,
    PrintPrinter,
    PrintPrinterName,
    PrintPrinterProperties,
    PrintCopies,
    PrintFirstLine,
    PrintLastLine,
    PrintToPdf,
    PrintFilterPdf,
    PrintFailed,

    Count,
};

/// One row of the table: the English text, and the identifier's name, which tells equal texts apart
/// for the translator.
struct StringEntry
{
    StringId id;
    struct
    {
        const char* english;
        const char* name;
    } text;
};

/// The text in the language of the application's translation, English without one. Empty for a
/// value that is no identifier.
[[nodiscard]] QString Text(StringId id);

/// The row of an identifier; null for a value that is no identifier.
[[nodiscard]] const StringEntry* FindEntry(StringId id);

/// The parts of the table, in the order of `StringId`.
[[nodiscard]] std::span<const std::span<const StringEntry>> StringTableParts();

} // namespace skeldon
