#pragma once

#include "data/MeasureRecord.h"
#include "data/RecordArray.h"
#include "recorder/LineReader.h"
#include "recorder/RecordDecoder.h"

#include <cstddef>
#include <string_view>

namespace skeldon {

/// The records of a stream of record lines.
class CRecordStream
{
public:
    CRecordStream(CByteStream& stream, const CRecordDecoder& decoder);

    /// Reads one line into `record`. A line that is short is filled up with "0" digits. That, or a
    /// time out of range, replaces the record's flags by `RecordFlag::Abnormal`; nothing clears
    /// them, so a record that is used again keeps them. False, with `record` unchanged, at the end
    /// of the stream.
    bool NextRecord(CMeasureRecord& record);

private:
    CLineReader m_reader;
    CRecordDecoder m_decoder;
};

/// Adds the records of a stream in memory to `records`, at most `most` of them, as a read-back
/// does: with one record used for all lines.
void DecodeStream(std::string_view bytes, const CRecordDecoder& decoder, std::size_t most,
                  RecordArray& records);

} // namespace skeldon
