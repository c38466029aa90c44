#include "SplashScreen.h"

#include <QApplication>
#include <QDebug>
#include <QPainter>
#include <QThread>

namespace {

const unsigned long waitSliceMs = 50;

} // namespace

SplashScreen::SplashScreen(const QPixmap &pixmap)
    : QSplashScreen(pixmap)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_repaintTimer.setInterval(0);
    connect(&m_repaintTimer, &QTimer::timeout, this, QOverload<>::of(&QWidget::update));
}

QPixmap SplashScreen::picture(qreal ratio)
{
    const int scale = qBound(1, qCeil(ratio), 3);
    const QString name = QStringLiteral(":/splash%1.png");
    QPixmap picture(name.arg(scale > 1 ? QStringLiteral("@%1x").arg(scale) : QString()));
    picture.setDevicePixelRatio(scale);
    return picture;
}

void SplashScreen::show(const QRect &screen, int minimumMs)
{
    if (screen.isValid()) {
        QRect frame = rect();
        frame.moveCenter(screen.center());
        move(frame.topLeft());
    }
    m_messageRect = QRect(QPoint(105, 120), QPoint(354, 219));
    m_minimumMs = minimumMs;
    m_elapsed.start();
    m_repaintTimer.start();
    m_shown = true;
    QSplashScreen::show();
}

void SplashScreen::finish(QWidget *mainWindow)
{
    while (m_shown && m_elapsed.elapsed() < m_minimumMs) {
        QApplication::processEvents();
        QThread::msleep(waitSliceMs);
        QApplication::processEvents();
    }
    qDebug() << "SplashScreen::finish"
             << ":"
             << "Splash wait time:" << (m_shown ? m_elapsed.elapsed() : 0) << "milliseconds";
    if (mainWindow)
        mainWindow->show();
    qDebug() << "SplashScreen::finish"
             << "App is ready";
    m_repaintTimer.stop();
    m_shown = false;
    QSplashScreen::finish(mainWindow);
}

void SplashScreen::drawContents(QPainter *painter)
{
    painter->setPen(palette().color(QPalette::WindowText));
    painter->setFont(font());
    painter->drawText(m_messageRect, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                      m_versionText);
    if (!message().isEmpty())
        painter->drawText(m_messageRect, Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap,
                          message());
}
