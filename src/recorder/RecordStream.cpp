#include "recorder/RecordStream.h"

#include "data/RecordFlags.h"

#include <array>
#include <cstdint>

namespace skeldon {

CRecordStream::CRecordStream(CByteStream& stream, const CRecordDecoder& decoder)
    : m_reader(stream)
    , m_decoder(decoder)
{}

bool CRecordStream::NextRecord(CMeasureRecord& record)
{
    using PlainLine = CRecordDecoder::PlainLine;
    const std::size_t full = m_decoder.LineDigits();
    const char* const text = m_reader.PlainLine(full);
    const PlainLine plain = text ? m_decoder.DecodePlainLine(text, record) : PlainLine::NotPlain;
    bool valid = plain == PlainLine::Valid;
    if (plain != PlainLine::NotPlain) {
        m_reader.SkipPlainLine(full);
    } else {
        std::array<char, MostLineDigits + 2> line{};
        const std::size_t length = m_reader.ReadLine(line.data(), m_decoder.MostDigits());
        if (length == 0)
            return false;
        valid = m_decoder.DecodeLine({line.data(), length}, record) && length >= full;
    }
    if (!valid)
        record.SetFlags(RecordFlag::Abnormal);
    return true;
}

void DecodeStream(std::string_view bytes, const CRecordDecoder& decoder, std::size_t most,
                  RecordArray& records)
{
    CMemoryStream stream(bytes);
    CRecordStream lines(stream, decoder);
    // As one record used for all lines: the flags of a line are those of the line before until
    // they are replaced. Decoded where it stays, since a copy would wait for the stores.
    std::uint16_t flags = 0;
    for (std::size_t i = 0; i < most; ++i) {
        CMeasureRecord& record = records.emplace_back(CalendarSeconds{0});
        record.m_flags = flags;
        if (!lines.NextRecord(record)) {
            records.pop_back();
            return;
        }
        flags = record.m_flags;
    }
}

} // namespace skeldon
