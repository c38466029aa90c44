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
        const QString file = home.filePath("config/safes.json"_s);
        const QString safe = home.filePath("one"_s);
        QVERIFY(QDir().mkpath(safe));
        {
            SafeFacts facts(file);
            const QSignalSpy changed(&facts, &SafeFacts::changed);
            facts.change(safe, [this](SafeFact &fact) {
                fact.lastOpened = noon;
                fact.itemCount = 12;
                fact.mirrorFolder = "/cloud/one"_s;
            });
            facts.change(safe, [](SafeFact &fact) { fact.itemCount = 12; });
            QCOMPARE(changed.count(), 1);
        }
        SafeFacts facts(file);
        const SafeFact fact = facts.of(safe + "/../one/"_s);
        QCOMPARE(fact.lastOpened, noon);
        QCOMPARE(fact.itemCount, 12);
        QCOMPARE(fact.mirrorFolder, "/cloud/one"_s);
        QVERIFY(!fact.lastSynchronised.isValid());
        QCOMPARE(facts.of(home.filePath("other"_s)).itemCount, -1);

        const QString moved = home.filePath("moved"_s);
        facts.move(safe, moved);
        QVERIFY(facts.store());
        const SafeFacts again(file);
        QCOMPARE(again.folders(), QStringList{canonicalFolder(moved)});
        QCOMPARE(again.of(moved).itemCount, 12);
    }

    void aChangeIsWrittenWithoutBeingAskedFor()
    {
        const QTemporaryDir home;
        const QString file = home.filePath("safes.json"_s);
        SafeFacts facts(file);
        facts.change(home.path(), [](SafeFact &fact) { fact.itemCount = 3; });
        QTRY_VERIFY(contentOf(file).contains("\"item_count\": 3"));
    }

    void aFileThatCannotBeReadOrWrittenIsNoHindrance()
    {
        const QTemporaryDir home;
        const QString file = home.filePath("safes.json"_s);
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
        const QString one = home.filePath("one"_s);
        const QString other = home.filePath("other"_s);
        const QString link = home.filePath("link"_s);
        SafeFacts facts(home.filePath("safes.json"_s));
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
        QVERIFY(QDir().mkpath(root + "/real/safe"_s));
        QVERIFY(QFile::link(root + "/real"_s, root + "/link"_s));
        const QString real = root + "/real/safe"_s;
        for (const char *way : {"/real/safe/", "/real/./safe", "/link/safe", "/real/x/../safe"})
            QCOMPARE(canonicalFolder(root + QLatin1String(way)), real);
        // The folder has gone, the link to its parent is still there.
        QVERIFY(QDir(real).removeRecursively());
        QCOMPARE(canonicalFolder(root + "/link/safe"_s), real);
        QVERIFY(isSameFolder(root + "/link/safe/"_s, real));
        QVERIFY(!isSameFolder(root + "/link"_s, real));
    }
};

QTEST_GUILESS_MAIN(TestSafeFacts)
#include "tst_safefacts.moc"
