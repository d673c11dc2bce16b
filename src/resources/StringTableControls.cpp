#include "resources/StringTableParts.h"

namespace skeldon {

namespace {

constexpr StringEntry Entries[] = {
    // Validated edit boxes. The English texts take the upper bound first, the Japanese ones the
    // lower.
    {StringId::DecimalsAllowed,
     QT_TRANSLATE_NOOP3("StringTable", "Decimals are allowed to %d.", "DecimalsAllowed")},
    {StringId::IntRange,
     QT_TRANSLATE_NOOP3("StringTable", "Input the value of %d from %d", "IntRange")},
    {StringId::IntRangeNamed,
     QT_TRANSLATE_NOOP3("StringTable", "Input the value of %d from %d to %s", "IntRangeNamed")},
    {StringId::FloatRange,
     QT_TRANSLATE_NOOP3("StringTable", "Input the value of %s from %s.", "FloatRange")},
    {StringId::FloatRangeNamed,
     QT_TRANSLATE_NOOP3("StringTable", "Input the value of %s from %s to %s.", "FloatRangeNamed")},
    {StringId::ProfileNameCharacters,
     QT_TRANSLATE_NOOP3("StringTable", "Profile name cannot contain  \\\"*./:<>?\\|",
                        "ProfileNameCharacters")},
};

static_assert(FollowsEnum(Entries));

} // namespace

std::span<const StringEntry> ControlsTexts()
{
    return Entries;
}

} // namespace skeldon
