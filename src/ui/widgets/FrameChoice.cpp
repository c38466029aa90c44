#include "FrameChoice.h"

#include "WindowSystem.h"

#include <QGuiApplication>

FrameChoice::Frame FrameChoice::choose(const QString &platform, bool compositor)
{
    if (platform == QLatin1String("xcb"))
        return compositor ? Shadow : Line;
    if (platform == QLatin1String("windows"))
        return Adopted;
    // Nobody else decorates windows there.
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal"))
        return Line;
    // Wayland's compositors draw frames or leave it to Qt. A shadow of our own would take part in
    // snapping there, as Qt cannot tell them of it.
    return System;
}

FrameChoice::Frame FrameChoice::current()
{
    const QString platform = QGuiApplication::platformName();
    return choose(platform, platform == QLatin1String("xcb") && WindowSystem::hasCompositor());
}
