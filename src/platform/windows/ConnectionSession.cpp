#include "ConnectionSession.h"

// In this order.
#include <winsock2.h>

#include <iphlpapi.h>
#include <windows.h>
#include <wtsapi32.h>

#include <vector>

namespace {

const DWORD loopback = 0x0100007f; // as it goes over the wire

} // namespace

std::optional<unsigned long> connectionProcess(std::uint16_t port, std::uint16_t toPort)
{
    std::vector<char> table;
    DWORD size = 1 << 14;
    DWORD result = ERROR_INSUFFICIENT_BUFFER;
    // It may grow in between.
    for (int tries = 0; tries < 4 && result == ERROR_INSUFFICIENT_BUFFER; ++tries) {
        table.resize(size);
        result = GetExtendedTcpTable(table.data(), &size, FALSE, AF_INET,
                                     TCP_TABLE_OWNER_PID_CONNECTIONS, 0);
    }
    if (result != NO_ERROR)
        return std::nullopt;
    const auto &rows = *reinterpret_cast<const MIB_TCPTABLE_OWNER_PID *>(table.data());
    for (DWORD i = 0; i < rows.dwNumEntries; ++i) {
        const MIB_TCPROW_OWNER_PID &row = rows.table[i];
        if (row.dwLocalAddr == loopback && row.dwRemoteAddr == loopback &&
            ntohs(static_cast<u_short>(row.dwLocalPort)) == port &&
            ntohs(static_cast<u_short>(row.dwRemotePort)) == toPort)
            return row.dwOwningPid;
    }
    return std::nullopt;
}

std::optional<unsigned long> processSession(unsigned long process)
{
    // Tells of the processes of others, too, which may not be opened.
    WTS_PROCESS_INFOW *processes = nullptr;
    DWORD count = 0;
    if (!WTSEnumerateProcessesW(WTS_CURRENT_SERVER_HANDLE, 0, 1, &processes, &count))
        return std::nullopt;
    std::optional<unsigned long> session;
    for (DWORD i = 0; i < count; ++i) {
        if (processes[i].ProcessId == process)
            session = processes[i].SessionId;
    }
    WTSFreeMemory(processes);
    return session;
}

bool isForeignSession(unsigned long session, unsigned long own)
{
    return session != own && session != 0;
}
