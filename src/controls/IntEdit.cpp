#include "controls/IntEdit.h"

#include "resources/StringTable.h"
#include "resources/TextFormat.h"

namespace skeldon {

CIntEdit::CIntEdit(QWidget* parent)
    : CNumberEdit(parent)
{
    setInputMethodHints(Qt::ImhDigitsOnly);
}

void CIntEdit::SetRange(std::uint32_t a, std::uint32_t b)
{
    static_cast<CIntRule&>(*this) = CIntRule(a, b);
    const QString present = text();
    setMaxLength(TextLimit());
    // What is cut off behind would be another number.
    if (text() != present)
        SetValue(Read(present.toStdString()).value);
}

bool CIntEdit::SetValue(std::uint32_t value)
{
    const std::uint32_t shown = Clamp(value);
    setText(QString::fromStdString(FormatInt(shown)));
    return shown == value;
}

bool CIntEdit::GetValue(std::uint32_t& value)
{
    const IntReading reading = Read(text().toStdString());
    value = reading.value;
    if (!reading.isValid)
        Complain(Message());
    return reading.isValid;
}

bool CIntEdit::PassesCharacter(QChar character, const QString& /*before*/, const QString& /*after*/)
{
    return PassesIntKey(character.unicode());
}

QString CIntEdit::Message() const
{
    // What "%d" makes of them.
    return RangeMessage(StringId::IntRange, StringId::IntRangeNamed,
                        static_cast<std::int32_t>(m_nMin), static_cast<std::int32_t>(m_nMax));
}

} // namespace skeldon
