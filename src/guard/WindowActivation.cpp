#include "WindowActivation.h"

#include "WindowFront.h"

#include <QDebug>
#include <QGuiApplication>
#include <QWindow>

void putInFront(QWindow &window)
{
    const QString platform = QGuiApplication::platformName();
    if (platform != QLatin1String("xcb") && platform != QLatin1String("windows"))
        return;
    qDebug().noquote() << QStringLiteral("UI: Window %1: ActivateWindow, hWnd: %2, Parent:")
                              .arg(window.objectName())
                              .arg(window.winId(), 0, 16)
                       << window.parent();
    // The system has to know that the window is shown before it is asked to put it in front.
    QGuiApplication::sync();
    putWindowInFront(static_cast<std::uintptr_t>(window.winId()));
}
