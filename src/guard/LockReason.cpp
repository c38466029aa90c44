#include "LockReason.h"

#include <QCoreApplication>

QString lockReasonText(LockReason reason, int idleMinutes)
{
    const auto tr = [](const char *text) {
        return QCoreApplication::translate("LockReason", text);
    };
    switch (reason) {
    case LockReason::Inactivity:
        return QCoreApplication::translate("LockReason", "Locked after %n minutes without input",
                                           nullptr, idleMinutes);
    case LockReason::ScreenSaver:
        return tr(QT_TRANSLATE_NOOP("LockReason", "Locked when the screen saver started"));
    case LockReason::SessionLocked:
        return tr(QT_TRANSLATE_NOOP("LockReason", "Locked together with the screen"));
    case LockReason::UserSwitched:
        return tr(QT_TRANSLATE_NOOP("LockReason", "Locked when the user was switched"));
    case LockReason::Sleep:
        return tr(QT_TRANSLATE_NOOP("LockReason", "Locked because the computer slept"));
    case LockReason::User:
        break;
    }
    return {};
}
