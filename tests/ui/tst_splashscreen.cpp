#include "SplashScreen.h"

#include <QPointer>
#include <QtTest>

class TestSplashScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splashStaysItsTime()
    {
        for (const qreal ratio : {1.0, 1.5, 2.0, 3.0, 4.0}) {
            const QPixmap picture = SplashScreen::picture(ratio);
            QCOMPARE(picture.size() / picture.devicePixelRatio(), QSize(460, 260));
            QVERIFY(picture.devicePixelRatio() >= qMin(ratio, 3.0));
        }
        const QPointer<SplashScreen> splash(new SplashScreen(SplashScreen::picture(2)));
        QWidget window;
        QElapsedTimer timer;
        timer.start();
        splash->show(QRect(0, 0, 800, 600), 120);
        QCOMPARE(splash->geometry().center(), QRect(0, 0, 800, 600).center());
        splash->finish(&window);
        QVERIFY(timer.elapsed() >= 120);
        QVERIFY(window.isVisible());
        QTRY_VERIFY(!splash);
    }
};

QTEST_MAIN(TestSplashScreen)
#include "tst_splashscreen.moc"
