#include "FolderPath.h"
#include "SafeFacts.h"
#include "SafeTesting.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestSafeFacts : public QObject
{
    Q_OBJECT

private:
    const QDateTime noon{QDate(2026, 5, 4), QTime(12, 0, 0, 7), Qt::UTC};

private Q_SLOTS:
    void factsSurviveARestart()
    {
        const QTemporaryDir home;
        const QString file = home.filePath(QStringLiteral("config/safes.json"));
        const QString safe = home.filePath(QStringLiteral("one"));
        QVERIFY(QDir().mkpath(safe));
        {
            SafeFacts facts(file);
            const QSignalSpy changed(&facts, &SafeFacts::changed);
            facts.change(safe, [this](SafeFact &fact) {
                fact.lastOpened = noon;
                fact.itemCount = 12;
                fact.mirrorFolder = QStringLiteral("/cloud/one");
            });
            facts.change(safe, [](SafeFact &fact) { fact.itemCount = 12; });
            QCOMPARE(changed.count(), 1);
        }
        SafeFacts facts(file);
        const SafeFact fact = facts.of(safe + QStringLiteral("/../one/"));
        QCOMPARE(fact.lastOpened, noon);
        QCOMPARE(fact.itemCount, 12);
        QCOMPARE(fact.mirrorFolder, QStringLiteral("/cloud/one"));
        QVERIFY(!fact.lastSynchronised.isValid());
        QCOMPARE(facts.of(home.filePath(QStringLiteral("other"))).itemCount, -1);

        const QString moved = home.filePath(QStringLiteral("moved"));
        facts.move(safe, moved);
        QVERIFY(facts.store());
        const SafeFacts again(file);
        QCOMPARE(again.folders(), QStringList{canonicalFolder(moved)});
        QCOMPARE(again.of(moved).itemCount, 12);
    }

    void aChangeIsWrittenWithoutBeingAskedFor()
    {
        const QTemporaryDir home;
        const QString file = home.filePath(QStringLiteral("safes.json"));
        SafeFacts facts(file);
        facts.change(home.path(), [](SafeFact &fact) { fact.itemCount = 3; });
        QTRY_VERIFY(contentOf(file).contains("\"item_count\": 3"));
    }

    void aFileThatCannotBeReadOrWrittenIsNoHindrance()
    {
        const QTemporaryDir home;
        const QString file = home.filePath(QStringLiteral("safes.json"));
        writeFile(file, "{ \"/one\": { \"item_co");
        const auto files = std::make_shared<FaultyFiles>();
        files->failAt = 1;
        SafeFacts facts(file, files);
        QVERIFY(facts.folders().isEmpty());
        facts.change(home.path(), [](SafeFact &fact) { fact.itemCount = 3; });
        QVERIFY(!facts.store());
        QVERIFY(facts.store());
        QCOMPARE(SafeFacts(file).of(home.path()).itemCount, 3);
    }

    void factsFollowAFolderButNoLinkToAnother()
    {
        const QTemporaryDir home;
        const QString one = home.filePath(QStringLiteral("one"));
        const QString other = home.filePath(QStringLiteral("other"));
        const QString link = home.filePath(QStringLiteral("link"));
        SafeFacts facts(home.filePath(QStringLiteral("safes.json")));
        facts.expect(link);
        facts.change(link, [](SafeFact &fact) { fact.itemCount = 7; });
        facts.learn(link, one);
        QCOMPARE(facts.of(one).itemCount, 7);
        facts.learn(link, other);
        QCOMPARE(facts.of(one).itemCount, 7);
        QCOMPARE(facts.of(link).itemCount, -1);
    }

    void onePathForOneFolder()
    {
        const QTemporaryDir home;
        const QString root = canonicalFolder(home.path());
        QVERIFY(QDir().mkpath(root + QStringLiteral("/real/safe")));
        QVERIFY(QFile::link(root + QStringLiteral("/real"), root + QStringLiteral("/link")));
        const QString real = root + QStringLiteral("/real/safe");
        for (const char *way : {"/real/safe/", "/real/./safe", "/link/safe", "/real/x/../safe"})
            QCOMPARE(canonicalFolder(root + QLatin1String(way)), real);
        // The folder has gone, the link to its parent is still there.
        QVERIFY(QDir(real).removeRecursively());
        QCOMPARE(canonicalFolder(root + QStringLiteral("/link/safe")), real);
        QVERIFY(isSameFolder(root + QStringLiteral("/link/safe/"), real));
        QVERIFY(!isSameFolder(root + QStringLiteral("/link"), real));
    }
};

QTEST_GUILESS_MAIN(TestSafeFacts)
#include "tst_safefacts.moc"
