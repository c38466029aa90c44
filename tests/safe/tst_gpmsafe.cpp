#include "PMItemDocument.h"
#include "PMItemFactory.h"
#include "PMLogin.h"
#include "SafeCrypto.h"
#include "SafeTesting.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString loginId = QStringLiteral("00000000-0000-0001-0000-000000001234");

QJsonObject samplePlain()
{
    return QJsonDocument::fromJson(contentOf(QStringLiteral(TEST_DATA_DIR "/safe-plain.json")))
        .object();
}

std::unique_ptr<PMLogin> makeLogin(const QString &title, const QString &password)
{
    auto login = std::make_unique<PMLogin>();
    login->setTitle(title);
    login->setPassword(password);
    return login;
}

/// JSON written with single quotes.
QByteArray json(const char *text)
{
    return QByteArray(text).replace('\'', '"');
}

QString itemText(const QByteArray &password, const QByteArray &json)
{
    QString text;
    encryptString(password, json, text);
    return text;
}

} // namespace

class TestGpmSafe : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_folder;

    QString content(const QString &name) const
    {
        return m_folder + QStringLiteral("/content/") + name;
    }

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_folder = m_temporary->path();
    }

    void sampleSafeOpensWithEveryField()
    {
        copySampleSafe(m_folder);
        GPMSafe safe;
        QVERIFY(safe.open(m_folder));
        QCOMPARE(safe.name(), QStringLiteral("Reference safe"));
        QCOMPARE(safe.hint(), QStringLiteral("the usual"));
        QCOMPARE(safe.created().toMSecsSinceEpoch(), 1794211200123);
        QVERIFY(safe.unlock(samplePassword));
        QVERIFY(safe.unreadableFiles().isEmpty());

        const QJsonObject plain = samplePlain();
        const QJsonArray expected = plain.value(QStringLiteral("items")).toArray();
        QCOMPARE(safe.itemCount(), expected.size());
        QSet<int> kinds;
        for (const QJsonValue &value : expected) {
            const QJsonObject document = value.toObject();
            const QJsonObject fields = document.value(QStringLiteral("public")).toObject();
            const PMListItem *item = safe.item(fields.value(QStringLiteral("id")).toString());
            QVERIFY(item);
            kinds.insert(item->type());
            QVERIFY(!item->isChanged());
            const PMItemDocument read = PMItemDocument::fromItem(*item);
            for (auto field = fields.begin(); field != fields.end(); ++field)
                QCOMPARE(read.publicFields.value(field.key()), field.value());
            QCOMPARE(read.privateFields, document.value(QStringLiteral("private")).toObject());
        }
        QCOMPARE(kinds.size(), 11);

        const QJsonObject attachments = plain.value(QStringLiteral("attachments")).toObject();
        QCOMPARE(attachments.size(), 2);
        for (auto hash = attachments.begin(); hash != attachments.end(); ++hash) {
            QBuffer bytes;
            bytes.open(QIODevice::WriteOnly);
            QVERIFY(safe.readAttachment(hash.key(), bytes));
            QCOMPARE(
                QString::fromLatin1(
                    QCryptographicHash::hash(bytes.data(), QCryptographicHash::Sha256).toHex()),
                hash.value().toString());
            QCOMPARE(safe.item(hash.key())->property("hash").toString(),
                     fileHash(m_folder + QStringLiteral("/attachment/") + hash.key()));
        }
    }

    void everyKindSurvivesBeingWritten()
    {
        copySampleSafe(m_folder);
        const QMap<QString, QByteArray> before = snapshot(m_folder);
        QMap<QString, PMItemDocument> documents;
        {
            GPMSafe safe;
            QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
            for (PMListItem *item : safe.items()) {
                item->markChanged();
                documents.insert(item->id(), PMItemDocument::fromItem(*item));
            }
            QVERIFY(safe.saveChanges());
        }
        const QMap<QString, QByteArray> after = snapshot(m_folder);
        for (const QString &id : documents.keys())
            QVERIFY(before.value(QStringLiteral("content/") + id) !=
                    after.value(QStringLiteral("content/") + id));
        QVERIFY(QFile::permissions(content(loginId)) ==
                (QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser));

        GPMSafe safe;
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        QCOMPARE(safe.itemCount(), documents.size());
        for (const PMListItem *item : safe.items()) {
            const PMItemDocument read = PMItemDocument::fromItem(*item);
            QCOMPARE(read.publicFields, documents[item->id()].publicFields);
            QCOMPARE(read.privateFields, documents[item->id()].privateFields);
        }
    }

    void newSafeFromInitToLockAndBack()
    {
        SafeEnvironment environment;
        qint64 now = 1800000000123;
        environment.clock = [&now] { return QDateTime::fromMSecsSinceEpoch(now, Qt::UTC); };
        QString id;
        {
            GPMSafe safe(environment);
            QVERIFY(safe.init(m_folder, QStringLiteral("pä55 🔑"), QStringLiteral("Mine"),
                              QStringLiteral("a key")));
            QVERIFY(safe.isUnlocked());
            id = safe.addItem(makeLogin(QStringLiteral("Mail"), QStringLiteral("secret")))->id();
            QVERIFY(!safe.addItem([&] {
                auto twin = makeLogin(QStringLiteral("Twin"), {});
                twin->setId(id);
                return twin;
            }()));
            now += 1000;
            safe.lock(); // saves
            QVERIFY(!safe.item(id));
            QCOMPARE(safe.itemCount(), 0);
            QVERIFY(!safe.saveChanges());
        }
        QCOMPARE(contentOf(m_folder + QStringLiteral("/safe.meta")),
                 contentOf(m_folder + QStringLiteral("/safe.restore")));
        QVERIFY(!contentOf(content(id)).contains("secret"));

        GPMSafe safe(environment);
        QVERIFY(safe.open(m_folder));
        QCOMPARE(safe.created().toMSecsSinceEpoch(), now - 1000);
        QCOMPARE(safe.modified().toMSecsSinceEpoch(), now);
        const QMap<QString, QByteArray> before = snapshot(m_folder);
        for (const QString &wrong : {QStringLiteral("pä55"), QString(), QStringLiteral("PÄ55 🔑")})
            QVERIFY(!safe.unlock(wrong));
        QVERIFY(!safe.isUnlocked());
        QCOMPARE(snapshot(m_folder), before);
        QVERIFY(safe.unlock(QStringLiteral("pä55 🔑")));
        QCOMPARE(safe.item(id)->property("password").toString(), QStringLiteral("secret"));
        QVERIFY(safe.isPassword(QStringLiteral("pä55 🔑")));
        QVERIFY(!safe.isPassword(QStringLiteral("pä55")));
    }

    void initRefuses()
    {
        const QString missing = m_folder + QStringLiteral("/missing");
        QVERIFY(!GPMSafe().init(missing, QStringLiteral("p"), QStringLiteral("n"), {}));
        QVERIFY(!QDir(missing).exists());

        QVERIFY(!GPMSafe().init(m_folder, QString(), QStringLiteral("n"), {}));
        for (int failAt = 1; failAt <= 3; ++failAt) {
            SafeEnvironment environment;
            auto files = std::make_shared<FaultyFiles>();
            files->failAt = failAt;
            environment.files = files;
            const bool copyFailed = failAt == 2; // the second copy of the description alone
            QCOMPARE(GPMSafe(environment).init(m_folder, QStringLiteral("p"), {}, {}), copyFailed);
            if (!copyFailed)
                QVERIFY(QDir(m_folder).isEmpty());
            else
                QVERIFY(QDir(m_folder).removeRecursively() && QDir().mkpath(m_folder));
        }

        copySampleSafe(m_folder);
        const QMap<QString, QByteArray> before = snapshot(m_folder);
        QVERIFY(!GPMSafe().init(m_folder, QStringLiteral("p"), QStringLiteral("n"), {}));
        QCOMPARE(snapshot(m_folder), before);
    }

    void descriptions_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<qint64>("created");
        QTest::newRow("number") << json("{'name':'n','created':1794211200123}") << true
                                << qint64(1794211200123);
        QTest::newRow("string") << json("{'name':'n','created':'1794211200123'}") << true
                                << qint64(1794211200123);
        QTest::newRow("other type") << json("{'name':'n','created':[1]}") << true << qint64(0);
        QTest::newRow("name of other type") << json("{'name':{},'hint':'h'}") << true << qint64(0);
        QTest::newRow("no known key") << json("{'x':1}") << false << qint64(0);
        QTest::newRow("empty object") << QByteArray("{}") << false << qint64(0);
        QTest::newRow("array") << QByteArray("[1]") << false << qint64(0);
        QTest::newRow("cut") << json("{'name':'n") << false << qint64(0);
        QTest::newRow("empty") << QByteArray() << false << qint64(0);
        QTest::newRow("too deep") << QByteArray(100000, '[') << false << qint64(0);
        QTest::newRow("binary") << QByteArray("\0\xff\xfe{", 4) << false << qint64(0);
    }
    void descriptions()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, opens);
        QFETCH(qint64, created);
        writeFile(m_folder + QStringLiteral("/safe.meta"), text);
        GPMSafe safe;
        QCOMPARE(safe.open(m_folder), opens);
        if (opens)
            QCOMPARE(safe.created().toMSecsSinceEpoch(), created);
        QCOMPARE(contentOf(m_folder + QStringLiteral("/safe.meta")), text);
    }

    void olderDescription()
    {
        copySampleSafe(m_folder);
        const QByteArray passId = contentOf(m_folder + QStringLiteral("/safe.passid"));
        QFile::remove(m_folder + QStringLiteral("/safe.passid"));
        writeFile(m_folder + QStringLiteral("/safe.content"),
                  json("{'name':'Old','keep':7,'pass_id':'") + passId + "\"}");
        GPMSafe safe;
        QVERIFY(safe.open(m_folder));
        QCOMPARE(safe.name(), QStringLiteral("Old"));
        QVERIFY(safe.unlock(samplePassword));
        safe.setName(QStringLiteral("New"));
        QVERIFY(safe.writeMetaFile());
        GPMSafe again;
        QVERIFY(again.open(m_folder));
        QCOMPARE(again.name(), QStringLiteral("New"));
        QVERIFY(contentOf(m_folder + QStringLiteral("/safe.meta")).contains("\"keep\": 7"));
        // The description holds the only pass id.
        QVERIFY(again.unlock(samplePassword));
    }

    void cutSafeFolders_data()
    {
        QTest::addColumn<QString>("gone");
        QTest::addColumn<bool>("opens");
        QTest::newRow("description") << QStringLiteral("safe.meta") << false;
        QTest::newRow("pass id") << QStringLiteral("safe.passid") << true;
        QTest::newRow("items") << QStringLiteral("content") << true;
    }
    void cutSafeFolders()
    {
        QFETCH(QString, gone);
        QFETCH(bool, opens);
        copySampleSafe(m_folder);
        const QString path = m_folder + QLatin1Char('/') + gone;
        QVERIFY(QFileInfo(path).isDir() ? QDir(path).removeRecursively() : QFile::remove(path));
        const QMap<QString, QByteArray> before = snapshot(m_folder);
        GPMSafe safe;
        QCOMPARE(safe.open(m_folder), opens);
        QVERIFY(!safe.unlock(samplePassword));
        QVERIFY(!safe.isUnlocked());
        QCOMPARE(snapshot(m_folder), before);
    }

    void unreadableItemsAreSkippedAndKept()
    {
        copySampleSafe(m_folder);
        const QByteArray password = samplePassword.toUtf8();
        const QString good = QString::fromLatin1(contentOf(content(loginId)));
        const QByteArray document = *decryptString(password, good);
        const QVector<QPair<QString, QByteArray>> bad = {
            {QStringLiteral("empty"), {}},
            {QStringLiteral("cut"), good.left(200).toLatin1()},
            {QStringLiteral("random"), QByteArray::fromHex("00ff13377f")},
            {QStringLiteral("not-an-envelope"), "hello"},
            {QStringLiteral("not-json"), itemText(password, "hello").toLatin1()},
            {QStringLiteral("array"), itemText(password, "[]").toLatin1()},
            {QStringLiteral("deep"), itemText(password, QByteArray(5000, '[')).toLatin1()},
            {QStringLiteral("other-password"), itemText("other", document).toLatin1()},
            {QStringLiteral("private-of-other-password"),
             itemText(password, json("{'version':2,'type':'Login','public':{},'private':'") +
                                    itemText("other", "{}").toLatin1() + "\"}")
                 .toLatin1()},
        };
        for (const auto &file : bad)
            writeFile(content(file.first), file.second);
        const QMap<QString, QByteArray> before = snapshot(m_folder);

        GPMSafe safe;
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        QCOMPARE(safe.itemCount(), 22);
        QStringList expected;
        for (const auto &file : bad)
            expected.append(file.first);
        QStringList found = safe.unreadableFiles();
        std::sort(expected.begin(), expected.end());
        std::sort(found.begin(), found.end());
        QCOMPARE(found, expected);
        safe.lock();
        QCOMPARE(snapshot(m_folder), before);
    }

    void ofTwoGenerationsTheRightOneIsTaken()
    {
        copySampleSafe(m_folder);
        const QByteArray password = samplePassword.toUtf8();
        const auto document = [](const char *title) {
            return json("{'version':2,'type':'SecureNote','public':{'title':'") + title + "\"}}";
        };
        writeFile(content(QStringLiteral("a")), itemText(password, document("old")).toLatin1());
        writeFile(content(QStringLiteral("a.2")), itemText(password, document("new")).toLatin1());
        writeFile(content(QStringLiteral("b")), itemText(password, document("mine")).toLatin1());
        writeFile(content(QStringLiteral("b.1")), itemText("other", document("x")).toLatin1());
        // What a write leaves that was cut off is no item.
        writeFile(content(loginId + QStringLiteral(".hYtGfr")), "half");

        GPMSafe safe;
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        QCOMPARE(safe.item(QStringLiteral("a"))->title(), QStringLiteral("new"));
        QCOMPARE(safe.item(QStringLiteral("b"))->title(), QStringLiteral("mine"));
        QVERIFY(safe.unreadableFiles().isEmpty());

        // A save goes to the generation that was read.
        const QByteArray old = contentOf(content(QStringLiteral("a")));
        safe.item(QStringLiteral("a"))->setTitle(QStringLiteral("newer"));
        QVERIFY(safe.saveChanges());
        QCOMPARE(contentOf(content(QStringLiteral("a"))), old);
        GPMSafe again;
        QVERIFY(again.open(m_folder) && again.unlock(samplePassword));
        QCOMPARE(again.item(QStringLiteral("a"))->title(), QStringLiteral("newer"));
    }

    void oneFailingWriteKeepsItsItemChanged()
    {
        copySampleSafe(m_folder);
        SafeEnvironment environment;
        auto files = std::make_shared<FaultyFiles>();
        environment.files = files;
        GPMSafe safe(environment);
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        const std::vector<PMListItem *> items = safe.items();
        for (std::size_t i = 0; i < 3; ++i)
            items[i]->setNote(QStringLiteral("changed"));
        const QByteArray second = contentOf(content(items[1]->id()));
        files->failAt = 2;
        QVERIFY(!safe.saveChanges());
        QVERIFY(!items[0]->isChanged());
        QVERIFY(items[1]->isChanged());
        QVERIFY(!items[2]->isChanged());
        QCOMPARE(contentOf(content(items[1]->id())), second);
        QVERIFY(safe.saveChanges());
        QVERIFY(!items[1]->isChanged());
    }

    void whoHearsOfAFailedSaveAtALockFindsItLocked()
    {
        copySampleSafe(m_folder);
        SafeEnvironment environment;
        auto files = std::make_shared<FaultyFiles>();
        environment.files = files;
        GPMSafe safe(environment);
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        safe.items().front()->setNote(QStringLiteral("changed"));
        QVector<bool> unlockedThen;
        connect(&safe, &GPMSafe::saved,
                [&](bool good) { unlockedThen.append(good || safe.isUnlocked()); });
        files->failAt = 1;
        safe.lock();
        QCOMPARE(unlockedThen, QVector<bool>{false});
    }

    void savingInTheBackgroundKeepsLaterEdits()
    {
        copySampleSafe(m_folder);
        GPMSafe safe;
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        PMListItem *item = safe.item(loginId);
        QSignalSpy saved(&safe, &GPMSafe::saved);
        item->setNote(QStringLiteral("first"));
        safe.saveChangesAsync();
        item->setNote(QStringLiteral("second"));
        QVERIFY(saved.wait());
        QVERIFY(item->isChanged());
        safe.saveChangesAsync();
        safe.lock(); // at once, with the write under way
        QVERIFY(safe.unlock(samplePassword));
        QCOMPARE(safe.item(loginId)->note(), QStringLiteral("second"));
    }

    void unlockInTheBackground()
    {
        copySampleSafe(m_folder);
        qRegisterMetaType<SafeUnlock::Outcome>();
        GPMSafe safe;
        QVERIFY(safe.open(m_folder));
        QSignalSpy finished(&safe, &GPMSafe::unlockFinished);
        QSignalSpy progress(&safe, &GPMSafe::unlockProgress);
        const auto outcome = [&finished] {
            return finished.takeFirst().at(0).value<SafeUnlock::Outcome>();
        };

        safe.unlockAsync(QStringLiteral("wrong"));
        QVERIFY(finished.wait());
        QCOMPARE(outcome(), SafeUnlock::Outcome::WrongPassword);

        safe.unlockAsync(samplePassword);
        QVERIFY(progress.wait());
        safe.cancelUnlock();
        QVERIFY(finished.wait());
        QCOMPARE(outcome(), SafeUnlock::Outcome::Cancelled);
        QVERIFY(!safe.isUnlocked());

        safe.unlockAsync(QStringLiteral("wrong"));
        safe.unlockAsync(samplePassword); // takes the place of the first
        QVERIFY(finished.wait());
        QCOMPARE(outcome(), SafeUnlock::Outcome::Unlocked);
        QCOMPARE(safe.itemCount(), 22);
        QVERIFY(finished.isEmpty());
        safe.lock();
        safe.unlockAsync(samplePassword);
        safe.lock(); // nobody is to be let in after this
        QVERIFY(!finished.wait(200));
        QVERIFY(!safe.isUnlocked());
    }

    void deletedForGood()
    {
        copySampleSafe(m_folder);
        SafeEnvironment environment;
        auto files = std::make_shared<FaultyFiles>();
        environment.files = files;
        GPMSafe safe(environment);
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        const QString attachment = QStringLiteral("00000000-0000-000b-0000-000000001234");
        const QMap<QString, QByteArray> before = snapshot(m_folder);

        files->failAt = 1;
        QVERIFY(!safe.removeItems({loginId, attachment}));
        QVERIFY(safe.item(loginId));
        QCOMPARE(snapshot(m_folder), before);

        // A file that cannot be removed keeps its item, and so does not bring it back unnoticed.
        files->failAt = files->operations + 2;
        QVERIFY(!safe.removeItems({loginId}));
        QVERIFY(safe.item(loginId));

        // What an interrupted change of password left of an item goes with it.
        writeFile(content(loginId + QStringLiteral(".3")), "left behind");
        QVERIFY(safe.removeItems({loginId}));
        QVERIFY(safe.removeItems({attachment}));
        QCOMPARE(safe.itemCount(), 20);
        QCOMPARE(contentOf(m_folder + QStringLiteral("/safe.deleted")),
                 (loginId + QLatin1Char('\n') + attachment + QLatin1Char('\n')).toUtf8());
        QMap<QString, QByteArray> expected = before;
        expected.remove(QStringLiteral("content/") + loginId);
        expected.remove(QStringLiteral("content/") + attachment);
        expected.remove(QStringLiteral("attachment/") + attachment);
        QMap<QString, QByteArray> now = snapshot(m_folder);
        now.remove(QStringLiteral("safe.deleted"));
        QCOMPARE(now, expected);
    }

    void attachmentsOfTheirOwn()
    {
        GPMSafe safe;
        QVERIFY(safe.init(m_folder, QStringLiteral("p"), QStringLiteral("n"), QStringLiteral("h")));
        QBuffer bytes;
        bytes.setData(QByteArray(100000, 'z'));
        bytes.open(QIODevice::ReadOnly);
        const PMListItem *item = safe.addAttachment(makeItem(PMListItem::Attachment), bytes);
        QVERIFY(item);
        safe.lock();
        QVERIFY(safe.unlock(QStringLiteral("p")));
        QBuffer back;
        back.open(QIODevice::WriteOnly);
        QVERIFY(safe.readAttachment(safe.items().front()->id(), back));
        QCOMPARE(back.data(), QByteArray(100000, 'z'));
        QVERIFY(!safe.readAttachment(QStringLiteral("none"), back));
    }
};

QTEST_GUILESS_MAIN(TestGpmSafe)
#include "tst_gpmsafe.moc"
