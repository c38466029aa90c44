#include "../guard/FakeActivity.h"
#include "GPMAppCore.h"
#include "PMItemFactory.h"
#include "PMLogin.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QWebSocket>
#include <QtTest>

namespace {

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

/// The browser extension's end of the link.
class Extension : public QObject
{
public:
    explicit Extension(quint16 port)
    {
        connect(&m_socket, &QWebSocket::textMessageReceived, this, [this](const QString &text) {
            received.append(QJsonDocument::fromJson(text.toUtf8()).object());
        });
        connect(&m_socket, &QWebSocket::connected, this,
                [this] { send(QStringLiteral("hello"), {}); });
        m_socket.open(QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(port)));
    }

    void send(const QString &action, const QJsonObject &payload)
    {
        const QJsonObject frame{{QStringLiteral("action"), action},
                                {QStringLiteral("version"), QStringLiteral("1.1.32")},
                                {QStringLiteral("bundleId"), QStringLiteral("glaceron.chrome")},
                                {QStringLiteral("payload"), payload}};
        m_socket.sendTextMessage(QString::fromUtf8(QJsonDocument(frame).toJson()));
    }

    bool hasReceived(const QString &action) const
    {
        return std::any_of(received.begin(), received.end(), [&action](const QJsonObject &frame) {
            return frame.value(QStringLiteral("action")) == action;
        });
    }

    QVector<QJsonObject> received;

private:
    QWebSocket m_socket;
};

/// A web site that has a picture at every address.
class Site : public QTcpServer
{
public:
    int requests = 0;

    Site()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, std::bind(&Site::answer, this, socket));
        });
    }

    QString icon() const { return QStringLiteral("http://127.0.0.1:%1/icon").arg(serverPort()); }

private:
    void answer(QTcpSocket *socket)
    {
        ++requests;
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(Qt::red);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        socket->write("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + bytes);
        socket->disconnectFromHost();
    }
};

/// A page with a login form at the address, as the answer to a request.
QJsonObject answerTo(const QJsonObject &request, const char *address)
{
    const QByteArray form =
        "[{'formUid':'f','fields':[{'opid':'1','gpmid':'1','type':'text','visible':true,"
        "'name':'user'},{'opid':'2','gpmid':'2','type':'password','visible':true}]}]";
    const QJsonArray forms = QJsonDocument::fromJson(QByteArray(form).replace('\'', '"')).array();
    QJsonObject answer = request;
    answer.remove(QStringLiteral("url"));
    answer.remove(QStringLiteral("openmode"));
    answer.insert(QStringLiteral("tabUrl"), QLatin1String(address));
    answer.insert(
        QStringLiteral("result"),
        QJsonObject{{QStringLiteral("docinfo"), QJsonObject{{QStringLiteral("forms"), forms}}}});
    return answer;
}

} // namespace

class TestGpmAppCore : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<GPMAppCore> m_core;
    quint16 m_port = 0;
    std::shared_ptr<FakeActivity::State> m_user = std::make_shared<FakeActivity::State>();

    PMLogin *addLogin(const char *title)
    {
        auto item = m_core->modelCreateItem(PMListItem::Login);
        item->setTitle(QString::fromLatin1(title));
        item->setUrl(QStringLiteral("https://shop.example/login"));
        item->setProperty("login", QStringLiteral("ana"));
        item->setProperty("password", QStringLiteral("s3cret"));
        return qobject_cast<PMLogin *>(m_core->modelAddItem(std::move(item)));
    }
    /// What the extension is asked when a login of a new safe is to be filled.
    QJsonObject requestForALogin(Extension &extension)
    {
        const auto received = [&extension](int count) {
            return QTest::qWaitFor([&] { return extension.received.size() == count; });
        };
        if (!m_core->createSafe(QStringLiteral("Mine"), QStringLiteral("pw"),
                                QStringLiteral("h")) ||
            !received(1))
            return {};
        m_core->doItemDefaultAction(addLogin("Shop")->id(), QString(), QString());
        return received(2) ? extension.received.at(1).value(QStringLiteral("payload")).toObject()
                           : QJsonObject();
    }
    QString reopened(const QString &id, const char *field)
    {
        GPMSafe safe;
        if (!safe.open(m_core->currentSafe()->folder()) || !safe.unlock(QStringLiteral("pw")))
            return QStringLiteral("does not open");
        return safe.item(id) ? safe.item(id)->property(field).toString() : QStringLiteral("gone");
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        m_port = freePort();
        m_core = std::make_unique<GPMAppCore>(
            GPMAppCore::Places{m_home->filePath(QStringLiteral("config")),
                               m_home->filePath(QStringLiteral("data")),
                               m_home->filePath(QStringLiteral("hidden")),
                               m_port,
                               {},
                               [user = m_user] { return std::make_unique<FakeActivity>(user); }});
        m_core->startServer();
    }
    void cleanup() { m_core.reset(); }

    void iconsOfSitesGoIntoTheOpenSafe()
    {
        Site site;
        QSignalSpy changed(m_core.get(), &GPMAppCore::siteIconChanged);
        SiteIconDesk &icons = m_core->siteIcons();
        icons.download(QStringLiteral("127.0.0.1"), site.icon());
        QVERIFY(m_core->createSafe(QStringLiteral("Mine"), QStringLiteral("pw"), {}));
        const QDir folder(m_core->currentSafe()->folder() + QStringLiteral("/favicon"));
        QVERIFY(icons.setEnabled(false));
        icons.download(QStringLiteral("127.0.0.1"), site.icon());
        QVERIFY(icons.setEnabled(true));
        icons.download(QStringLiteral("127.0.0.1"), site.icon());
        QVERIFY(changed.wait());
        QCOMPARE(changed.first(), QVariantList{QStringLiteral("127.0.0.1")});
        QCOMPARE(folder.entryList(QDir::Files), QStringList(QStringLiteral("127.0.0.1.png")));

        // What is under way when the safe locks comes to nothing.
        QVERIFY(QFile::remove(folder.filePath(QStringLiteral("127.0.0.1.png"))));
        m_core->unlockCurrentSafe(QStringLiteral("pw"));
        icons.download(QStringLiteral("localhost"), site.icon());
        m_core->lockCurrentSafe();
        icons.download(QStringLiteral("127.0.0.1"), site.icon());
        QVERIFY(icons.findChildren<IconFetch *>().isEmpty());
        QCOMPARE(site.requests, 1);
    }

    void aSafeIsCreatedLockedAndUnlocked()
    {
        QSignalSpy locked(m_core.get(), &GPMAppCore::safeLockedChanged);
        QVERIFY(
            m_core->createSafe(QStringLiteral("Mine"), QStringLiteral("pw"), QStringLiteral("h")));
        const QString id = addLogin("Shop")->id();
        m_core->lockCurrentSafe();
        m_core->lockCurrentSafe();
        QCOMPARE(locked.count(), 2);
        QCOMPARE(locked.at(0).at(0).toBool(), false);
        QCOMPARE(locked.at(1).at(0).toBool(), true);
        QVERIFY(!m_core->modelAddItem(m_core->modelCreateItem(PMListItem::Login)));
        m_core->modelItemDeleted(id); // while locked: nothing to do

        QSignalSpy finished(m_core.get(), &GPMAppCore::unlockFinished);
        m_core->unlockCurrentSafe(QStringLiteral("wrong"));
        QVERIFY(finished.wait());
        QVERIFY(!m_core->currentSafe()->isUnlocked());
        m_core->unlockCurrentSafe(QStringLiteral("pw"));
        QVERIFY(finished.wait());
        QCOMPARE(m_core->currentSafe()->item(id)->title(), QStringLiteral("Shop"));

        QVERIFY(!m_core->selectSafe(m_home->filePath(QStringLiteral("none"))));
        QVERIFY(!m_core->currentSafe());
    }

    void backupsOfAllSafesRunOnTheTimerAndImport()
    {
        QVERIFY(m_core->createSafe(QStringLiteral("One"), QStringLiteral("pw"), {}));
        const QString id = addLogin("Shop")->id();
        QVERIFY(m_core->saveCurrentSafe());
        QVERIFY(m_core->createSafe(QStringLiteral("Two"), QStringLiteral("pw"), {}));
        QSignalSpy finished(&m_core->backups(), &Backups::finished);
        QSignalSpy told(m_core.get(), &GPMAppCore::message);
        m_core->settings().setBackupCheck(QDateTime::currentDateTimeUtc().addDays(-1));
        QVERIFY(finished.wait());
        QCOMPARE(m_core->backups().folder(), m_home->filePath(QStringLiteral("hidden/backup")));
        QVector<BackupEntry> entries = m_core->backups().overview().result().archives;
        QCOMPARE(entries.size(), 2);
        if (entries.first().description.name != QLatin1String("One"))
            std::swap(entries[0], entries[1]);

        QSignalSpy imported(m_core.get(), &GPMAppCore::importFinished);
        m_core->importSafeArchive(entries.first().path);
        m_core->importSafeArchive(entries.last().path); // one at a time
        QVERIFY(imported.wait());
        QCOMPARE(imported.count(), 1);
        const QString folder = imported.first().first().value<ArchiveResult>().path;
        QVERIFY(m_core->selectSafe(folder));
        QVERIFY(m_core->currentSafe()->name().startsWith(QStringLiteral("One [")));
        QVERIFY(m_core->currentSafe()->unlock(QStringLiteral("pw")));
        QVERIFY(m_core->currentSafe()->item(id));
        QVERIFY(told.isEmpty());

        // No room for backups any more: said once, in words.
        m_core->settings().setBackupPath(folder + QStringLiteral("/safe.meta/backups"));
        m_core->settings().setBackupCheck(QDateTime::currentDateTimeUtc().addDays(-1));
        QVERIFY(told.wait());
        QVERIFY(told.first().at(1).toString().contains(QStringLiteral("One")));
        QVERIFY(told.first().at(1).toString().contains(QStringLiteral("can't be written")));
    }

    void attachmentsGoWithTheLastItemThatHasThem()
    {
        QVERIFY(m_core->createSafe(QStringLiteral("Mine"), QStringLiteral("pw"), {}));
        const std::shared_ptr<GPMSafe> safe = m_core->currentSafe();
        const auto attach = [&safe] {
            QBuffer bytes;
            bytes.open(QIODevice::ReadOnly);
            return safe->addAttachment(makeItem(PMListItem::Attachment), bytes)->id();
        };
        const QString own = attach();
        const QString shared = attach();
        const QString single = attach();
        PMLogin *parent = addLogin("Parent");
        PMLogin *other = addLogin("Other");
        const QString parentId = parent->id();
        parent->setRefs({own, shared, other->id()});
        other->setRefs({shared, single});
        m_core->modelItemDeleted(parentId);
        m_core->modelItemDeleted(single);
        QCOMPARE(m_core->attachmentsGoingWith({parentId}), QStringList{own});
        m_core->modelItemPurged(single);
        // What was deleted by itself is no longer referred to.
        QCOMPARE(other->refs(), QStringList{shared});
        m_core->modelClearTrash();
        QVERIFY(!safe->item(parentId) && !safe->item(own) && !safe->item(single));
        QVERIFY(safe->item(shared) && safe->item(other->id()));
        const QDir files(safe->folder() + QStringLiteral("/attachment"));
        QCOMPARE(files.entryList(QDir::Files), QStringList{shared});
        const QString otherId = other->id();
        m_core->lockCurrentSafe();
        QCOMPARE(reopened(otherId, "title"), QStringLiteral("Other"));
    }

    void privateFilesEndWithTheSafe()
    {
        const auto write = [](QIODevice &device) { return device.write("secret") == 6; };
        QVERIFY(m_core->createSafe(QStringLiteral("Mine"), QStringLiteral("pw"), {}));
        const auto privateFile = [&] {
            return m_core->privateFiles()
                .create(QStringLiteral("a.txt"), write, m_core->privateFiles().wipes())
                .value_or(QString());
        };
        QString path = privateFile();
        QVERIFY(QFile::exists(path));
        m_core->lockCurrentSafe();
        QVERIFY(!QFile::exists(path));
        path = privateFile();
        m_core->exitPasswordManager();
        QVERIFY(!QFile::exists(path));
        path = privateFile();
        m_core->prepareForSessionEnd();
        QVERIFY(!QFile::exists(path));
        // As a crash leaves it: the next start wipes, whichever safe is opened then.
        path = privateFile();
        const QString data = m_home->filePath(QStringLiteral("data"));
        const GPMAppCore next({m_home->filePath(QStringLiteral("config")), data,
                               m_home->filePath(QStringLiteral("hidden")), freePort()});
        QVERIFY(!QFile::exists(path));
    }

    /// The program ends right after the copy in the cloud folder was to be removed.
    void removesTheCloudCopyBeforeItEnds()
    {
        QVERIFY(m_core->createSafe(QStringLiteral("Mine"), QStringLiteral("pw"), {}));
        const QString folder = m_core->currentSafe()->folder();
        const QString cloud = m_home->filePath(QStringLiteral("cloud"));
        QVERIFY(QDir().mkpath(cloud));
        for (int i = 0; i < 5; ++i)
            addLogin("Login");
        QVERIFY(m_core->saveCurrentSafe());
        QSignalSpy on(&m_core->cloud(), &CloudSync::turnedOn);
        m_core->cloud().turnOn(folder, cloud);
        QVERIFY(on.wait(20000));
        m_core->cloud().synchronize();
        QTRY_COMPARE_WITH_TIMEOUT(m_core->cloud().status().state, CloudStatus::State::Synchronised,
                                  20000);
        QVERIFY(!QDir(cloud).isEmpty());
        m_core->cloud().turnOff(folder, true);
        m_core->exitPasswordManager();
        QVERIFY(QDir(cloud).isEmpty());
        const SafeFacts facts(m_home->filePath(QStringLiteral("config/safes.json")));
        QVERIFY(facts.folders().contains(folder));
        QVERIFY(facts.of(folder).mirrorFolder.isEmpty());
    }

    void commandsOnItemsReachTheDisk()
    {
        QVERIFY(
            m_core->createSafe(QStringLiteral("Mine"), QStringLiteral("pw"), QStringLiteral("h")));
        const QString kept = addLogin("Kept")->id();
        const QString gone = addLogin("Gone")->id();
        QSignalSpy saved(m_core->currentSafe().get(), &GPMSafe::saved);
        m_core->currentSafe()->item(kept)->setNote(QStringLiteral("noted"));
        m_core->modelItemChanged(kept);
        QTRY_COMPARE(saved.count(), 3);
        QCOMPARE(reopened(kept, "note"), QStringLiteral("noted"));
        m_core->modelItemDeleted(gone);
        m_core->modelItemDeleted(kept);
        QTRY_COMPARE(saved.count(), 5);
        QCOMPARE(reopened(gone, "deleted"), QStringLiteral("true"));
        m_core->modelItemRestored(kept);
        QTRY_COMPARE(saved.count(), 6);
        m_core->modelClearTrash();
        QCOMPARE(reopened(gone, "title"), QStringLiteral("gone"));
        QCOMPARE(reopened(kept, "deleted"), QStringLiteral("false"));
        m_core->modelItemDeleted(kept);
        m_core->modelRestoreAll();
        QTRY_COMPARE(saved.count(), 8);
        QCOMPARE(reopened(kept, "deleted"), QStringLiteral("false"));
    }

    void aSaveThatFailsIsTold()
    {
        QVERIFY(
            m_core->createSafe(QStringLiteral("Mine"), QStringLiteral("pw"), QStringLiteral("h")));
        const QString content = m_core->currentSafe()->folder() + QStringLiteral("/content");
        QVERIFY(QDir().rename(content, content + QStringLiteral(".away")));
        QSignalSpy message(m_core.get(), &GPMAppCore::message);
        PMLogin *login = addLogin("Shop");
        QVERIFY(message.wait());
        QVERIFY(message.at(0).at(1).toString().contains(login->id()));
        QVERIFY(!message.at(0).at(1).toString().contains(QStringLiteral("s3cret")));
        QVERIFY(QDir().rename(content + QStringLiteral(".away"), content));
        const QString id = login->id();
        m_core->lockCurrentSafe();
        QCOMPARE(reopened(id, "title"), QStringLiteral("Shop"));
    }

    void aLoginGoesToItsSiteAndIsCounted()
    {
        QVERIFY(
            m_core->createSafe(QStringLiteral("Mine"), QStringLiteral("pw"), QStringLiteral("h")));
        const PMLogin *login = addLogin("Shop");
        Extension extension(m_port);
        QTRY_COMPARE(extension.received.size(), 1);
        m_core->doItemDefaultAction(login->id(), QString(), QString());
        QTRY_COMPARE(extension.received.size(), 2);
        const QJsonObject request =
            extension.received.at(1).value(QStringLiteral("payload")).toObject();
        QCOMPARE(request.value(QStringLiteral("openmode")).toString(), QStringLiteral("current"));
        extension.send(QStringLiteral("collectDocumentResults"),
                       answerTo(request, "https://www.shop.example/"));
        QTRY_COMPARE(extension.received.size(), 3);
        const QJsonObject fill =
            extension.received.at(2).value(QStringLiteral("payload")).toObject();
        QCOMPARE(extension.received.at(2).value(QStringLiteral("action")).toString(),
                 QStringLiteral("fillForm"));
        const QJsonArray elements = fill.value(QStringLiteral("elements")).toArray();
        QCOMPARE(elements.at(0).toObject().value(QStringLiteral("value")).toString(),
                 QStringLiteral("ana"));
        QCOMPARE(elements.at(1).toObject().value(QStringLiteral("value")).toString(),
                 QStringLiteral("s3cret"));
        QCOMPARE(fill.value(QStringLiteral("submit")).toBool(), true);
        QCOMPARE(login->useCount(), 1);
        QVERIFY(login->lastAccessed().isValid());
    }

    void nothingIsFilledOnceTheSafeIsLocked()
    {
        Extension extension(m_port);
        const QJsonObject request = requestForALogin(extension);
        QVERIFY(!request.isEmpty());
        m_core->lockCurrentSafe();
        QSignalSpy finished(m_core.get(), &GPMAppCore::unlockFinished);
        m_core->unlockCurrentSafe(QStringLiteral("pw"));
        QVERIFY(finished.wait());
        // An answer to what was asked before the lock; a page to open tells when it was seen.
        QSignalSpy shown(m_core.get(), &GPMAppCore::requestQuickAccess);
        extension.send(QStringLiteral("collectDocumentResults"),
                       answerTo(request, "https://shop.example/"));
        extension.send(QStringLiteral("showWindow"),
                       {{QStringLiteral("url"), QStringLiteral("x")}});
        QVERIFY(shown.wait());
        QVERIFY(!extension.hasReceived(QStringLiteral("fillForm")));
    }

    void nothingIsFilledRightAfterALongSleep()
    {
        Extension extension(m_port);
        const QJsonObject request = requestForALogin(extension);
        QVERIFY(!request.isEmpty());
        m_core->checkInactivity();
        m_user->tick += 4 * 60 * 1000;
        extension.send(QStringLiteral("collectDocumentResults"),
                       answerTo(request, "https://shop.example/"));
        QTRY_VERIFY(!m_core->currentSafe()->isUnlocked());
        extension.send(QStringLiteral("getState"), {{QStringLiteral("request_id"), 7}});
        const auto isAnswer = [](const QJsonObject &frame) {
            return frame.value(QStringLiteral("action")) == QStringLiteral("state") &&
                   frame.value(QStringLiteral("payload"))[QLatin1String("request_id")] == 7;
        };
        QTRY_VERIFY(std::any_of(extension.received.begin(), extension.received.end(), isAnswer));
        QVERIFY(!extension.hasReceived(QStringLiteral("fillForm")));
    }

    void aHomeThatCannotBeWrittenTo()
    {
        // A file stands where the folders should be made.
        const QString blocked = m_home->filePath(QStringLiteral("blocked"));
        QFile file(blocked);
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString inside = blocked + QStringLiteral("/x");
        GPMAppCore core(GPMAppCore::Places{inside, inside, inside, freePort()});
        core.startServer();
        QVERIFY(!core.createSafe(QStringLiteral("n"), QStringLiteral("p"), QStringLiteral("h")));
        QVERIFY(!core.currentSafe());
        QVERIFY(!core.settings().storeSettings());
        QCOMPARE(file.size(), 0);
    }

    void aPortThatIsTaken()
    {
        // The core of init() has it.
        GPMAppCore core(GPMAppCore::Places{m_home->filePath(QStringLiteral("config2")),
                                           m_home->filePath(QStringLiteral("data2")),
                                           m_home->filePath(QStringLiteral("hidden2")), m_port});
        core.startServer();
        QVERIFY(core.createSafe(QStringLiteral("n"), QStringLiteral("p"), QStringLiteral("h")));
        auto item = core.modelCreateItem(PMListItem::Login);
        item->setUrl(QStringLiteral("shop.example/in"));
        QSignalSpy opened(&core, &GPMAppCore::openAddress);
        core.doItemDefaultAction(core.modelAddItem(std::move(item))->id(), QString(), QString());
        QCOMPARE(opened.at(0).at(0).toUrl(), QUrl(QStringLiteral("http://shop.example/in")));
    }

    void anOldExtensionIsToldOf()
    {
        QSignalSpy message(m_core.get(), &GPMAppCore::message);
        m_core->onHello(QStringLiteral("c"), QStringLiteral("1.0.1.100"),
                        QStringLiteral("glaceron.chrome"));
        QCOMPARE(message.count(), 1);
        QCOMPARE(message.at(0).at(0).toString(), QStringLiteral("Warning"));
        QCOMPARE(message.at(0).at(1).toString(),
                 QStringLiteral("Invalid plugin version for Chrome extension: 1.0.1.100"));
        m_core->onHello(QStringLiteral("c"), QStringLiteral("1.1.32"),
                        QStringLiteral("glaceron.chrome"));
        QCOMPARE(message.count(), 1);
    }
};

QTEST_MAIN(TestGpmAppCore)
#include "tst_gpmappcore.moc"
