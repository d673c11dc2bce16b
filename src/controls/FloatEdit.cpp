#include "controls/FloatEdit.h"

#include "app/SkeldonApp.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"

namespace skeldon {

CFloatEdit::CFloatEdit(QWidget* parent)
    : CFilteredEdit(parent)
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
    const QString smallest = QString::fromStdString(Format(m_dMin));
    const QString largest = QString::fromStdString(Format(m_dMax));
    if (m_strName.isEmpty()) {
        const QString pattern = Text(StringId::FloatRange);
        return App().IsJapanese() ? FormatText(pattern, {smallest, largest})
                                  : FormatText(pattern, {largest, smallest});
    }
    const QString pattern = Text(StringId::FloatRangeNamed);
    return App().IsJapanese() ? FormatText(pattern, {m_strName, smallest, largest})
                              : FormatText(pattern, {largest, smallest, m_strName});
}

} // namespace skeldon
