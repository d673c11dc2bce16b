#include "base/platform/Descriptor.h"

namespace skeldon {

std::error_code WriteAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return LastSystemError();
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return {};
}

} // namespace skeldon
