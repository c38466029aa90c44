#include "GpmSafeTest.h"

class TestGpmSafe : public GpmSafeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }

    void sampleSafeOpensWithEveryField()
    {
        copySampleSafe(m_folder);
        GPMSafe safe;
        QVERIFY(safe.open(m_folder));
        QCOMPARE(safe.name(), "Reference safe"_s);
        QCOMPARE(safe.hint(), "the usual"_s);
        QCOMPARE(safe.created().toMSecsSinceEpoch(), 1794211200123);
        QVERIFY(safe.unlock(samplePassword));
        QVERIFY(safe.unreadableFiles().isEmpty());

        const QJsonObject plain = samplePlain();
        const QJsonArray expected = plain.value("items"_s).toArray();
        QCOMPARE(safe.itemCount(), expected.size());
        QSet<int> kinds;
        for (const QJsonValue &value : expected) {
            const QJsonObject document = value.toObject();
            const QJsonObject fields = document.value("public"_s).toObject();
            const PMListItem *item = safe.item(fields.value("id"_s).toString());
            QVERIFY(item);
            kinds.insert(item->type());
            QVERIFY(!item->isChanged());
            const PMItemDocument read = PMItemDocument::fromItem(*item);
            for (auto field = fields.begin(); field != fields.end(); ++field)
                QCOMPARE(read.publicFields.value(field.key()), field.value());
            QCOMPARE(read.privateFields, document.value("private"_s).toObject());
        }
        QCOMPARE(kinds.size(), 11);

        const QJsonObject attachments = plain.value("attachments"_s).toObject();
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
                     fileHash(m_folder + "/attachment/"_s + hash.key()));
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
            QVERIFY(before.value("content/"_s + id) != after.value("content/"_s + id));
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
            QVERIFY(safe.init(m_folder, "pä55 🔑"_s, "Mine"_s, "a key"_s));
            QVERIFY(safe.isUnlocked());
            id = safe.addItem(makeLogin("Mail"_s, "secret"_s))->id();
            QVERIFY(!safe.addItem([&] {
                auto twin = makeLogin("Twin"_s, {});
                twin->setId(id);
                return twin;
            }()));
            now += 1000;
            safe.lock(); // saves
            QVERIFY(!safe.item(id));
            QCOMPARE(safe.itemCount(), 0);
            QVERIFY(!safe.saveChanges());
        }
        QCOMPARE(contentOf(m_folder + "/safe.meta"_s), contentOf(m_folder + "/safe.restore"_s));
        QVERIFY(!contentOf(content(id)).contains("secret"));

        GPMSafe safe(environment);
        QVERIFY(safe.open(m_folder));
        QCOMPARE(safe.created().toMSecsSinceEpoch(), now - 1000);
        QCOMPARE(safe.modified().toMSecsSinceEpoch(), now);
        const QMap<QString, QByteArray> before = snapshot(m_folder);
        for (const QString &wrong : {"pä55"_s, QString(), "PÄ55 🔑"_s})
            QVERIFY(!safe.unlock(wrong));
        QVERIFY(!safe.isUnlocked());
        QCOMPARE(snapshot(m_folder), before);
        QVERIFY(safe.unlock("pä55 🔑"_s));
        QCOMPARE(safe.item(id)->property("password").toString(), "secret"_s);
        QVERIFY(safe.isPassword("pä55 🔑"_s));
        QVERIFY(!safe.isPassword("pä55"_s));
    }

    void initRefuses()
    {
        const QString missing = m_folder + "/missing"_s;
        QVERIFY(!GPMSafe().init(missing, "p"_s, "n"_s, {}));
        QVERIFY(!QDir(missing).exists());

        QVERIFY(!GPMSafe().init(m_folder, QString(), "n"_s, {}));
        for (int failAt = 1; failAt <= 3; ++failAt) {
            SafeEnvironment environment;
            auto files = std::make_shared<FaultyFiles>();
            files->failAt = failAt;
            environment.files = files;
            const bool copyFailed = failAt == 2; // the second copy of the description alone
            QCOMPARE(GPMSafe(environment).init(m_folder, "p"_s, {}, {}), copyFailed);
            if (!copyFailed)
                QVERIFY(QDir(m_folder).isEmpty());
            else
                QVERIFY(QDir(m_folder).removeRecursively() && QDir().mkpath(m_folder));
        }

        copySampleSafe(m_folder);
        const QMap<QString, QByteArray> before = snapshot(m_folder);
        QVERIFY(!GPMSafe().init(m_folder, "p"_s, "n"_s, {}));
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
        writeFile(m_folder + "/safe.meta"_s, text);
        GPMSafe safe;
        QCOMPARE(safe.open(m_folder), opens);
        if (opens)
            QCOMPARE(safe.created().toMSecsSinceEpoch(), created);
        QCOMPARE(contentOf(m_folder + "/safe.meta"_s), text);
    }

    void olderDescription()
    {
        copySampleSafe(m_folder);
        const QByteArray passId = contentOf(m_folder + "/safe.passid"_s);
        QFile::remove(m_folder + "/safe.passid"_s);
        writeFile(m_folder + "/safe.content"_s,
                  json("{'name':'Old','keep':7,'pass_id':'") + passId + "\"}");
        GPMSafe safe;
        QVERIFY(safe.open(m_folder));
        QCOMPARE(safe.name(), "Old"_s);
        QVERIFY(safe.unlock(samplePassword));
        safe.setName("New"_s);
        QVERIFY(safe.writeMetaFile());
        GPMSafe again;
        QVERIFY(again.open(m_folder));
        QCOMPARE(again.name(), "New"_s);
        QVERIFY(contentOf(m_folder + "/safe.meta"_s).contains("\"keep\": 7"));
        // The description holds the only pass id.
        QVERIFY(again.unlock(samplePassword));
    }

    void cutSafeFolders_data()
    {
        QTest::addColumn<QString>("gone");
        QTest::addColumn<bool>("opens");
        QTest::newRow("description") << "safe.meta"_s << false;
        QTest::newRow("pass id") << "safe.passid"_s << true;
        QTest::newRow("items") << "content"_s << true;
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
            {"empty"_s, {}},
            {"cut"_s, good.left(200).toLatin1()},
            {"random"_s, QByteArray::fromHex("00ff13377f")},
            {"not-an-envelope"_s, "hello"},
            {"not-json"_s, itemText(password, "hello").toLatin1()},
            {"array"_s, itemText(password, "[]").toLatin1()},
            {"deep"_s, itemText(password, QByteArray(5000, '[')).toLatin1()},
            {"other-password"_s, itemText("other", document).toLatin1()},
            {"private-of-other-password"_s,
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
        writeFile(content("a"_s), itemText(password, document("old")).toLatin1());
        writeFile(content("a.2"_s), itemText(password, document("new")).toLatin1());
        writeFile(content("b"_s), itemText(password, document("mine")).toLatin1());
        writeFile(content("b.1"_s), itemText("other", document("x")).toLatin1());
        // What a write leaves that was cut off is no item.
        writeFile(content(loginId + ".hYtGfr"_s), "half");

        GPMSafe safe;
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        QCOMPARE(safe.item("a"_s)->title(), "new"_s);
        QCOMPARE(safe.item("b"_s)->title(), "mine"_s);
        QVERIFY(safe.unreadableFiles().isEmpty());

        // A save goes to the generation that was read.
        const QByteArray old = contentOf(content("a"_s));
        safe.item("a"_s)->setTitle("newer"_s);
        QVERIFY(safe.saveChanges());
        QCOMPARE(contentOf(content("a"_s)), old);
        GPMSafe again;
        QVERIFY(again.open(m_folder) && again.unlock(samplePassword));
        QCOMPARE(again.item("a"_s)->title(), "newer"_s);
    }
};

QTEST_GUILESS_MAIN(TestGpmSafe)
#include "tst_gpmsafe.moc"
