#include "RandomPrompts.h"

#include "chart/view/DisplayPrintDialog.h"

#include <QDialog>
#include <QTest>

namespace skeldon::soak {

CRandomPrompts::CRandomPrompts(CRandom& random, CRandomUser& user)
    : m_random(random)
    , m_user(user)
{}

Answer CRandomPrompts::ShowBox(QWidget* /*parent*/, BoxKind kind, const QString& text)
{
    m_tell(QStringLiteral("box ") + QString(text).replace(u'\n', u' '));
    if (m_next)
        return kind == BoxKind::Warning || kind == BoxKind::Information ? Answer::Ok : Answer::No;
    switch (kind) {
    case BoxKind::YesNo:
    case BoxKind::NoYes:
        return m_random.OneOf({Answer::Yes, Answer::No});
    case BoxKind::YesNoCancel:
        return m_random.OneOf({Answer::Yes, Answer::No, Answer::Cancel});
    default:
        return Answer::Ok;
    }
}

std::optional<QString> CRandomPrompts::AskOpenPath(QWidget* /*parent*/,
                                                   const FileQuestion& /*question*/)
{
    std::optional<QString> path = m_next;
    if (!path && !m_random.OneIn(5))
        path = m_random.AnyOf(m_openPaths);
    if (path)
        ++m_opened;
    m_tell(QStringLiteral("open ") + path.value_or(QString()));
    return path;
}

std::optional<QString> CRandomPrompts::AskSavePath(QWidget* /*parent*/,
                                                   const FileQuestion& /*question*/)
{
    std::optional<QString> path;
    if (!m_random.OneIn(5))
        path = m_random.AnyOf(m_savePaths);
    m_tell(QStringLiteral("save ") + path.value_or(QString()));
    return path;
}

bool CRandomPrompts::RunDialog(QDialog& dialog)
{
    m_tell(QStringLiteral("dialog ") + QString::fromLatin1(dialog.metaObject()->className()));
    dialog.show();
    for (int acts = m_random.Below(10); acts > 0 && dialog.isVisible(); --acts)
        m_user.Act(dialog, m_tell);
    const bool isLong = m_isLarge && qobject_cast<CDisplayPrintDialog*>(&dialog) != nullptr;
    if (dialog.isVisible() && m_random.OneIn(2))
        dialog.accept();
    const bool isAccepted = dialog.result() == QDialog::Accepted && !dialog.isVisible() && !isLong;
    dialog.hide();
    return isAccepted;
}

std::optional<ColourRef> CRandomPrompts::AskColour(QWidget* /*parent*/, ColourRef /*present*/)
{
    constexpr int Colours = 0x1000000;
    if (m_random.OneIn(3))
        return std::nullopt;
    return static_cast<ColourRef>(m_random.Below(Colours));
}

bool CRandomPrompts::PutOnClipboard(std::unique_ptr<QMimeData> contents)
{
    // The clipboard is the desktop's; what it is given is made, and dropped.
    for (const QString& format : contents->formats())
        (void)contents->data(format);
    return !m_random.OneIn(10);
}

} // namespace skeldon::soak
