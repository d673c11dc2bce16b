#pragma once

#include "dataview/DisplayView.h"
#include "dataview/MeasuredList.h"
#include "support/Process.h"
#include "support/window/TestApp.h"

#include <QImage>

#include <memory>
#include <vector>

namespace skeldon::test {

/// A line some seconds after 2009-05-01 12:30:15.250 local time.
[[nodiscard]] CMeasureRecord LineAfter(int seconds, std::uint16_t flags = 0);
/// So many lines, a second apart, of recorder 7 with all conditions known.
[[nodiscard]] CMeasureData MeasuredLines(int count);

/// The data view in a window of its own, with a frame that only listens.
class CViewApp
{
public:
    static constexpr QSize Smallest{670, 488};

    explicit CViewApp(const QString& language = QStringLiteral("English"),
                      const QString& settings = {});
    ~CViewApp();
    CViewApp(const CViewApp&) = delete;
    CViewApp& operator=(const CViewApp&) = delete;

    /// Start file, settings and the like are given before this.
    void Show(QSize client = Smallest);
    /// Handles what was posted.
    void Settle();

    [[nodiscard]] CDisplayView& View() { return *m_view; }
    [[nodiscard]] CMeasuredList& List() { return m_view->List(); }
    [[nodiscard]] CTestFrame& Frame() { return m_test.m_frame; }
    [[nodiscard]] CScriptedPrompts& Prompts() { return *m_test.m_prompts; }
    [[nodiscard]] CSettings& Settings() { return m_test.m_app->Settings(); }
    [[nodiscard]] QString Path(const QString& name) const;

    /// Writes a data file and gives its path.
    [[nodiscard]] QString FileOf(const CMeasureData& measured, const QString& name);
    /// Gives the command Open and picks `path`.
    void Open(const QString& path);
    /// Opens a file of so many lines.
    void OpenLines(int count);
    /// Changes a line as no command can, so that the data is no longer as it was stored.
    void Modify();
    /// Plays a recorder of so many lines and gives the command Get data.
    void GetData(int count);
    /// A real click on a button of the view.
    void Click(DataViewButton button);
    /// Whether a command can be given.
    [[nodiscard]] bool Can(CommandId command) const { return m_view->StateOf(command).isEnabled; }
    /// Text of a cell as a screen reader gets it.
    [[nodiscard]] QString Cell(int row, ListColumn column);
    /// The view as it is painted, at ratio 1.
    [[nodiscard]] QImage Picture();

    CTestApp m_test;

private:
    std::unique_ptr<CDisplayView> m_view;
    std::unique_ptr<CBackgroundProgram> m_recorder;
};

/// What a file holds.
[[nodiscard]] QByteArray BytesOf(const QString& path);
/// Puts bytes into a file.
void WriteBytes(const QString& path, const QByteArray& bytes);

} // namespace skeldon::test
