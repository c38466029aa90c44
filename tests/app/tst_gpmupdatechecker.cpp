#include "../Text.h"
#include "GPMUpdateChecker.h"
#include "UpdateQuery.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrlQuery>
#include <QtTest>

#include <functional>

namespace {

const QString machine = UpdateQuery::machineHash("0123456789abcdef0123456789abcdef", "gpm-linux"_s);

QByteArray answer(const QByteArray &body, const QByteArray &status = "200 OK",
                  const QByteArray &header = {})
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\nSet-Cookie: seen=1\r\nConnection: close\r\n" + header + "\r\n" + body;
}

QByteArray news(const QByteArray &version, const QByteArray &page = "https://glaceron.example/get")
{
    return R"({"version": ")" + version + R"(", "page": ")" + page + R"(", "text": "Better"})";
}

QByteArray redirect(const QByteArray &target)
{
    return answer({}, "302 Found", "Location: " + target + "\r\n");
}

/// A web server that gives its answers one after the other; "{}" in one stands for its port, and an
/// empty one leaves the request open.
class Server : public QTcpServer
{
public:
    QByteArrayList answers;
    QByteArrayList requests;

    Server()
    {
        if (!listen(QHostAddress::LocalHost))
            qFatal("no server");
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, std::bind(&Server::serve, this, socket));
        });
    }

    QUrl url() const { return QUrl("http://127.0.0.1:%1/check"_s.arg(serverPort())); }

private:
    void serve(QTcpSocket *socket)
    {
        requests.append(socket->readAll());
        QByteArray reply = answers.value(qMin(requests.size(), answers.size()) - 1);
        if (reply.isEmpty())
            return;
        socket->write(reply.replace("{}", QByteArray::number(serverPort())));
        socket->disconnectFromHost();
    }
};

/// A checker on a computer of its own.
struct Computer
{
    explicit Computer(Server &server)
        : checker(parts())
        , told(&checker, &GPMUpdateChecker::newVersionFound)
    {
        checker.setEndpoint(server.url());
    }

    GPMUpdateChecker::Parts parts()
    {
        return {"1.1.32"_s,
                "gpm-linux"_s,
                [] { return machine; },
                [this] { return wanted; },
                [this] { return last; },
                [this](const QDateTime &moment) { last = moment; },
                [this](const QString &line) { log.append(line); },
                [this] { return installed; },
                [this] { return now; },
                limit};
    }

    /// Whether an answer came, or none.
    bool answered()
    {
        return QTest::qWaitFor([this] { return checker.state() != GPMUpdateChecker::Asking; },
                               20000);
    }

    bool wanted = true;
    QDateTime now = QDateTime({2026, 5, 1}, {12, 0}, Qt::UTC);
    QDateTime last;
    QStringList log;
    QString installed;
    std::chrono::milliseconds limit = std::chrono::seconds(20);
    GPMUpdateChecker checker;
    QSignalSpy told;
};

} // namespace

class TestGpmUpdateChecker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data()
    {
        using C = GPMUpdateChecker;
        QTest::addColumn<QByteArrayList>("answers");
        QTest::addColumn<int>("state");
        const auto row = [](const char *name, const QByteArrayList &answers, C::State state) {
            QTest::newRow(name) << answers << int(state);
        };
        const auto body = [&row](const char *name, const QByteArray &text, C::State state) {
            row(name, {answer(text)}, state);
        };
        body("newer", news("1.2.0"), C::NewVersion);
        body("newer by number, not by text", news("1.1.100"), C::NewVersion);
        body("the same", news("1.1.32"), C::UpToDate);
        body("the same, written longer", news("1.1.32.0"), C::UpToDate);
        body("older", news("1.1.9"), C::UpToDate);
        body("much older", news("0.9"), C::UpToDate);
        body("no version", news("soon"), C::Failed);
        body("signs after the version", news("1.2.0-<b>x</b>"), C::Failed);
        body("a huge number", news("99999999999.0"), C::Failed);
        body("version of another shape", R"({"version": 2, "page": "https://a.example/"})",
             C::Failed);
        body("a program for a page", news("1.2.0", "file:///bin/sh"), C::Failed);
        body("a page without encryption", news("1.2.0", "http://glaceron.example/"), C::Failed);
        body("a script for a page", news("1.2.0", "javascript:alert(1)"), C::Failed);
        body("a page that poses", news("1.2.0", "https://glaceron.example@evil.example/"),
             C::Failed);
        body("no page", R"({"version": "1.2.0"})", C::Failed);
        body("a list", "[" + news("1.2.0") + "]", C::Failed);
        body("a page of a hotel's network", "<html>Sign in</html>", C::Failed);
        body("nothing", "", C::Failed);
        body("half", news("1.2.0").left(30), C::Failed);
        body("too much", news("1.2.0") + QByteArray(UpdateNews::largest, ' '), C::Failed);
        body("deep", QByteArray(30000, '['), C::Failed);
        row("endless", {"HTTP/1.1 200 OK\r\n\r\n" + QByteArray(4 * 1024 * 1024, 'x')}, C::Failed);
        row("an error with a body", {answer(news("1.2.0"), "500 Oops")}, C::Failed);
        row("another good status", {answer(news("1.2.0"), "203 Altered")}, C::Failed);
        row("no web server", {"GARBAGE\r\n\r\n"}, C::Failed);
        row("led on", {redirect("/there"), answer(news("1.2.0"))}, C::NewVersion);
        row("led to another computer", {redirect("http://192.0.2.1/x"), answer(news("1.2.0"))},
            C::Failed);
        row("led to a file", {redirect("file:///etc/passwd"), answer(news("1.2.0"))}, C::Failed);
        row("led around", {redirect("http://127.0.0.1:{}/again")}, C::Failed);
    }
    void answers()
    {
        QFETCH(QByteArrayList, answers);
        QFETCH(int, state);
        Server server;
        server.answers = answers;
        Computer computer(server);
        computer.checker.checkIfDue();
        QVERIFY(computer.answered());
        QCOMPARE(int(computer.checker.state()), state);
        QCOMPARE(computer.told.size(), state == GPMUpdateChecker::NewVersion ? 1 : 0);
        // Only what was understood counts as asked.
        QCOMPARE(computer.last.isValid(), state != GPMUpdateChecker::Failed);
        QVERIFY(server.requests.size() <= 4);
        for (const QString &line : qAsConst(computer.log))
            QVERIFY2(!line.contains(machine), "The log knows the computer");
    }

    void whatIsSent()
    {
        Server server;
        server.answers = {redirect("/there"), answer(news("1.1.32"))};
        Computer computer(server);
        for (int i = 0; i < 2; ++i) {
            computer.checker.checkNow();
            QVERIFY(computer.answered());
        }
        QCOMPARE(server.requests.size(), 3);
        const QList<QByteArray> lines = server.requests.first().split('\n');
        const QUrl asked(QString::fromLatin1(lines.first().split(' ').value(1)));
        const QByteArray before = "ver=1.1.32&pid=gpm-linux&mh=" + machine.toLatin1();
        const QByteArray check =
            QCryptographicHash::hash(before, QCryptographicHash::Sha256).toHex();
        QCOMPARE(asked.toEncoded(), "/check?" + before + "&h=" + check);
        // Neither the system's language nor cookies of the last time.
        QStringList names;
        for (const QByteArray &line : lines.mid(1))
            names.append(QString::fromLatin1(line.split(':').value(0)).trimmed());
        names.removeAll(QString());
        names.sort();
        QCOMPARE(names.join(QLatin1Char(' ')),
                 "Accept-Encoding Accept-Language Connection Host User-Agent"_s);
        QVERIFY(lines.contains("Accept-Language: en\r"));
        QVERIFY(!server.requests.last().contains("Cookie"));
    }

    void machineHash()
    {
        // Of HMAC-SHA-256 with the identity as its key, by another implementation.
        QCOMPARE(machine, "a93f276ba9d8799b63b9a2ee3193626fc16cc72b92c1bb03d15d72840b028b61"_s);
        QCOMPARE(UpdateQuery::machineHash({}, "gpm-linux"_s), QString());
    }

    void whenItIsDue()
    {
        Server server;
        server.answers = {answer(news("1.1.32"))};
        Computer computer(server);
        const auto asks = [&computer, &server] {
            const int before = server.requests.size();
            computer.checker.checkIfDue();
            return computer.answered() && server.requests.size() > before;
        };
        const qint64 day = 24 * 60 * 60;
        QVERIFY(asks());
        computer.now = computer.now.addSecs(day - 1);
        QVERIFY(!asks());
        computer.now = computer.now.addSecs(1);
        QVERIFY(asks());
        // The clock was a year ahead, and is set right.
        computer.now = computer.now.addYears(-1);
        QVERIFY(asks());
        QCOMPARE(computer.last, computer.now);

        // A failure is tried again before a day has passed, but not at once.
        computer.now = computer.now.addSecs(day);
        server.answers = {answer("?")};
        QVERIFY(asks());
        server.answers = {answer(news("1.1.32"))};
        computer.now = computer.now.addSecs(60 * 60 - 1);
        QVERIFY(!asks());
        computer.now = computer.now.addSecs(1);
        QVERIFY(asks());

        computer.now = computer.now.addSecs(day);
        computer.wanted = false;
        QVERIFY(!asks());
    }

    void askedByTheUser()
    {
        Server server;
        server.answers = {answer(news("1.2.0"))};
        Computer computer(server);
        computer.wanted = false;
        computer.checker.checkNow();
        QVERIFY(computer.answered());
        QCOMPARE(computer.told.size(), 1);
        QVERIFY(computer.told.first().at(1).toBool());

        // Who has it switched off while it is asked is not told.
        computer.now = computer.now.addDays(2);
        computer.wanted = true;
        computer.checker.checkIfDue();
        QCOMPARE(computer.checker.state(), GPMUpdateChecker::Asking);
        computer.wanted = false;
        QVERIFY(computer.answered());
        QCOMPARE(computer.told.size(), 1);

        // Who asks while it is asked waits for the same answer.
        computer.now = computer.now.addDays(2);
        computer.wanted = true;
        computer.checker.checkIfDue();
        computer.checker.checkNow();
        QVERIFY(computer.answered());
        QCOMPARE(server.requests.size(), 3);
        QVERIFY(computer.told.last().at(1).toBool());

        // It is installed already, and only a restart is missing.
        computer.installed = "1.2.0"_s;
        computer.checker.checkNow();
        QVERIFY(computer.answered());
        QCOMPARE(computer.checker.state(), GPMUpdateChecker::UpToDate);
    }

    void noAnswer()
    {
        Server server;
        server.answers = {QByteArray()};
        Computer computer(server);
        GPMUpdateChecker::Parts parts = computer.parts();
        parts.limit = std::chrono::milliseconds(50);
        GPMUpdateChecker checker(parts);
        checker.setEndpoint(server.url());
        checker.checkIfDue();
        QTRY_COMPARE_WITH_TIMEOUT(checker.state(), GPMUpdateChecker::Failed, 20000);
        QVERIFY(!computer.last.isValid());
    }

    void endpoints_data()
    {
        QTest::addColumn<QString>("endpoint");
        QTest::addColumn<bool>("good");
        const auto row = [](const char *endpoint, bool good) {
            QTest::newRow(endpoint) << QString::fromLatin1(endpoint) << good;
        };
        row("", false);
        row("https://updates.glaceron.example/check", true);
        row("http://updates.glaceron.example/check", false);
        row("http://127.0.0.1:8080/check", true);
        row("http://[::1]/check", true);
        row("http://127.0.0.1.evil.example/check", false);
        row("https://user@updates.glaceron.example/check", false);
        row("https://updates.glaceron.example/check?x=1", false);
        row("file:///tmp/check", false);
        row("updates.glaceron.example", false);
    }
    void endpoints()
    {
        QFETCH(QString, endpoint);
        QFETCH(bool, good);
        Server server;
        Computer computer(server);
        computer.checker.setEndpoint(QUrl(endpoint));
        QCOMPARE(computer.checker.hasEndpoint(), good);
        if (good)
            return;
        computer.checker.checkNow();
        computer.checker.checkIfDue();
        QCOMPARE(computer.checker.state(), GPMUpdateChecker::NotAsked);
        QVERIFY(computer.log.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestGpmUpdateChecker)
#include "tst_gpmupdatechecker.moc"
