#pragma once

#include <QString>

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <utility>
#include <variant>

namespace skeldon {

/// One value for a conversion of a pattern: a whole number, a floating point number or a text.
class CTextArgument
{
public:
    using Value = std::variant<std::int64_t, std::uint64_t, double, QString>;

    CTextArgument(std::signed_integral auto value)
        : m_value(std::int64_t{value})
    {}
    CTextArgument(std::unsigned_integral auto value)
        : m_value(std::uint64_t{value})
    {}
    CTextArgument(std::floating_point auto value)
        : m_value(static_cast<double>(value))
    {}
    CTextArgument(QString value)
        : m_value(std::move(value))
    {}
    CTextArgument(const char* utf8)
        : m_value(QString::fromUtf8(utf8))
    {}
    CTextArgument(bool) = delete;

    [[nodiscard]] const Value& Get() const { return m_value; }

private:
    Value m_value;
};

/// The text of a pattern with its conversions filled in, as printf does it in the C locale. Known
/// are d i u x X f c s and %%, with flags, width and precision; length letters are passed over.
/// The kinds must fit: d i u x X and c take whole numbers, f takes any number, s takes texts. A
/// conversion without a fitting argument gives nothing. A pattern that breaks off within a
/// conversion, and letters that are none of these, stand as they are; arguments left over are
/// dropped.
[[nodiscard]] QString FormatText(const QString& pattern,
                                 std::initializer_list<CTextArgument> arguments);

} // namespace skeldon
