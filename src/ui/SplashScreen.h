#pragma once

#include <QElapsedTimer>
#include <QSplashScreen>
#include <QTimer>

/// The picture that is shown while the program starts, at least for a given time.
class SplashScreen : public QSplashScreen
{
    Q_OBJECT

public:
    explicit SplashScreen(const QPixmap &pixmap);

    /// The picture, as sharp as a screen of so many device pixels a pixel shows it.
    static QPixmap picture(qreal ratio);

    void setVersionText(const QString &text) { m_versionText = text; }

    /// Shows it in the middle of a rectangle of the desktop, or where it is when the rectangle is
    /// not valid.
    void show(const QRect &screen, int minimumMs);

    /// Waits until the minimum time is over while events go on, shows the main window if there is
    /// one, and closes.
    void finish(QWidget *mainWindow);

protected:
    void drawContents(QPainter *painter) override;

private:
    QString m_versionText;
    int m_minimumMs = 0;
    QElapsedTimer m_elapsed;
    QRect m_messageRect;
    QTimer m_repaintTimer;
    bool m_shown = false;
};
