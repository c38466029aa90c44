#pragma once

#include "Palette.h"

#include <QIcon>
#include <QObject>

/// The look that is in force: light or dark as the system or the user wants it, the size of texts,
/// and whether windows are animated.
class Theme : public QObject
{
    Q_OBJECT

public:
    explicit Theme(QObject *parent = nullptr);

    /// Puts the look on the whole application and keeps it up to date.
    void apply();

    enum class Mode { System, Light, Dark };
    Q_ENUM(Mode)
    void setMode(Mode mode);
    Mode mode() const { return m_mode; }

    /// The size of texts in percent of the usual one. Windows that stand keep their measures.
    void setTextPercent(int percent);

    const Palette &palette() const { return *m_palette; }
    /// The palette of the pages in front of a locked safe.
    const Palette &lockPalette() const { return Palette::dark(); }

    /// An icon that takes its colour from the palette in force whenever it is drawn.
    QIcon icon(const QString &name, Palette::Role role) const;
    QIcon lockIcon(const QString &name, Palette::Role role) const;

    /// The duration of an animation: the given one, or 0 when motion is reduced.
    int motion(int milliseconds) const { return m_reducedMotion || m_motionOff ? 0 : milliseconds; }
    void setReducedMotion(bool reduced) { m_reducedMotion = reduced; }

    /// Stills animations whatever the system says, or follows the system.
    void setMotionOff(bool off) { m_motionOff = off; }

    void setDark(bool dark);

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followMode();

    Mode m_mode = Mode::System;
    const Palette *m_palette;
    bool m_applied = false;
    bool m_reducedMotion; ///< as the system wants it
    bool m_motionOff = false;
};
