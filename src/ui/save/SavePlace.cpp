#include "SavePlace.h"

#include <algorithm>

namespace {

const QPoint inset(24, 96);

int areaOf(const QRect &rect)
{
    return rect.isValid() ? rect.width() * rect.height() : 0;
}

} // namespace

QPoint placeBesidePage(const QRect &browser, const QSize &size, const QVector<QRect> &screens)
{
    const auto shown = [&browser](const QRect &screen) { return areaOf(screen & browser); };
    QRect screen = *std::max_element(
        screens.begin(), screens.end(),
        [&shown](const QRect &one, const QRect &other) { return shown(one) < shown(other); });
    if (shown(screen) == 0)
        screen = screens.first();
    const QRect page = shown(screen) > 0 ? browser & screen : screen;
    const int left = page.right() + 1 - inset.x() - size.width();
    const int top = page.top() + inset.y();
    return {std::max(screen.left(), std::min(left, screen.right() + 1 - size.width())),
            std::max(screen.top(), std::min(top, screen.bottom() + 1 - size.height()))};
}
