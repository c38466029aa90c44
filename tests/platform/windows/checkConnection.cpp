#include "Check.h"
#include "ConnectionSession.h"
#include "Platform.h"

#include <winsock2.h>

namespace {

sockaddr_in loopback(std::uint16_t port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

std::uint16_t portOf(SOCKET socket)
{
    sockaddr_in address = {};
    int size = sizeof(address);
    getsockname(socket, reinterpret_cast<sockaddr *>(&address), &size);
    return ntohs(address.sin_port);
}

void ownConnection()
{
    WSADATA data;
    CHECK_EQUAL(WSAStartup(MAKEWORD(2, 2), &data), 0);
    const SOCKET server = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in any = loopback(0);
    CHECK_EQUAL(bind(server, reinterpret_cast<sockaddr *>(&any), sizeof(any)), 0);
    CHECK_EQUAL(listen(server, 1), 0);
    const SOCKET client = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = loopback(portOf(server));
    CHECK_EQUAL(connect(client, reinterpret_cast<sockaddr *>(&address), sizeof(address)), 0);

    const auto process = connectionProcess(portOf(client), portOf(server));
    CHECK(process.has_value());
    // Wine does not always know.
    if (process.value_or(0) != 0)
        CHECK_EQUAL(*process, GetCurrentProcessId());
    CHECK(!Platform::create()->isForeignConnection(portOf(client), portOf(server)));
    // The other way round there is none that leads to the client's port as a server.
    CHECK(!connectionProcess(portOf(client), portOf(client)));
    CHECK(!connectionProcess(portOf(server), portOf(server)));
    closesocket(client);
    closesocket(server);
    WSACleanup();
}

void sessions()
{
    DWORD own = 0;
    CHECK(ProcessIdToSessionId(GetCurrentProcessId(), &own) != FALSE);
    CHECK_EQUAL(processSession(GetCurrentProcessId()).value_or(own + 1), own);
    CHECK(!processSession(0x7ffffff3));
    CHECK(!isForeignSession(1, 1));
    CHECK(!isForeignSession(0, 1));
    CHECK(isForeignSession(2, 1));
}

const Checks::Group groups[] = {{"own connection", ownConnection}, {"sessions", sessions}};

} // namespace
