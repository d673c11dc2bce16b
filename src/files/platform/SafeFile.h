#pragma once

#include "base/platform/Descriptor.h"
#include "files/Output.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace skeldon {

/// A file that is written anew without ever costing the user what it held: before an existing
/// file is emptied its contents are kept beside it, under its name with ".bak" added, and they go
/// away only after the new contents are complete and on disk. The file itself stays the same one,
/// so that links, permissions and ownership survive.
///
/// A ".bak" that is there already was left by a save that failed. It is not touched until a save
/// succeeds; what the file holds now is then kept under the next free name (".bak1" and on).
/// Without a `Commit` the file stays as far as it was written, and what was kept stays too.
class CSafeFile final : public COutput
{
public:
    /// Opens or makes the file, keeps what it held and empties it. Fails before anything is
    /// changed where nothing can be kept.
    [[nodiscard]] std::error_code Open(const std::filesystem::path& path);
    [[nodiscard]] std::error_code Write(std::string_view bytes) override;
    /// Brings everything to disk and drops what was kept.
    [[nodiscard]] std::error_code Commit();

private:
    [[nodiscard]] std::error_code Keep();

    CDescriptor m_descriptor;
    bool m_isRegular = false;
    std::filesystem::path m_path;
};

} // namespace skeldon
