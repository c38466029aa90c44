#pragma once

#include "Palette.h"

#include <QIcon>
#include <QObject>

/// The look that is in force: follows the lightness of the system's colours, and stills animations
/// where the system asks for that.
class Theme : public QObject
{
    Q_OBJECT

public:
    explicit Theme(QObject *parent = nullptr);

    /// Puts the look on the whole application and keeps it up to date.
    void apply();

    const Palette &palette() const { return *m_palette; }
    /// The palette of the pages in front of a locked safe.
    const Palette &lockPalette() const { return Palette::dark(); }

    /// An icon that takes its colour from the palette in force whenever it is drawn.
    QIcon icon(const QString &name, Palette::Role role) const;
    QIcon lockIcon(const QString &name, Palette::Role role) const;

    /// The duration of an animation: the given one, or 0 when motion is reduced.
    int motion(int milliseconds) const { return m_reducedMotion ? 0 : milliseconds; }
    void setReducedMotion(bool reduced) { m_reducedMotion = reduced; }

    void setDark(bool dark);

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const Palette *m_palette;
    bool m_applied = false;
    bool m_reducedMotion;
};
