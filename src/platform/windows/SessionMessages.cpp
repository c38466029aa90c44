#include "SessionMessages.h"

#include "MessageWindow.h"

#include <wtsapi32.h>

namespace {

const UINT_PTR retryTimer = 1;
const UINT retryMs = 5000;

class SessionMessageWindow : public SessionMessages
{
public:
    explicit SessionMessageWindow(const Handler &handler)
        : m_handler(handler)
        , m_window([this](UINT message, WPARAM word, LPARAM) { onMessage(message, word); })
    {
        registerWindow();
    }
    ~SessionMessageWindow() override
    {
        if (m_window.handle())
            WTSUnRegisterSessionNotification(m_window.handle());
    }

private:
    /// Refused while the service of the sessions still starts, as this program may with the
    /// session.
    void registerWindow()
    {
        if (!m_window.handle())
            return;
        if (WTSRegisterSessionNotification(m_window.handle(), NOTIFY_FOR_THIS_SESSION))
            KillTimer(m_window.handle(), retryTimer);
        else
            SetTimer(m_window.handle(), retryTimer, retryMs, nullptr);
    }

    void onMessage(UINT message, WPARAM word)
    {
        if (message == WM_TIMER && word == retryTimer)
            return registerWindow();
        struct Row
        {
            UINT message;
            WPARAM word;
            Event event;
        };
        static const Row rows[] = {
            {WM_WTSSESSION_CHANGE, WTS_SESSION_LOCK, Event::Locked},
            {WM_WTSSESSION_CHANGE, WTS_CONSOLE_DISCONNECT, Event::UserSwitched},
            {WM_WTSSESSION_CHANGE, WTS_REMOTE_DISCONNECT, Event::UserSwitched},
            {WM_POWERBROADCAST, PBT_APMSUSPEND, Event::GoingToSleep}};
        for (const Row &row : rows) {
            if (row.message == message && row.word == word)
                m_handler(row.event);
        }
    }

    Handler m_handler;
    MessageWindow m_window;
};

} // namespace

std::unique_ptr<SessionMessages> SessionMessages::create(const Handler &handler)
{
    return std::make_unique<SessionMessageWindow>(handler);
}
