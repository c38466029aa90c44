#include "CaptureGuard.h"

#include "Platform.h"
#include "WindowSystem.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace {

/// 0 while the system knows no such window.
std::uintptr_t handleOf(const QWidget &window)
{
    return static_cast<std::uintptr_t>(window.internalWinId());
}

} // namespace

std::unique_ptr<CaptureGuard> CaptureGuard::create(Platform &platform, bool hides)
{
    if (platform.windowsVersionCode() == 0)
        return nullptr;
    return std::make_unique<CaptureGuard>(hides, &WindowSystem::hideFromCapture);
}

CaptureGuard::CaptureGuard(bool hides, Hide hide, QObject *parent)
    : QObject(parent)
    , m_hides(hides)
    , m_hide(std::move(hide))
{
    qApp->installEventFilter(this);
}

void CaptureGuard::setHides(bool hides)
{
    m_hides = hides;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (handleOf(*window) != 0)
            m_hide(handleOf(*window), hides);
    }
}

bool CaptureGuard::eventFilter(QObject *watched, QEvent *event)
{
    // The system may give a window another handle.
    if (m_hides && (event->type() == QEvent::Show || event->type() == QEvent::WinIdChange) &&
        watched->isWidgetType()) {
        const auto &widget = *static_cast<QWidget *>(watched);
        if (widget.isWindow() && handleOf(widget) != 0)
            m_hide(handleOf(widget), true);
    }
    return false;
}
