#pragma once

#include "app/platform/LockFile.h"
#include "app/platform/SharedBlock.h"

#include <cstdint>
#include <optional>
#include <string>

namespace skeldon {

/// The block by which another program of the family finds this one's window and holds back its
/// look for the recorder. Where the system has no such block, nothing happens and nobody holds.
class CSharedLink
{
public:
    static constexpr const char* BlockName = "brennick-works SKELDON Sharing Momory";
    static constexpr const char* MutexName = "brennick-works SKELDON Sharing MutexKey";

    /// Another name than the usual ones is for tests.
    explicit CSharedLink(const std::string& blockName = BlockName,
                         const std::string& mutexName = MutexName);

    /// Tells the handle of the main window, 0 for none.
    void SetWindowHandle(std::uint32_t value);
    /// The flag by which the other program asks to be alone with the recorder, 0 for not. Nothing
    /// where the other program is using the block at this moment. A flag whose owner is gone is
    /// cleared.
    [[nodiscard]] std::optional<std::uint32_t> GetHoldFlag();

private:
    enum Field
    {
        Window = 0,
        Hold = 2,
    };

    void LockWithPatience();

    CLockFile m_mutex;
    std::optional<CSharedBlock> m_block;
};

} // namespace skeldon
