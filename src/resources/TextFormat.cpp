#include "resources/TextFormat.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace skeldon {

namespace {

/// What stands between the percent sign and the letter of a conversion.
struct Conversion
{
    bool left = false;
    bool zeros = false;
    bool plus = false;
    bool blank = false;
    bool alternative = false;
    int width = 0;
    std::optional<int> precision;
    QChar letter;
    qsizetype length = 0; ///< characters behind the percent sign
};

/// No text of a window is longer; keeps a mistyped pattern from asking for gigabytes.
constexpr int WidthLimit = 4096;
/// printf's decimals of a double are exact; past these only zeros follow.
constexpr int DecimalsLimit = 1100;

class CPatternReader
{
public:
    explicit CPatternReader(QStringView text)
        : m_text(text)
    {}

    /// Nothing where the text ends within the conversion.
    std::optional<Conversion> Read()
    {
        Conversion conversion;
        while (ReadFlag(conversion))
            ++m_position;
        conversion.width = ReadNumber(WidthLimit);
        if (At() == u'.') {
            ++m_position;
            conversion.precision = ReadNumber(DecimalsLimit);
        }
        while (QStringView(u"hlLqjzt").contains(At()) && m_position < m_text.size())
            ++m_position;
        if (m_position >= m_text.size())
            return std::nullopt;
        conversion.letter = At();
        conversion.length = m_position + 1;
        return conversion;
    }

private:
    [[nodiscard]] QChar At() const
    {
        return m_position < m_text.size() ? m_text[m_position] : QChar();
    }

    bool ReadFlag(Conversion& conversion) const
    {
        switch (At().unicode()) {
        case u'-':
            return conversion.left = true;
        case u'0':
            return conversion.zeros = true;
        case u'+':
            return conversion.plus = true;
        case u' ':
            return conversion.blank = true;
        case u'#':
            return conversion.alternative = true;
        default:
            return false;
        }
    }

    int ReadNumber(int limit)
    {
        int number = 0;
        for (; At() >= u'0' && At() <= u'9'; ++m_position)
            number = std::min(number * 10 + (At().unicode() - u'0'), limit);
        return number;
    }

    QStringView m_text;
    qsizetype m_position = 0;
};

QString Padded(const Conversion& conversion, const QString& text)
{
    return conversion.left ? text.leftJustified(conversion.width)
                           : text.rightJustified(conversion.width);
}

/// Sign or prefix and digits brought to the width; zeros go between the two.
QString PaddedNumber(const Conversion& conversion, const QString& prefix, const QString& digits,
                     bool zeros)
{
    if (!zeros || conversion.left)
        return Padded(conversion, prefix + digits);
    const auto room = conversion.width - prefix.size();
    return prefix + digits.rightJustified(std::max<qsizetype>(room, 0), u'0');
}

QString Sign(const Conversion& conversion, bool negative)
{
    if (negative)
        return QStringLiteral("-");
    if (conversion.plus)
        return QStringLiteral("+");
    return conversion.blank ? QStringLiteral(" ") : QString();
}

QString Digits(const Conversion& conversion, std::uint64_t value, int base)
{
    auto digits = QString::number(static_cast<qulonglong>(value), base);
    if (conversion.precision == 0 && value == 0)
        digits.clear();
    return digits.rightJustified(conversion.precision.value_or(0), u'0');
}

struct Whole
{
    std::uint64_t magnitude; ///< without the sign
    std::uint64_t pattern;   ///< as an unsigned number of the value's own width
    bool negative;
};

std::optional<Whole> WholeOf(const CTextArgument::Value& value)
{
    if (const auto* number = std::get_if<std::uint64_t>(&value))
        return Whole{*number, *number, false};
    const auto* number = std::get_if<std::int64_t>(&value);
    if (number == nullptr)
        return std::nullopt;
    const auto bits = static_cast<std::uint64_t>(*number);
    const bool negative = *number < 0;
    const bool fitsInt = *number >= std::numeric_limits<std::int32_t>::min();
    return Whole{negative ? 0 - bits : bits,
                 negative && fitsInt ? static_cast<std::uint32_t>(*number) : bits, negative};
}

QString SignedText(const Conversion& conversion, const CTextArgument::Value& value)
{
    const auto number = WholeOf(value);
    if (!number)
        return {};
    return PaddedNumber(conversion, Sign(conversion, number->negative),
                        Digits(conversion, number->magnitude, 10),
                        conversion.zeros && !conversion.precision);
}

QString UnsignedText(const Conversion& conversion, const CTextArgument::Value& value, int base)
{
    const auto number = WholeOf(value);
    if (!number)
        return {};
    QString prefix;
    if (base == 16 && conversion.alternative && number->pattern != 0)
        prefix = QStringLiteral("0x");
    return PaddedNumber(conversion, prefix, Digits(conversion, number->pattern, base),
                        conversion.zeros && !conversion.precision);
}

std::optional<double> NumberOf(const CTextArgument::Value& value)
{
    if (const auto* number = std::get_if<double>(&value))
        return *number;
    if (const auto* number = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*number);
    if (const auto* number = std::get_if<std::uint64_t>(&value))
        return static_cast<double>(*number);
    return std::nullopt;
}

QString DecimalText(const Conversion& conversion, const CTextArgument::Value& value)
{
    const auto number = NumberOf(value);
    if (!number)
        return {};
    const auto sign = Sign(conversion, std::signbit(*number));
    if (!std::isfinite(*number)) {
        const auto word = std::isnan(*number) ? QStringLiteral("nan") : QStringLiteral("inf");
        return Padded(conversion, sign + word);
    }
    // The largest double has 309 digits before the point.
    std::array<char, DecimalsLimit + 320> text{};
    const auto decimals = conversion.precision.value_or(6);
    const auto end = std::to_chars(text.data(), text.data() + text.size(), std::abs(*number),
                                   std::chars_format::fixed, decimals);
    auto digits = QString::fromLatin1(text.data(), end.ptr - text.data());
    if (decimals == 0 && conversion.alternative)
        digits += u'.';
    return PaddedNumber(conversion, sign, digits, conversion.zeros);
}

QString CharacterText(const Conversion& conversion, const CTextArgument::Value& value)
{
    const auto number = WholeOf(value);
    if (!number || number->negative || number->magnitude > QChar::LastValidCodePoint)
        return {};
    const auto character = static_cast<char32_t>(number->magnitude);
    return Padded(conversion, QString::fromUcs4(&character, 1));
}

QString StringText(const Conversion& conversion, const CTextArgument::Value& value)
{
    const auto* text = std::get_if<QString>(&value);
    if (text == nullptr)
        return {};
    return Padded(conversion, conversion.precision ? text->left(*conversion.precision) : *text);
}

/// Nothing for a letter that is no conversion.
std::optional<QString> ConversionText(const Conversion& conversion,
                                      const CTextArgument::Value& value)
{
    switch (conversion.letter.unicode()) {
    case u'd':
    case u'i':
        return SignedText(conversion, value);
    case u'u':
        return UnsignedText(conversion, value, 10);
    case u'x':
        return UnsignedText(conversion, value, 16);
    case u'X':
        return UnsignedText(conversion, value, 16).toUpper();
    case u'f':
        return DecimalText(conversion, value);
    case u'c':
        return CharacterText(conversion, value);
    case u's':
        return StringText(conversion, value);
    default:
        return std::nullopt;
    }
}

} // namespace

QString FormatText(const QString& pattern, std::initializer_list<CTextArgument> arguments)
{
    // Stands in for a missing argument: fits no number, and is empty as a text.
    static const CTextArgument::Value none{QString()};
    QString text;
    const auto* next = arguments.begin();
    for (qsizetype i = 0; i < pattern.size();) {
        if (pattern[i] != u'%') {
            text += pattern[i++];
            continue;
        }
        const auto conversion = CPatternReader(QStringView(pattern).sliced(i + 1)).Read();
        if (!conversion) {
            text += QStringView(pattern).sliced(i);
            break;
        }
        const auto length = conversion->length + 1;
        if (conversion->letter == u'%') {
            text += u'%';
        } else {
            const bool given = next != arguments.end();
            const auto filled = ConversionText(*conversion, given ? next->Get() : none);
            if (!filled)
                text += QStringView(pattern).sliced(i, length);
            else if (given)
                text += *filled;
            if (filled && given)
                ++next;
        }
        i += length;
    }
    return text;
}

} // namespace skeldon
