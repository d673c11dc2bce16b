#include "support/window/TestApp.h"

#include "app/Clipboard.h"

#include <utility>

namespace skeldon::test {

Answer CScriptedPrompts::ShowBox(QWidget* /*parent*/, BoxKind kind, const QString& text)
{
    Show({Prompt::Kind::Box, kind, text, {}});
    if (!m_answers.empty()) {
        const Answer answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }
    switch (kind) {
    case BoxKind::YesNo:
        return Answer::Yes;
    case BoxKind::NoYes:
        return Answer::No;
    case BoxKind::YesNoCancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

std::optional<QString> CScriptedPrompts::AskOpenPath(QWidget* /*parent*/,
                                                     const FileQuestion& question)
{
    Show({Prompt::Kind::OpenPath, {}, question.title, question});
    return NextPath();
}

std::optional<QString> CScriptedPrompts::AskSavePath(QWidget* /*parent*/,
                                                     const FileQuestion& question)
{
    Show({Prompt::Kind::SavePath, {}, question.title, question});
    return NextPath();
}

bool CScriptedPrompts::RunDialog(QDialog& dialog)
{
    if (m_dialogs.empty())
        return false;
    const auto user = std::move(m_dialogs.front());
    m_dialogs.pop_front();
    dialog.show();
    if (user(dialog))
        dialog.accept();
    const bool isAccepted = dialog.result() == QDialog::Accepted && !dialog.isVisible();
    dialog.hide();
    return isAccepted;
}

std::optional<ColourRef> CScriptedPrompts::AskColour(QWidget* /*parent*/, ColourRef present)
{
    Show({Prompt::Kind::Colour, {}, {}, {}, present});
    if (m_colours.empty())
        return std::nullopt;
    const std::optional<ColourRef> colour = m_colours.front();
    m_colours.pop_front();
    return colour;
}

bool CScriptedPrompts::PutOnClipboard(std::unique_ptr<QMimeData> contents)
{
    return !m_clipboardFails && GiveToClipboard(std::move(contents));
}

QStringList CScriptedPrompts::Boxes() const
{
    QStringList texts;
    for (const Prompt& prompt : m_shown) {
        if (prompt.kind == Prompt::Kind::Box)
            texts << prompt.text;
    }
    return texts;
}

std::optional<QString> CScriptedPrompts::NextPath()
{
    if (m_paths.empty())
        return std::nullopt;
    const std::optional<QString> path = m_paths.front();
    m_paths.pop_front();
    return path;
}

void CScriptedPrompts::Show(Prompt prompt)
{
    m_shown.push_back(std::move(prompt));
    if (m_whileShown)
        m_whileShown(m_shown.back());
}

std::optional<std::string> CTestCable::FindPort()
{
    return m_port.empty() ? std::nullopt : std::optional(m_port);
}

CTestApp::CTestApp(const QString& language, const QString& settings)
    : m_settingsFile(settings.isEmpty() ? m_folder.filePath(QStringLiteral("settings.ini"))
                                        : settings)
{
    AppServices services = TestServices(m_settingsFile, language, m_clock);
    m_prompts = static_cast<CScriptedPrompts*>(services.prompts.get());
    services.finder = std::make_unique<CTestCable>(m_port);
    m_app = std::make_unique<CSkeldonApp>(std::move(services));
    m_app->m_language = language;
    m_app->m_viewBaseColour = 0xD8E9EC;
    m_app->SetFrame(&m_frame);
}

CTestApp::~CTestApp() = default;

} // namespace skeldon::test
