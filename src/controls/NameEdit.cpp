#include "controls/NameEdit.h"

#include "app/SkeldonApp.h"
#include "controls/NameRule.h"
#include "resources/StringTable.h"

#include <QSet>
#include <QValidator>

#include <algorithm>

namespace skeldon {

namespace {

std::size_t CountForbiddenIn(const QString& text)
{
    return CountForbidden(
        {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())});
}

/// Whether `text` is what remains of `whole` when a stretch of it, or nothing, is cut out.
bool IsCutOf(const QString& whole, const QString& text)
{
    if (text.size() > whole.size())
        return false;
    const auto front = std::mismatch(text.begin(), text.end(), whole.begin()).first;
    const auto back = std::mismatch(text.rbegin(), text.rend(), whole.rbegin()).first;
    return (front - text.begin()) + (back - text.rbegin()) >= text.size();
}

void Refuse()
{
    SetStatusText(Text(StringId::ProfileNameCharacters));
    App().Prompts().Beep();
}

} // namespace

/// Stands behind the key filter and sees every change of the text. Undoes one that would bring in
/// more forbidden characters than a name of an earlier time may hold already, or anything new into
/// a name that is beyond the limit.
class CNameEdit::CGuard : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString& text, int& /*cursor*/) const override
    {
        if (m_passed.contains(text))
            return Acceptable;
        if (text.size() > m_limit && !IsCutOf(m_shown, text))
            return Invalid;
        if (CountForbiddenIn(text) <= m_allowed)
            return Acceptable;
        Refuse();
        return Invalid;
    }

    /// Lets the text stand as it is.
    void Allow(const QString& text)
    {
        m_allowed = CountForbiddenIn(text);
        m_shown = text;
        if (m_allowed > 0 || text.size() > m_limit)
            m_passed.insert(text);
    }

    /// Begins with another name.
    void Begin(const QString& name)
    {
        m_passed.clear();
        Allow(name);
    }

    int m_limit = 0;

private:
    std::size_t m_allowed = 0;
    QString m_shown;
    QSet<QString> m_passed; ///< stood there before and may come back by an undo
};

CNameEdit::CNameEdit(QWidget* parent)
    : CFilteredEdit(parent)
    , m_guard(new CGuard(this))
{
    m_guard->m_limit = maxLength();
    setValidator(m_guard);
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& name) { m_guard->Allow(name); });
}

void CNameEdit::SetLimit(int characters)
{
    m_guard->m_limit = characters;
    setMaxLength(characters);
}

void CNameEdit::SetName(const QString& name)
{
    // Cut short it would be another name. The text of before may be cut, which is a change.
    const int longest = std::max(m_guard->m_limit, static_cast<int>(name.size()));
    if (maxLength() != longest)
        setMaxLength(longest);
    m_guard->Begin(name);
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
