#include "SessionWatch.h"
#include "windows/SessionMessages.h"

namespace {

LockReason lockReason(SessionMessages::Event event)
{
    switch (event) {
    case SessionMessages::Event::Locked:
        return LockReason::SessionLocked;
    case SessionMessages::Event::UserSwitched:
        return LockReason::UserSwitched;
    case SessionMessages::Event::GoingToSleep:
        break;
    }
    return LockReason::Sleep;
}

class MessageSessionWatch : public SessionWatch
{
public:
    MessageSessionWatch()
        : m_messages(SessionMessages::create(
              [this](SessionMessages::Event event) { Q_EMIT happened(lockReason(event)); }))
    {
    }

private:
    std::unique_ptr<SessionMessages> m_messages;
};

} // namespace

std::unique_ptr<SessionWatch> SessionWatch::create()
{
    return std::make_unique<MessageSessionWatch>();
}
