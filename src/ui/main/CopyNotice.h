#pragma once

#include "Clock.h"

#include <QTimer>
#include <QVector>
#include <QWidget>

class ClipboardKeeper;
class ElidedLabel;
class QLabel;
class Theme;

/// Tells that a value was copied and counts the seconds until it is cleared.
class CopyNotice : public QWidget
{
    Q_OBJECT

public:
    CopyNotice(ClipboardKeeper &clipboard, const Theme &theme, QWidget *parent,
               Clock clock = systemTime);

    /// The seconds until the clipboard is cleared; 0 when it will not be.
    int secondsLeft() const;

private:
    void onCopied(bool clearLater);
    void easeIn();
    void onTick();
    void showSeconds();
    void dismiss();

    const Theme &m_theme;
    Clock m_clock;
    QVector<QDateTime> m_deadlines; ///< of all copies that were made, earliest first
    QDateTime m_until;              ///< the end of a notice without a deadline
    QTimer m_tick;
    QLabel *m_icon;
    ElidedLabel *m_text;
    QLabel *m_seconds;
};
