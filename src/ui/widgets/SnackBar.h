#pragma once

#include <QFrame>
#include <QPointer>
#include <QTimer>

class ElidedLabel;
class QLabel;
class QPropertyAnimation;
class QPushButton;
class Theme;

/// A bar that eases in at the bottom of a widget for some seconds: what has happened and, if there
/// is one, the way to take it back. The seconds stand still while the pointer or the keyboard is on
/// it. It goes when the widget is disabled or hidden, as when the safe locks.
class SnackBar : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(qreal shown READ shown WRITE setShown)

public:
    /// @param host the widget over which it is shown
    SnackBar(const Theme &theme, QWidget *host);

    /// Replaces what is shown.
    /// @param action the words on the button; empty for none, and then no seconds are counted
    void show(const QString &text, const QString &action = {}, int seconds = 6);
    void dismiss();
    /// Whether something is shown that can be taken back.
    bool offersAction() const;

    /// 0 is out of sight, 1 is in its place.
    qreal shown() const { return m_shown; }
    void setShown(qreal shown);

Q_SIGNALS:
    void actionChosen();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void onTick();
    void onAction();
    void showSeconds();
    void place();
    void slideTo(qreal shown);

    const Theme &m_theme;
    ElidedLabel *m_text;
    QPushButton *m_action;
    QLabel *m_count;
    QTimer *m_tick;
    QPropertyAnimation *m_slide;
    QPointer<QWidget> m_focusBefore;
    int m_seconds = 0;
    qreal m_shown = 0;
};
