#pragma once

#include <QJsonObject>
#include <QRect>
#include <QString>

#include <optional>

/// What somebody who opens quick access wants of it. Of what the extension says of it, all that is
/// not as it should be is left out.
struct QuickAccessWish
{
    enum class Section { Logins, Cards, Identities, Generator };

    static QuickAccessWish fromExtension(const QString &callerId, const QJsonObject &payload);

    QString callerId; ///< the extension to fill with; empty when none is connected
    QString url;      ///< of the page that the user sees; empty when that is not known
    Section section = Section::Logins;
    bool fill = false;            ///< at once, when only one login belongs to the page
    std::optional<QRect> browser; ///< its window on the screen
    std::optional<QRect> field;   ///< the field on the screen that it is wanted for
};
