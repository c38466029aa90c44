#include "QuickPlace.h"

#include <optional>

namespace {

const int fieldGap = 6;
const int sideGap = 16;
const int toolbarHeight = 72; ///< what browsers show above a page, more or less

/// The screen that shows the middle of a place, else the first that shows a part of it.
std::optional<QRect> screenOf(const QRect &place, const QVector<QRect> &screens)
{
    for (const QRect &screen : screens) {
        if (screen.contains(place.center()))
            return screen;
    }
    for (const QRect &screen : screens) {
        if (screen.intersects(place))
            return screen;
    }
    return std::nullopt;
}

QRect within(QRect window, const QRect &screen)
{
    window.setSize(window.size().boundedTo(screen.size()));
    window.moveRight(qMin(window.right(), screen.right()));
    window.moveBottom(qMin(window.bottom(), screen.bottom()));
    window.moveLeft(qMax(window.left(), screen.left()));
    window.moveTop(qMax(window.top(), screen.top()));
    return window;
}

QRect nearField(const QSize &size, const QRect &field, const QRect &screen)
{
    QRect window(QPoint(field.left(), field.bottom() + 1 + fieldGap), size);
    if (window.bottom() <= screen.bottom())
        return within(window, screen);
    window.moveBottom(field.top() - 1 - fieldGap);
    if (window.top() >= screen.top())
        return within(window, screen);
    // Beside it, so that what is typed there can be seen.
    window.moveTopLeft({field.right() + 1 + fieldGap, field.top()});
    if (window.right() > screen.right())
        window.moveRight(field.left() - 1 - fieldGap);
    return within(window, screen);
}

QRect atTopRight(const QSize &size, const QRect &of, int top, const QRect &screen)
{
    QRect window(QPoint(0, of.top() + top), size);
    window.moveRight(of.right() - sideGap);
    return within(window, screen);
}

} // namespace

QRect quickAccessPlace(const QSize &size, const QuickAccessWish &wish,
                       const QVector<QRect> &screens, int pointer)
{
    if (wish.field) {
        if (const auto screen = screenOf(*wish.field, screens))
            return nearField(size, *wish.field, *screen);
    }
    if (wish.browser) {
        if (const auto screen = screenOf(*wish.browser, screens))
            return atTopRight(size, *wish.browser, toolbarHeight, *screen);
    }
    const QRect screen = screens.value(pointer, screens.value(0));
    return atTopRight(size, screen, sideGap, screen);
}
