#include "base/platform/RuntimeNumbers.h"

#include <clocale>
#include <cstdlib>
#include <string>

#include <locale.h>

namespace skeldon {

double RuntimeDouble(std::string_view text)
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    const std::string copy(text);
    return strtod_l(copy.c_str(), nullptr, locale);
}

} // namespace skeldon
