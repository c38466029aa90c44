#include "WindowActivation.h"

#include "WindowFront.h"

#include <QDebug>
#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace {

bool askSystem(QWindow &window)
{
    const QString platform = QGuiApplication::platformName();
    if (platform != QLatin1String("xcb") && platform != QLatin1String("windows"))
        return false;
    const auto handle = static_cast<std::uintptr_t>(window.winId());
    // The system has to know that the window is shown before it is asked to put it in front. Other
    // events come in between.
    QGuiApplication::sync();
    return putWindowInFront(handle);
}

} // namespace

void putInFront(QWindow &window, const QString &name)
{
    qDebug().noquote() << QStringLiteral("UI: Window %1: ActivateWindow, hWnd: %2, Parent:")
                              .arg(name)
                              .arg(window.winId(), 0, 16)
                       << window.parent();
    static bool saidSo = false;
    if (!askSystem(window) && !std::exchange(saidSo, true))
        qWarning("UI: the system alone decides which window is in front");
}
