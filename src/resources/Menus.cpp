#include "resources/Menus.h"

#include <array>
#include <utility>

namespace skeldon {

namespace {

MenuEntry Entry(StringId text, CommandId command)
{
    return {MenuEntryKind::Command, text, command, {}};
}

MenuEntry SubMenu(StringId text, Menu entries)
{
    return {MenuEntryKind::SubMenu, text, CommandId::None, std::move(entries)};
}

MenuEntry Separator()
{
    return {};
}

MenuEntry DataFileMenu()
{
    return SubMenu(StringId::MenuFile,
                   {Entry(StringId::MenuFileOpen, CommandId::Open),
                    Entry(StringId::MenuFileSaveAs, CommandId::SaveAs),
                    Entry(StringId::MenuFileExportCsv, CommandId::ExportCsv), Separator(),
                    Entry(StringId::MenuFilePrint, CommandId::Print), Separator(),
                    Entry(StringId::MenuFileConfiguration, CommandId::Configuration), Separator(),
                    Entry(StringId::MenuFileExit, CommandId::Exit)});
}

MenuEntry DataMeasureMenu()
{
    return SubMenu(
        StringId::MenuMeasure,
        {Entry(StringId::MenuMeasureGetData, CommandId::GetData), Separator(),
         Entry(StringId::MenuMeasureOnline, CommandId::OnlineRecording),
         Entry(StringId::MenuMeasureOnlineConfiguration, CommandId::OnlineConfiguration)});
}

MenuEntry SeriesMenu()
{
    return SubMenu(StringId::MenuChartView,
                   {Entry(StringId::MenuChartViewX, CommandId::ShowX),
                    Entry(StringId::MenuChartViewY, CommandId::ShowY),
                    Entry(StringId::MenuChartViewZ, CommandId::ShowZ),
                    Entry(StringId::MenuChartViewResultant, CommandId::ShowResultant),
                    Entry(StringId::MenuChartViewTemperature, CommandId::ShowTemperature),
                    Entry(StringId::MenuChartViewHumidity, CommandId::ShowHumidity)});
}

MenuEntry ChartMenu(bool japanese)
{
    const auto allArea = japanese ? CommandId::DisplayAllArea : CommandId::ViewSetup;
    const auto inCenter = japanese ? CommandId::DisplayInCenter : CommandId::Monitor;
    return SubMenu(
        StringId::MenuChart,
        {SeriesMenu(), Entry(StringId::MenuChartBar, CommandId::BarChart),
         SubMenu(StringId::MenuChartHorizontal,
                 {Entry(StringId::MenuChartHorizontalInflate, CommandId::HorizontalInflate),
                  Entry(StringId::MenuChartHorizontalDeflate, CommandId::HorizontalDeflate),
                  Entry(StringId::MenuChartDisplayAllArea, allArea)}),
         SubMenu(StringId::MenuChartVertical,
                 {Entry(StringId::MenuChartVerticalInflate, CommandId::VerticalInflate),
                  Entry(StringId::MenuChartVerticalDeflate, CommandId::VerticalDeflate),
                  Entry(StringId::MenuChartDisplayInCenter, inCenter)}),
         Separator(), Entry(StringId::MenuChartCopy, CommandId::CopyChart),
         Entry(StringId::MenuChartProperty, CommandId::ChartProperties)});
}

MenuEntry DataViewViewMenu()
{
    return SubMenu(
        StringId::MenuView,
        {SubMenu(StringId::MenuViewUnit, {Entry(StringId::MenuViewUnitG, CommandId::UnitG),
                                          Entry(StringId::MenuViewUnitMs2, CommandId::UnitMs2),
                                          Entry(StringId::MenuViewUnitGal, CommandId::UnitGal)}),
         Separator(), Entry(StringId::MenuViewSetup, CommandId::ViewSetup),
         Entry(StringId::MenuViewMonitor, CommandId::Monitor)});
}

MenuEntry HelpMenu()
{
    return SubMenu(StringId::MenuHelp,
                   {Entry(StringId::MenuHelpHelp, CommandId::Help),
                    Entry(StringId::MenuHelpAbout, CommandId::About), Separator(),
                    Entry(StringId::MenuHelpSupport, CommandId::OnlineSupport)});
}

MenuEntry SetupFileMenu()
{
    return SubMenu(StringId::MenuFile,
                   {Entry(StringId::MenuFileConfiguration, CommandId::Configuration), Separator(),
                    Entry(StringId::MenuFileExit, CommandId::Exit)});
}

MenuEntry SetupEditMenu()
{
    return SubMenu(StringId::MenuEdit, {Entry(StringId::MenuEditAdd, CommandId::AddProfile),
                                        Entry(StringId::MenuEditUpdate, CommandId::UpdateProfile),
                                        Entry(StringId::MenuEditDelete, CommandId::DeleteProfile),
                                        Entry(StringId::MenuEditReceive, CommandId::Receive)});
}

MenuEntry SetupMeasureMenu()
{
    return SubMenu(
        StringId::MenuMeasure,
        {Entry(StringId::MenuMeasureStartPrompt, CommandId::StartPrompt),
         Entry(StringId::MenuMeasureStartReserved, CommandId::StartReserved), Separator(),
         SubMenu(StringId::MenuMeasureCondition,
                 {Entry(StringId::MenuMeasureConditionChange, CommandId::ConditionChange),
                  Entry(StringId::MenuMeasureConditionRestore, CommandId::ConditionRestore)}),
         Entry(StringId::MenuMeasureWizard, CommandId::Wizard), Separator(),
         Entry(StringId::MenuMeasureScanningLevel, CommandId::ChangeScanningLevel)});
}

MenuEntry SetupViewViewMenu()
{
    return SubMenu(StringId::MenuView,
                   {Entry(StringId::MenuViewProfile, CommandId::ViewProfile),
                    Entry(StringId::MenuViewTemplate, CommandId::ViewTemplate), Separator(),
                    Entry(StringId::MenuViewDataDisplay, CommandId::ViewDataDisplay),
                    Entry(StringId::MenuViewMonitor, CommandId::Monitor)});
}

} // namespace

Menu DataViewMenu(bool japanese)
{
    return {DataFileMenu(), DataMeasureMenu(), ChartMenu(japanese), DataViewViewMenu(), HelpMenu()};
}

Menu SetupViewMenu()
{
    return {SetupFileMenu(), SetupEditMenu(), SetupMeasureMenu(), SetupViewViewMenu(), HelpMenu()};
}

Menu ListPopupMenu()
{
    return {Entry(StringId::MenuListAddMark, CommandId::AddMark),
            Entry(StringId::MenuListMarkExtracted, CommandId::MarkExtracted),
            Entry(StringId::MenuListRemoveMark, CommandId::RemoveMark),
            Entry(StringId::MenuListRemoveAllMark, CommandId::RemoveAllMarks),
            Separator(),
            Entry(StringId::MenuListDeleteOne, CommandId::DeleteLine),
            Entry(StringId::MenuListDeleteSelected, CommandId::DeleteSelected),
            Entry(StringId::MenuListDeleteIllegal, CommandId::DeleteIllegal),
            Separator(),
            Entry(StringId::MenuListCopyCsv, CommandId::CopyCsv),
            Separator(),
            Entry(StringId::MenuListDisplayExtract, CommandId::DisplayExtract)};
}

Menu ChartPopupMenu()
{
    return {Entry(StringId::MenuChartPopupCopy, CommandId::CopyChart)};
}

bool RemoveFirstEntry(Menu& menu, CommandId command)
{
    for (auto entry = menu.begin(); entry != menu.end(); ++entry) {
        if (entry->kind == MenuEntryKind::Command && entry->command == command) {
            menu.erase(entry);
            return true;
        }
        if (RemoveFirstEntry(entry->entries, command))
            return true;
    }
    return false;
}

std::span<const Accelerator> Accelerators()
{
    static constexpr std::array table{
        Accelerator{Qt::CTRL | Qt::Key_A, CommandId::SaveAs},
        Accelerator{Qt::CTRL | Qt::Key_C, CommandId::Copy},
        Accelerator{Qt::CTRL | Qt::Key_Insert, CommandId::Copy},
        Accelerator{Qt::CTRL | Qt::Key_D, CommandId::GetData},
        Accelerator{Qt::CTRL | Qt::Key_M, CommandId::StartPrompt},
        Accelerator{Qt::CTRL | Qt::Key_O, CommandId::Open},
        Accelerator{Qt::CTRL | Qt::Key_P, CommandId::Print},
        Accelerator{Qt::CTRL | Qt::Key_S, CommandId::Save},
        Accelerator{Qt::CTRL | Qt::Key_T, CommandId::ExportCsv},
        Accelerator{Qt::CTRL | Qt::Key_V, CommandId::Paste},
        Accelerator{Qt::SHIFT | Qt::Key_Insert, CommandId::Paste},
        Accelerator{Qt::CTRL | Qt::Key_W, CommandId::Wizard},
        Accelerator{Qt::CTRL | Qt::Key_X, CommandId::Cut},
        Accelerator{Qt::SHIFT | Qt::Key_Delete, CommandId::Cut},
        Accelerator{Qt::CTRL | Qt::Key_Z, CommandId::Undo},
        Accelerator{Qt::ALT | Qt::Key_Backspace, CommandId::Undo},
        Accelerator{Qt::Key_F6, CommandId::NextPane},
        Accelerator{Qt::SHIFT | Qt::Key_F6, CommandId::PreviousPane},
    };
    return table;
}

} // namespace skeldon
