// Any text as a list of extract conditions: what was read has known channels only, and its text
// form reads as the same list.
#include "Check.h"
#include "data/ExtractConditions.h"
#include "data/RecordFlags.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace skeldon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const std::string_view text(reinterpret_cast<const char*>(bytes), count);
    const ExtractConditions first = ExtractConditionsFromString(text);
    const std::string written = ExtractConditionsToString(first);
    const ExtractConditions second = ExtractConditionsFromString(written);
    FUZZ_CHECK(first.size() == second.size());
    FUZZ_CHECK(ExtractConditionsToString(second) == written);
    return 0;
}
