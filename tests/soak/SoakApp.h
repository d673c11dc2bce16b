#pragma once

#include "RandomPrompts.h"
#include "app/SkeldonApp.h"
#include "dataview/DisplayView.h"
#include "dataview/MainFrame.h"
#include "dataview/RecorderPoll.h"
#include "support/recorder/VirtualRecorder.h"

#include <QStringList>

#include <memory>

namespace skeldon::soak {

/// The whole program in one process, with a virtual recorder on its cable and a random user before
/// its screen.
class CSoakApp
{
public:
    /// `folder` holds the settings over programs. All must outlive it.
    CSoakApp(const QString& folder, const QString& language, test::CVirtualClock& clock,
             test::CVirtualRecorder& recorder, CRandom& random);
    ~CSoakApp();
    CSoakApp(const CSoakApp&) = delete;
    CSoakApp& operator=(const CSoakApp&) = delete;

    [[nodiscard]] bool Start(const QStringList& words);
    [[nodiscard]] CMainFrame& Frame() { return *m_frame; }
    [[nodiscard]] CDisplayView& View() { return m_frame->DisplayView(); }
    [[nodiscard]] CSkeldonApp& Program() { return *m_app; }
    /// Waits until nothing is under way; false if that does not come.
    [[nodiscard]] bool Settle();

    CRandomUser m_user;
    CRandomPrompts* m_prompts = nullptr;

private:
    const QString m_folder;
    std::unique_ptr<CSkeldonApp> m_app;
    std::unique_ptr<CMainFrame> m_frame;
};

} // namespace skeldon::soak
