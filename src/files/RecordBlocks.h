#pragma once

#include "data/MeasureData.h"
#include "files/RecordMachine.h"
#include "files/RecordText.h"
#include "files/platform/InputFile.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string_view>
#include <system_error>
#include <vector>

namespace skeldon {

/// What the record pass of a data file has gathered so far.
struct RecordTally
{
    std::size_t started = 0; ///< lines that begin a record, behind the Configuration
    std::size_t humidityFrom = ~std::size_t{0}; ///< index of the first record with humidity
};

/// Reads the records of a data file in blocks that end behind the end of a record, by two threads
/// where the file is large, and adds them to a data set in the order of the file. Memory beyond
/// the data set stays within a few blocks.
class CRecordBlocks
{
public:
    /// Reads from `offset` on, which lies between two records.
    CRecordBlocks(const CInputFile& file, std::uint64_t offset, bool withFlags, CMeasureData& data,
                  RecordTally& tally);

    /// Reads up to the end of the file, or up to a place where no record ends within a block: see
    /// `Offset`. Gives the failure of a read.
    [[nodiscard]] std::error_code Run();
    /// Up to where the file is read; still between two records.
    [[nodiscard]] std::uint64_t Offset() const { return m_offset; }

private:
    /// One thread's share: a piece of text and what was found in it.
    struct Block
    {
        std::unique_ptr<char[]> buffer;
        std::string_view text;
        std::uint64_t ticket = 0; ///< place in the order of the file
        std::vector<CMeasureRecord> records;
        std::size_t started = 0;
        std::size_t humidityFrom = ~std::size_t{0};
    };

    void Work();
    void WorkOn(Block& block);
    [[nodiscard]] bool TakeNext(Block& block);
    void Parse(Block& block, CRecordReader& reader, CRecordMachine& machine) const;
    void Deliver(const Block& block);
    void ReserveFor(const Block& block);
    void Stop(std::error_code error);

    const CInputFile& m_file;
    bool m_withFlags;
    CMeasureData& m_data;
    RecordTally& m_tally;

    std::mutex m_lock;
    std::condition_variable m_delivered;
    std::uint64_t m_offset;
    std::uint64_t m_nextTicket = 0;
    std::uint64_t m_nextDelivery = 0;
    bool m_stopped = false;
    std::error_code m_error;
};

} // namespace skeldon
