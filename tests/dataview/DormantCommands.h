#pragma once

#include "resources/Commands.h"

#include <set>

namespace skeldon::test {

/// All that can not be given by a menu, a button or a key, and does nothing.
inline const std::set<CommandId> DormantCommands{
    CommandId::AddMark,        CommandId::MarkExtracted,  CommandId::RemoveMark,
    CommandId::RemoveAllMarks, CommandId::DeleteLine,     CommandId::DeleteSelected,
    CommandId::DeleteIllegal,  CommandId::DisplayExtract, CommandId::DeleteMarked,
    CommandId::DeleteUnmarked, CommandId::AddMarkAtClick, CommandId::RemoveMarkAtClick,
    CommandId::PreviousMark,   CommandId::NextMark,       CommandId::Extract,
    CommandId::ShowChart,      CommandId::ShowList,       CommandId::View3D,
    CommandId::StartReal,      CommandId::StopReal,       CommandId::ConfigureReal};

} // namespace skeldon::test
