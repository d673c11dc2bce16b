#include "controls/FloatEdit.h"

#include "app/SkeldonApp.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"

namespace skeldon {

CFloatEdit::CFloatEdit(QWidget* parent)
    : CNumberEdit(parent)
{
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
}

void CFloatEdit::SetRange(double a, double b, int decimals)
{
    static_cast<CFloatRule&>(*this) = CFloatRule(a, b, decimals);
}

void CFloatEdit::SetValue(double value)
{
    setText(QString::fromStdString(Format(value)));
}

bool CFloatEdit::GetValue(double& value)
{
    const FloatReading reading = Read(text().toStdString());
    value = reading.value;
    if (!reading.isValid)
        Complain(Message());
    return reading.isValid;
}

bool CFloatEdit::PassesCharacter(QChar character, const QString& before, const QString& after)
{
    const std::string text = (before + character + after).toStdString();
    const FloatVerdict verdict = CheckKey(character.unicode(), text);
    if (verdict == FloatVerdict::TooManyDecimals) {
        SetStatusText(FormatText(Text(StringId::DecimalsAllowed), {DecimalLimit()}));
        App().Prompts().Beep();
    }
    return verdict == FloatVerdict::Passes;
}

QString CFloatEdit::Message() const
{
    return RangeMessage(StringId::FloatRange, StringId::FloatRangeNamed,
                        QString::fromStdString(Format(m_dMin)),
                        QString::fromStdString(Format(m_dMax)));
}

} // namespace skeldon
