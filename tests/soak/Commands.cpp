#include "Commands.h"

#include "AnyFault.h"
#include "Growth.h"
#include "SoakApp.h"
#include "SoakFiles.h"
#include "chart/view/ChartWnd.h"
#include "controls/SkinButton.h"
#include "dataview/MeasuredList.h"
#include "resources/StringTable.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

#include <iostream>
#include <optional>

namespace skeldon::soak {

namespace {

class CCommands
{
public:
    explicit CCommands(const SoakOptions& options)
        : m_soak(options, "commands")
        , m_random(options.seed)
        , m_recorder(m_clock, options.seed)
        , m_files(m_folder.path(), options.lines, m_random)
        , m_growth(options.judgesMemory)
    {}

    void Run()
    {
        constexpr int MarkEvery = 150;
        constexpr int SettleEvery = 3;
        while (m_soak.Next(m_soak.Options().steps)) {
            if (!m_app)
                StartProgram();
            DoAnything();
            // Sometimes the next comes before the last has been answered.
            if (m_random.Below(SettleEvery) != 0)
                CheckAtRest();
            if (m_soak.Step() % MarkEvery == 0)
                Mark();
        }
        CheckAtRest();
        m_app.reset();
        std::cout << "commands: " << m_soak.Step() << " steps, " << m_programs << " programs, "
                  << m_compared << " files compared; " << m_growth.Text() << std::endl;
        const std::string grown = m_growth.Judgement();
        m_soak.Check(grown.empty(), grown);
    }

private:
    [[nodiscard]] CMainFrame& Frame() { return m_app->Frame(); }
    [[nodiscard]] CDisplayView& View() { return m_app->View(); }

    void StartProgram()
    {
        const QString language =
            m_random.OneIn(2) ? QStringLiteral("Japanese") : QStringLiteral("English");
        QStringList words{m_random.OneIn(3) ? QStringLiteral("-setup")
                                            : QStringLiteral("-display")};
        if (m_random.OneIn(2))
            words << QStringLiteral("-mon");
        m_soak.Log("start " + (language + u' ' + words.join(u' ')).toStdString());
        m_app.emplace(m_folder.path(), language, m_clock, m_recorder, m_random);
        m_app->m_prompts->m_openPaths = m_files.ToOpen();
        m_app->m_prompts->m_savePaths = m_files.ToSave();
        m_app->m_prompts->m_tell = [this](const QString& what) {
            m_soak.Log("  " + what.toStdString());
        };
        m_app->m_user.m_stuck = [this](QWidget& window) {
            m_soak.Log("  stuck: " + std::string(window.metaObject()->className()));
            m_recorder.Pull(); // the dialog that waits for it can not be closed otherwise
        };
        ++m_programs;
        m_soak.Check(m_app->Start(words), "the program does not start");
        m_app->m_prompts->m_isLarge = false;
        OpenLarge();
    }

    /// The same state as after a start, whatever was done.
    void OpenLarge()
    {
        m_soak.Log("large file");
        m_soak.Check(m_app->Settle(), "something stays under way");
        if (!Frame().isVisible())
            return;
        CRandomPrompts& prompts = *m_app->m_prompts;
        prompts.m_next = m_files.Large();
        Frame().showNormal();
        Frame().resize(900, 700);
        Frame().SwitchView(ViewIndex::Display);
        View().Chart().CancelAreaSelection();
        m_soak.Check(m_app->Settle(), "something stays under way");
        View().OnCommand(CommandId::Open);
        prompts.m_next.reset();
        m_soak.Check(m_app->Settle(), "something stays under way");
        m_soak.Check(View().Data().GetSize() == static_cast<std::size_t>(m_soak.Options().lines),
                     "the large file is not loaded");
    }

    void Mark()
    {
        if (!m_app)
            return;
        OpenLarge();
        m_soak.Log(m_growth.Mark().Text());
    }

    void DoAnything()
    {
        m_app->m_prompts->m_isLarge = View().Data().GetSize() > 2000;
        const int kind = m_random.Below(20);
        if (kind < 8)
            GiveCommand();
        else if (kind < 12)
            m_app->m_user.Act(Frame(), Tell());
        else if (kind < 14)
            m_app->m_user.Act(View().Chart(), Tell());
        else if (kind < 16)
            m_app->m_user.Act(View().List(), Tell());
        else if (kind == 16)
            ChangeSize();
        else if (kind == 17)
            MoveCable();
        else if (kind == 18)
            SwitchOrTouch();
        else
            CompareWithFile();
    }

    [[nodiscard]] std::function<void(const QString&)> Tell()
    {
        return [this](const QString& what) { m_soak.Log(what.toStdString()); };
    }

    void GiveCommand()
    {
        const auto command =
            static_cast<CommandId>(m_random.Between(1, static_cast<int>(CommandId::Count) - 1));
        if (command == CommandId::Exit && !m_random.OneIn(10))
            return;
        m_soak.Log("command " + std::to_string(static_cast<int>(command)));
        Frame().OnCommand(command);
    }

    void ChangeSize()
    {
        const QSize size(m_random.Between(100, 2500), m_random.Between(100, 1600));
        const int kind = m_random.Below(6);
        m_soak.Log("size " + std::to_string(kind) + " " + std::to_string(size.width()) + "x" +
                   std::to_string(size.height()));
        if (kind == 0)
            Frame().showMaximized();
        else if (kind == 1)
            Frame().showMinimized();
        else if (kind == 2)
            Frame().showNormal();
        else
            Frame().resize(size);
    }

    void MoveCable()
    {
        if (m_recorder.IsPlugged() && m_random.OneIn(3)) {
            m_soak.Log("pull");
            m_recorder.Pull();
        } else {
            const int type = m_random.OneOf({OldestType, 1, 10, 50});
            const int lines = m_random.Below(3000);
            std::vector<std::string> faults;
            if (m_random.OneIn(2))
                faults.push_back(AnyFault(m_random, lines));
            m_soak.Log("plug " + std::to_string(type) + ", " + std::to_string(lines) + " lines " +
                       (faults.empty() ? "" : faults[0]));
            m_recorder.Replace(type, type != OldestType && m_random.OneIn(2),
                               static_cast<std::size_t>(lines));
            m_recorder.SetFaults(faults);
            m_recorder.Plug();
        }
        Frame().Poll().Tick();
    }

    void SwitchOrTouch()
    {
        if (m_random.OneIn(2)) {
            const ViewIndex view = m_random.OneOf({ViewIndex::Display, ViewIndex::Setup});
            m_soak.Log("view " + std::to_string(static_cast<int>(view)));
            if (Frame()
                    .StateOf(Frame().CurrentView() == ViewIndex::Display
                                 ? CommandId::ViewSetup
                                 : CommandId::ViewDataDisplay)
                    .isEnabled)
                Frame().SwitchView(view);
        } else if (View().CanOperate()) {
            // As if the lines were not those of the file any more.
            m_soak.Log("touch");
            View().Data().m_signature = 0;
            View().RefreshControls();
        }
    }

    /// What was saved is what is held.
    void CompareWithFile()
    {
        CheckAtRest();
        if (!m_app || !View().HasData() || !View().Data().SignatureUnchanged())
            return;
        const QString path = View().DataPath();
        if (path == Text(StringId::Unsaved) ||
            (View().Data().GetSize() > 2000 && !m_random.OneIn(10)))
            return;
        m_soak.Log("compare " + path.toStdString());
        const std::string difference = DifferenceTo(View().Data(), path);
        m_soak.Check(difference.empty(), path.toStdString() + " " + difference);
        ++m_compared;
    }

    void CheckAtRest()
    {
        if (!m_app)
            return;
        m_soak.Check(m_app->Settle(), "something stays under way");
        if (!Frame().isVisible()) {
            m_soak.Log("end");
            m_app.reset();
            return;
        }
        m_soak.Check(QGuiApplication::overrideCursor() == nullptr, "the wait cursor stays");
        m_soak.Check(!m_app->Program().m_link.m_busy, "the link stays busy");
        CheckButtons();
        CheckChart();
    }

    void CheckButtons()
    {
        const CDisplayView& view = View();
        const bool isSelecting = view.Button(DataViewButton::ZoomIn).IsPressed();
        m_soak.Check(isSelecting || view.CanOperate(), "the view stays busy");
        m_soak.Check(!view.HasData() || !view.Data().IsEmpty(), "no lines are data");
        m_soak.Check(!view.CanSave() || view.HasData(), "nothing can be saved");
        if (Frame().CurrentView() != ViewIndex::Display)
            return;
        const auto isInStep = [&](DataViewButton button, bool can) {
            return view.Button(button).isEnabled() == can;
        };
        m_soak.Check(isInStep(DataViewButton::Open, view.CanOperate()), "Open is out of step");
        m_soak.Check(isInStep(DataViewButton::Save, view.HasData()), "Save is out of step");
        m_soak.Check(isInStep(DataViewButton::Print, view.HasData()), "Print is out of step");
        m_soak.Check(isInStep(DataViewButton::GetData, view.CanGetData()),
                     "Get data is out of step");
        m_soak.Check(isSelecting || isInStep(DataViewButton::ZoomIn, view.CanZoomIn()),
                     "zooming in is out of step");
        m_soak.Check(isInStep(DataViewButton::ZoomOut, view.CanZoomOut()),
                     "zooming out is out of step");
    }

    void CheckChart()
    {
        const CDisplayView& view = View();
        const CChartModel& model = View().Chart().Model();
        const auto size = static_cast<int>(view.Data().GetSize());
        m_soak.Check(View().List().model()->rowCount() == size, "rows and lines differ");
        m_soak.Check(View().List().CurrentRow() < size, "the current row is behind the last");
        m_soak.Check(model.Count() <= size, "the chart has lines that there are not");
        if (model.m_drawn.IsEmpty())
            return;
        m_soak.Check(model.m_drawn.first >= 0 && model.m_drawn.last < model.Count(),
                     "lines are drawn that there are not");
        const CTimeWindow& window = model.m_window;
        m_soak.Check(window.m_viewStart <= window.m_viewEnd, "the window is empty");
        m_soak.Check(window.m_viewStart >= window.m_dataStart, "the window begins too early");
    }

    CSoak m_soak;
    CRandom m_random;
    QTemporaryDir m_folder;
    test::CVirtualClock m_clock;
    test::CVirtualRecorder m_recorder;
    CSoakFiles m_files;
    std::optional<CSoakApp> m_app;
    CGrowth m_growth;
    int m_programs = 0;
    int m_compared = 0;
};

} // namespace

void GiveCommands(const SoakOptions& options)
{
    CCommands(options).Run();
}

} // namespace skeldon::soak
