#include "WindowActivation.h"

#include "WindowFront.h"

#include <QDebug>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace {

bool canAskSystem()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") || platform == QLatin1String("windows");
}

void sayOnce(bool inFront)
{
    static bool said = false;
    if (!inFront && !std::exchange(said, true))
        qWarning("UI: the system alone decides which window is in front");
}

} // namespace

void putInFront(QWindow &window, const QString &name)
{
    qDebug().noquote() << QStringLiteral("UI: Window %1: ActivateWindow, hWnd: %2, Parent:")
                              .arg(name)
                              .arg(window.winId(), 0, 16)
                       << window.parent();
    if (!canAskSystem()) {
        sayOnce(false);
        return;
    }
    // The system has to know that the window is shown before it is asked to put it in front. Other
    // events come in between, which must not happen in the middle of what the caller does.
    const auto handle = static_cast<std::uintptr_t>(window.winId());
    QTimer::singleShot(0, &window, [handle] {
        QGuiApplication::sync();
        sayOnce(putWindowInFront(handle));
    });
}
