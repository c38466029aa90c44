#include "../Text.h"
#include "../browser/ExtensionClient.h"
#include "../browser/FakePlatform.h"
#include "BrowserLink.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

const QString firefox = "moz-extension://0c4e5b2e-1f0c-4a3f-9a53-33d8b7a5d6c1"_s;

/// The link to browsers, with the files of a user.
struct Link
{
    explicit Link(const QString &folder)
        : appSettings(folder, folder)
        , settings(folder + "/browser.json"_s)
        , approvals(settings)
        , link(
              0, platform, approvals, [](const QString &) { return nullptr; }, appSettings)
    {
    }

    quint16 port() { return link.server().port(); }

    FakePlatform platform;
    GPMAppSettings appSettings;
    LinkSettings settings;
    OriginApprovals approvals;
    BrowserLink link;
};

bool isRefusal(const QJsonObject &frame)
{
    return frame == QJsonObject{{"action"_s, "state"_s},
                                {"payload"_s, QJsonObject{{"refused"_s, "approval"_s}}}};
}

/// Says hello and waits for the refusal; false when anything else comes.
bool isAskedToWait(ExtensionClient &client)
{
    QSignalSpy received(&client, &QWebSocket::textMessageReceived);
    if (!QTest::qWaitFor([&client] { return client.isOpen(); }))
        return false;
    client.sendFrame("pressEnterKey"_s);
    client.sendFrame("hello"_s);
    client.sendFrame("pressEnterKey"_s);
    return received.wait() && isRefusal(client.frames.takeFirst()) && client.frames.isEmpty();
}

} // namespace

class TestOriginApprovals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void unknownOneWaitsForTheUser()
    {
        Link link(m_folder->path());
        QSignalSpy question(&link.approvals, &OriginApprovals::questionChanged);
        ExtensionClient client(link.port(), firefox);
        QVERIFY(isAskedToWait(client));
        QVERIFY(isAskedToWait(client));
        QCOMPARE(link.approvals.question(), firefox);
        QCOMPARE(question.size(), 1);
        QVERIFY(!link.link.hasExtension());
        link.link.server().sendFillCommand({}, {{"secret"_s, 1}});

        link.approvals.approve(firefox);
        // What it said before is forgotten, but for the hello.
        QTRY_COMPARE(client.frames.size(), 1);
        QVERIFY(!client.frames.at(0).value(QLatin1String("callerId")).toString().isEmpty());
        QCOMPARE(link.platform.enterPresses, 0);
        client.sendFrame("pressEnterKey"_s);
        QTRY_COMPARE(link.platform.enterPresses, 1);

        // The next run knows it.
        Link later(m_folder->path());
        QVERIFY(!ExtensionClient(later.port(), firefox).sayHello().isEmpty());
        QCOMPARE(QFile::permissions(later.settings.filePath()),
                 QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
    }

    void unapprovedOneTakesNoPlace()
    {
        Link link(m_folder->path());
        ExtensionClient unknown(link.port(), firefox);
        QVERIFY(isAskedToWait(unknown));
        ExtensionClient chromium(link.port());
        QVERIFY(!chromium.sayHello().isEmpty());
        ExtensionClient behind(link.port());
        QTRY_VERIFY(behind.isOpen());
        // Nor does it move up.
        chromium.close();
        QVERIFY(!behind.sayHello().isEmpty());
        QVERIFY(unknown.frames.isEmpty());

        // Approved while another is served, it comes anew and learns that it has to wait.
        link.approvals.approve(firefox);
        QTRY_VERIFY(!unknown.isOpen());
        QVERIFY(behind.isOpen());
    }

    void refusedOneIsNotAskedAgain()
    {
        Link link(m_folder->path());
        ExtensionClient client(link.port(), firefox);
        QVERIFY(isAskedToWait(client));
        link.approvals.refuse(firefox);
        QTRY_VERIFY(!client.isOpen());
        QSignalSpy question(&link.approvals, &OriginApprovals::questionChanged);
        ExtensionClient again(link.port(), firefox);
        QVERIFY(isAskedToWait(again));
        QVERIFY(question.isEmpty());
        QCOMPARE(link.approvals.refused(), QStringList(firefox));
        // The settings still let the user change it.
        link.approvals.approve(firefox);
        QTRY_VERIFY(link.link.hasExtension());
        QVERIFY(link.approvals.refused().isEmpty());

        link.approvals.refuse(firefox);
        Link nextRun(m_folder->path());
        nextRun.approvals.ask(firefox);
        QCOMPARE(nextRun.approvals.question(), firefox);
    }

    void revokedOneIsCutOff()
    {
        Link link(m_folder->path());
        link.approvals.approve(firefox);
        ExtensionClient client(link.port(), firefox);
        QVERIFY(!client.sayHello().isEmpty());
        ExtensionClient chromium(link.port());
        QTRY_VERIFY(chromium.isOpen());
        link.approvals.refuse(firefox);
        QTRY_VERIFY(!client.isOpen());
        QVERIFY(!chromium.sayHello().isEmpty());
        QVERIFY(LinkSettings(link.settings.filePath()).approvedOrigins().isEmpty());
    }

    void questionsComeOneByOne()
    {
        Link link(m_folder->path());
        for (int i = 0; i < 50; ++i)
            link.approvals.ask(firefox.chopped(2) + QString::number(10 + i));
        int asked = 0;
        while (!link.approvals.question().isEmpty()) {
            link.approvals.refuse(link.approvals.question());
            ++asked;
        }
        // A program that makes up ids does not keep the user busy.
        QVERIFY(asked > 1 && asked < 10);
    }

    void fileOfDecisions_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("approved");
        QTest::addColumn<bool>("icons");
        QTest::newRow("missing keys") << QByteArray("{}") << QStringList() << true;
        QTest::newRow("no JSON") << QByteArray("{\"approved_origins\":") << QStringList() << true;
        QTest::newRow("other types") << QByteArray("{\"approved_origins\":7,\"site_icons\":\"no\"}")
                                     << QStringList() << true;
        QTest::newRow("good") << "{\"approved_origins\":[\"" + firefox.toLatin1() +
                                     "\"],\"site_icons\":false}"
                              << QStringList(firefox) << false;
        QTest::newRow("what nobody could approve")
            << QByteArray("{\"approved_origins\":[\"https://bank.example\",3]}") << QStringList()
            << true;
    }
    void fileOfDecisions()
    {
        QFETCH(QByteArray, content);
        const QString path = m_folder->filePath("browser.json"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        const LinkSettings settings(path);
        QTEST(settings.approvedOrigins(), "approved");
        QTEST(settings.siteIcons(), "icons");
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestOriginApprovals)
#include "tst_originapprovals.moc"
