#include "app/DesktopPrompts.h"

#include "app/Clipboard.h"
#include "resources/StringTable.h"

#include <QApplication>
#include <QColorDialog>
#include <QCursor>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>
#include <QUrl>

#include <utility>
#include <vector>

namespace skeldon {

namespace {

/// The usual pointer for as long as the user is asked, whatever work waits for the answer.
class CUsualCursor
{
public:
    CUsualCursor()
    {
        while (const QCursor* const cursor = QGuiApplication::overrideCursor()) {
            m_kept.push_back(*cursor);
            QGuiApplication::restoreOverrideCursor();
        }
    }
    CUsualCursor(const CUsualCursor&) = delete;
    CUsualCursor& operator=(const CUsualCursor&) = delete;
    ~CUsualCursor()
    {
        for (; !m_kept.empty(); m_kept.pop_back())
            QGuiApplication::setOverrideCursor(m_kept.back());
    }

private:
    std::vector<QCursor> m_kept;
};

struct BoxForm
{
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton preselected = QMessageBox::NoButton;
    QMessageBox::StandardButton escape = QMessageBox::NoButton;
};

BoxForm FormOf(BoxKind kind)
{
    switch (kind) {
    case BoxKind::Warning:
        return {QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
    case BoxKind::Information:
        return {QMessageBox::Information, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
    case BoxKind::YesNo:
        return {QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes,
                QMessageBox::No};
    case BoxKind::NoYes:
        return {QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No,
                QMessageBox::No};
    case BoxKind::YesNoCancel:
        return {QMessageBox::Question, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                QMessageBox::Cancel, QMessageBox::Cancel};
    }
    return {};
}

std::optional<QString> RunFileDialog(QFileDialog& dialog, const FileQuestion& question)
{
    const CUsualCursor usual;
    dialog.setDirectory(question.folder);
    dialog.setNameFilters(question.filters);
    if (!question.name.isEmpty())
        dialog.selectFile(question.name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

} // namespace

Answer CDesktopPrompts::ShowBox(QWidget* parent, BoxKind kind, const QString& text)
{
    const CUsualCursor usual;
    const BoxForm form = FormOf(kind);
    QMessageBox box(form.icon, Text(StringId::AppName), text, form.buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(form.preselected);
    box.setEscapeButton(form.escape);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Ok:
        return Answer::Ok;
    default:
        return Answer::Cancel;
    }
}

std::optional<QString> CDesktopPrompts::AskOpenPath(QWidget* parent, const FileQuestion& question)
{
    QFileDialog dialog(parent, question.title);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return RunFileDialog(dialog, question);
}

std::optional<QString> CDesktopPrompts::AskSavePath(QWidget* parent, const FileQuestion& question)
{
    QFileDialog dialog(parent, question.title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    return RunFileDialog(dialog, question);
}

bool CDesktopPrompts::RunDialog(QDialog& dialog)
{
    const CUsualCursor usual;
    return dialog.exec() == QDialog::Accepted;
}

std::optional<ColourRef> CDesktopPrompts::AskColour(QWidget* parent, ColourRef present)
{
    const CUsualCursor usual;
    QColorDialog dialog(ToColour(present), parent);
    dialog.setWindowTitle(Text(StringId::ChartColor));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return ToColourRef(dialog.selectedColor());
}

bool CDesktopPrompts::PutOnClipboard(std::unique_ptr<QMimeData> contents)
{
    return GiveToClipboard(std::move(contents));
}

void CDesktopPrompts::OpenPage(const QUrl& page)
{
    QDesktopServices::openUrl(page);
}

void CDesktopPrompts::Beep()
{
    QApplication::beep();
}

/// A desktop has one beep: two of them in a row are the other one.
void CDesktopPrompts::BeepFailure()
{
    constexpr int PauseMs = 200;
    QApplication::beep();
    QTimer::singleShot(PauseMs, qApp, &QApplication::beep);
}

} // namespace skeldon
