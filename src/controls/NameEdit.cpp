#include "controls/NameEdit.h"

#include "app/SkeldonApp.h"
#include "controls/NameRule.h"
#include "resources/StringTable.h"

#include <QValidator>

namespace skeldon {

namespace {

std::size_t CountForbiddenIn(const QString& text)
{
    return CountForbidden(
        {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())});
}

void Refuse()
{
    SetStatusText(Text(StringId::ProfileNameCharacters));
    App().Prompts().Beep();
}

} // namespace

/// Stands behind the key filter and sees every change of the text. Undoes one that would bring in
/// more forbidden characters than a name of an earlier time may hold already.
class CNameEdit::CGuard : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString& text, int& /*cursor*/) const override
    {
        if (CountForbiddenIn(text) <= m_allowed)
            return Acceptable;
        Refuse();
        return Invalid;
    }

    std::size_t m_allowed = 0;
};

CNameEdit::CNameEdit(QWidget* parent)
    : CFilteredEdit(parent)
    , m_guard(new CGuard(this))
{
    setValidator(m_guard);
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& name) { m_guard->m_allowed = CountForbiddenIn(name); });
}

void CNameEdit::SetName(const QString& name)
{
    m_guard->m_allowed = CountForbiddenIn(name);
    QLineEdit::setText(name);
}

bool CNameEdit::PassesCharacter(QChar character, const QString& /*before*/,
                                const QString& /*after*/)
{
    const bool passes = IsNameCharacter(character.unicode());
    if (passes)
        ResetStatus();
    else
        Refuse();
    return passes;
}

} // namespace skeldon
