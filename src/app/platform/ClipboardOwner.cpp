#include "app/platform/ClipboardOwner.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QGuiApplication>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <poll.h>
#include <string_view>
#include <xcb/xcb.h>

namespace skeldon {

namespace {

/// A program that works answers in a few milliseconds, a busy one within this.
constexpr int AnswerMs = 500;

struct Disconnect
{
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
struct Free
{
    void operator()(void* reply) const { std::free(reply); }
};

/// A connection of its own to the X server: what arrives on the toolkit's is the toolkit's.
class CAsker
{
public:
    CAsker()
        : m_connection(xcb_connect(nullptr, nullptr))
    {}

    [[nodiscard]] bool IsAnswered(std::string_view selection)
    {
        if (xcb_connection_has_error(m_connection.get()) != 0)
            return true;
        const xcb_atom_t atom = Atom(selection);
        const std::unique_ptr<xcb_get_selection_owner_reply_t, Free> owner(
            xcb_get_selection_owner_reply(
                m_connection.get(), xcb_get_selection_owner(m_connection.get(), atom), nullptr));
        if (!owner || owner->owner == XCB_NONE)
            return true;
        Ask(atom);
        return WaitForAnswer();
    }

private:
    [[nodiscard]] xcb_atom_t Atom(std::string_view name)
    {
        const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(xcb_intern_atom_reply(
            m_connection.get(),
            xcb_intern_atom(m_connection.get(), 0, static_cast<std::uint16_t>(name.size()),
                            name.data()),
            nullptr));
        return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }

    /// Asks the owner what it could give.
    void Ask(xcb_atom_t selection)
    {
        xcb_connection_t* const connection = m_connection.get();
        const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
        const xcb_window_t window = xcb_generate_id(connection);
        xcb_create_window(connection, 0, window, screen->root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_convert_selection(connection, window, selection, Atom("TARGETS"),
                              Atom("SKELDON_TARGETS"), XCB_CURRENT_TIME);
        xcb_flush(connection);
    }

    [[nodiscard]] bool WaitForAnswer()
    {
        constexpr unsigned TypeMask = 0x7F; // the highest bit tells who sent it
        QDeadlineTimer deadline(AnswerMs);
        while (true) {
            while (const std::unique_ptr<xcb_generic_event_t, Free> event{
                xcb_poll_for_event(m_connection.get())}) {
                if ((event->response_type & TypeMask) == XCB_SELECTION_NOTIFY)
                    return true;
            }
            const auto left = static_cast<int>(std::max<qint64>(deadline.remainingTime(), 0));
            pollfd descriptor{xcb_get_file_descriptor(m_connection.get()), POLLIN, 0};
            if (left == 0 || poll(&descriptor, 1, left) < 0 ||
                xcb_connection_has_error(m_connection.get()) != 0)
                return false;
        }
    }

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
};

} // namespace

bool DoesClipboardAnswer(ClipboardKind kind)
{
    const bool isSelected = kind == ClipboardKind::Selected;
    const QClipboard* const clipboard = QGuiApplication::clipboard();
    if (QGuiApplication::platformName() != QLatin1String("xcb") ||
        (isSelected ? clipboard->ownsSelection() : clipboard->ownsClipboard()))
        return true;
    return CAsker().IsAnswered(isSelected ? "PRIMARY" : "CLIPBOARD");
}

} // namespace skeldon
