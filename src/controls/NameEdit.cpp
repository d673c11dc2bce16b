#include "controls/NameEdit.h"

#include "app/SkeldonApp.h"
#include "controls/NameRule.h"
#include "resources/StringTable.h"

#include <QValidator>

#include <algorithm>

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
/// more forbidden characters than a name of an earlier time may hold already, or make a name longer
/// that is beyond the limit already.
class CNameEdit::CGuard : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString& text, int& /*cursor*/) const override
    {
        if (text.size() > m_longest)
            return Invalid;
        if (CountForbiddenIn(text) <= m_allowed)
            return Acceptable;
        Refuse();
        return Invalid;
    }

    void SetLimit(int characters)
    {
        m_limit = characters;
        m_longest = characters;
    }

    /// Lets the text stand as it is.
    void Allow(const QString& text)
    {
        m_allowed = CountForbiddenIn(text);
        m_longest = LongestFor(text);
    }

    /// How long a box must be that shows the text.
    [[nodiscard]] int LongestFor(const QString& text) const
    {
        return std::max(m_limit, static_cast<int>(text.size()));
    }

private:
    int m_limit = 0;
    int m_longest = 0;         ///< characters that the text may have
    std::size_t m_allowed = 0; ///< forbidden ones that it may hold
};

CNameEdit::CNameEdit(QWidget* parent)
    : CFilteredEdit(parent)
    , m_guard(new CGuard(this))
{
    m_guard->SetLimit(maxLength());
    setValidator(m_guard);
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& name) { m_guard->Allow(name); });
}

void CNameEdit::SetLimit(int characters)
{
    m_guard->SetLimit(characters);
    setMaxLength(characters);
}

void CNameEdit::SetName(const QString& name)
{
    // Cut short it would be another name. The text of before may be cut, which is a change.
    const int longest = m_guard->LongestFor(name);
    if (maxLength() != longest)
        setMaxLength(longest);
    m_guard->Allow(name);
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
