#include "../Text.h"
#include "ClipboardKeeper.h"
#include "main/CopyNotice.h"
#include "style/Theme.h"

#include <QtTest>

class TestCopyNotice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsToTheNextClearing()
    {
        QDateTime now(QDate(2026, 1, 1), QTime(12, 0), Qt::UTC);
        ClipboardKeeper clipboard;
        Theme theme;
        CopyNotice notice(clipboard, theme, nullptr, [&now] { return now; });
        QCOMPARE(notice.secondsLeft(), 0);

        clipboard.copy("one"_s, true);
        QCOMPARE(notice.secondsLeft(), 60);
        now = now.addSecs(20);
        QCOMPARE(notice.secondsLeft(), 40);

        // The clock of the first copy runs on and clears the second one, too.
        clipboard.copy("two"_s, true);
        QCOMPARE(notice.secondsLeft(), 40);
        now = now.addSecs(50);
        clipboard.copy("three"_s, true);
        QCOMPARE(notice.secondsLeft(), 10);
    }

    void goesWhenCleared()
    {
        ClipboardKeeper clipboard;
        Theme theme;
        CopyNotice notice(clipboard, theme, nullptr);
        QVERIFY(notice.isHidden());
        clipboard.copy("secret"_s, true);
        QVERIFY(!notice.isHidden());
        clipboard.clear();
        QVERIFY(notice.isHidden());
    }
};

QTEST_MAIN(TestCopyNotice)
#include "tst_copynotice.moc"
