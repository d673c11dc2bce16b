#include "setup/conditions/IniFile.h"

#include "base/TextScan.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace skeldon {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view NewLineEnd = "\r\n";

bool IsBreak(char c)
{
    return c == '\r' || c == '\n';
}

/// The offset of the line's end, where its break stands if it has one.
std::size_t EndOfLine(std::string_view text, std::size_t begin)
{
    const char* at = text.data() + begin;
    const char* const end = text.data() + text.size();
    while (at != end && !IsBreak(*at))
        ++at;
    return static_cast<std::size_t>(at - text.data());
}

/// The offset behind the break that stands at `end`.
std::size_t BehindBreak(std::string_view text, std::size_t end)
{
    if (end == text.size())
        return end;
    return end + (text.substr(end).starts_with(NewLineEnd) ? NewLineEnd.size() : 1);
}

/// Whether the line is the head of a section; `name` is the section's name then.
bool IsHead(std::string_view line, std::string_view& name)
{
    line = TrimWhite(line);
    const std::size_t close = line.find(']');
    if (!line.starts_with('[') || close == std::string_view::npos)
        return false;
    name = TrimWhite(line.substr(1, close - 1));
    return true;
}

/// What a key written to a file may hold: nothing that would end its line, or its text.
std::string_view OneLine(std::string_view value)
{
    constexpr std::string_view Ends("\r\n\0", 3);
    return value.substr(0, value.find_first_of(Ends));
}

std::string_view WithoutQuotes(std::string_view value)
{
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
        return value.substr(1, value.size() - 2);
    return value;
}

/// The number at the front of `text`; beyond the range of `int` the nearest end of it.
int LeadingNumber(std::string_view text)
{
    constexpr std::int64_t Highest = std::numeric_limits<int>::max();
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    const std::int64_t limit = isNegative ? Highest + 1 : Highest;
    std::int64_t number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            break;
        number = std::min(number * 10 + (c - '0'), limit);
    }
    return static_cast<int>(isNegative ? -number : number);
}

} // namespace

CIniFile::CIniFile(std::string text)
    : m_text(std::move(text))
{
    if (!m_text.starts_with(ByteOrderMark))
        return;
    m_mark = ByteOrderMark;
    m_text.erase(0, ByteOrderMark.size());
}

std::optional<CIniFile::Span> CIniFile::FindSection(std::string_view name) const
{
    const std::string_view text = m_text;
    std::optional<Span> section;
    std::string_view found;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = EndOfLine(text, at);
        const std::size_t next = BehindBreak(text, end);
        if (IsHead(text.substr(at, end - at), found)) {
            if (section)
                return Span{section->begin, at};
            if (EqualNoCase(found, name))
                section = Span{next, text.size()};
        }
        at = next;
    }
    return section;
}

std::optional<CIniFile::Span> CIniFile::FindValue(const Span& section, std::string_view key) const
{
    const std::string_view text = m_text;
    for (std::size_t at = section.begin; at < section.end;) {
        const std::size_t end = EndOfLine(text, at);
        const std::string_view line = text.substr(at, end - at);
        const std::size_t equals = line.find('=');
        if (equals != std::string_view::npos && !TrimWhite(line).starts_with(';') &&
            EqualNoCase(TrimWhite(line.substr(0, equals)), key))
            return Span{at + equals + 1, end};
        at = BehindBreak(text, end);
    }
    return std::nullopt;
}

std::optional<std::string_view> CIniFile::Value(std::string_view section,
                                                std::string_view key) const
{
    const std::optional<Span> lines = FindSection(section);
    const std::optional<Span> value = lines ? FindValue(*lines, key) : std::nullopt;
    if (!value)
        return std::nullopt;
    const std::string_view text = m_text;
    return WithoutQuotes(TrimWhite(OneLine(text.substr(value->begin, value->end - value->begin))));
}

std::string CIniFile::GetString(std::string_view section, std::string_view key,
                                std::string_view fallback, std::size_t limit) const
{
    return std::string(Value(section, key).value_or(fallback).substr(0, limit));
}

int CIniFile::GetInt(std::string_view section, std::string_view key, int fallback) const
{
    const std::optional<std::string_view> value = Value(section, key);
    return value ? LeadingNumber(TrimWhite(*value)) : fallback;
}

bool CIniFile::GetFlag(std::string_view section, std::string_view key) const
{
    return EqualNoCase(Value(section, key).value_or("no"), "yes");
}

void CIniFile::Set(std::string_view section, std::string_view key, std::string_view value)
{
    value = OneLine(value);
    std::optional<Span> lines = FindSection(section);
    if (!lines) {
        InsertLine(m_text.size(), "[" + std::string(section) + "]");
        lines = Span{m_text.size(), m_text.size()};
    }
    if (const std::optional<Span> old = FindValue(*lines, key)) {
        m_text.replace(old->begin, old->end - old->begin, value);
        return;
    }
    // Blank lines set sections apart: they stay behind the new key.
    std::size_t behindLast = lines->begin;
    for (std::size_t at = lines->begin; at < lines->end;) {
        const std::size_t end = EndOfLine(m_text, at);
        const bool isBlank = TrimWhite(std::string_view(m_text).substr(at, end - at)).empty();
        at = BehindBreak(m_text, end);
        if (!isBlank)
            behindLast = at;
    }
    InsertLine(behindLast, std::string(key) + "=" + std::string(value));
}

void CIniFile::InsertLine(std::size_t at, std::string_view line)
{
    std::string whole;
    if (at > 0 && !IsBreak(m_text[at - 1]))
        whole = NewLineEnd;
    whole.append(line).append(NewLineEnd);
    m_text.insert(at, whole);
}

} // namespace skeldon
