#include "ConnectionOwner.h"
#include "Platform.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <fstream>
#include <sstream>

#include <unistd.h>

class TestConnectionOwner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table();
    void ownConnection();
};

void TestConnectionOwner::table()
{
    const std::string head = "  sl  local_address rem_address   st tx_queue rx_queue tr tm->when "
                             "retrnsmt   uid  timeout inode\n";
    const std::string rest = " 0 4712 1 0000000000000000 20 4 30 10 -1\n";
    const std::string text =
        head + "   0: 0100007F:1EDB 00000000:0000 0A 00000000:00000000 00:00000000 00000000  1000" +
        rest + "   1: 0100007F:1EDB 0100007F:C001 01 00000000:00000000 00:00000000 00000000  1000" +
        rest + "   2: 0100007F:C001 0100007F:1EDC 01 00000000:00000000 00:00000000 00000000  1003" +
        rest + "   3: 0200007F:C001 0100007F:1EDB 01 00000000:00000000 00:00000000 00000000  1004" +
        rest + "   4: 0100007F:C001 0100007F:1EDB 01 00000000:00000000 00:00000000 00000000  1001" +
        rest +
        "   5: 0000000000000000FFFF00000100007F:C002 0000000000000000FFFF00000100007F:1EDB 01 "
        "00000000:00000000 02:000A7214 00000000  1002" +
        rest + "  10: 0100007F:C003 0100007F:1EDB";
    const auto ownerOf = [&](std::uint16_t port) {
        std::istringstream stream(text);
        return connectionOwner(stream, port, 7899);
    };
    QCOMPARE(ownerOf(0xC001).value_or(0), 1001U);
    QCOMPARE(ownerOf(0xC002).value_or(0), 1002U);
    QVERIFY(!ownerOf(0xC003));
    QVERIFY(!ownerOf(7899));
}

void TestConnectionOwner::ownConnection()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, server.serverPort());
    QVERIFY(socket.waitForConnected());
    std::ifstream table("/proc/net/tcp");
    const auto owner = connectionOwner(table, socket.localPort(), server.serverPort());
    QVERIFY(owner);
    QCOMPARE(*owner, getuid());
    QVERIFY(!Platform::create()->isForeignConnection(socket.localPort(), server.serverPort()));
}

QTEST_GUILESS_MAIN(TestConnectionOwner)
#include "tst_connectionowner.moc"
