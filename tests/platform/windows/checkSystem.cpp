#include "Check.h"
#include "FileInUse.h"
#include "FileSync.h"
#include "MachineIdentity.h"
#include "OtherProgram.h"
#include "Platform.h"
#include "SecretMemory.h"
#include "TestWindow.h"
#include "WideText.h"
#include "WindowsVersion.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <limits>
#include <new>

namespace {

/// Wine takes the version that it shows to a program from here.
const wchar_t versionKey[] = L"Software\\Wine";

bool isWine()
{
    const HMODULE module = GetModuleHandleW(L"ntdll.dll");
    return module && GetProcAddress(module, "wine_get_version");
}

void versions()
{
    struct Numbers
    {
        std::uint32_t major;
        std::uint32_t minor;
        std::uint32_t build;
        int code;
    };
    const Numbers known[] = {{4, 0, 1381, 0x10},   {5, 0, 2195, 0x20},   {5, 1, 2600, 0x30},
                             {5, 2, 3790, 0x40},   {6, 0, 6002, 0x80},   {6, 1, 7601, 0x90},
                             {6, 2, 9200, 0xA0},   {6, 3, 9600, 0xB0},   {10, 0, 19045, 0xC0},
                             {10, 0, 21999, 0xC0}, {10, 0, 22000, 0xD0}, {10, 0, 26100, 0xD0},
                             {11, 0, 30000, 0xD0}, {6, 4, 9841, 0x10}};
    for (const Numbers &each : known)
        CHECK_ROW(std::to_string(each.major) + "." + std::to_string(each.minor),
                  windowsVersionCode(each.major, each.minor, each.build), each.code);
    if (!isWine()) {
        CHECK(Platform::create()->windowsVersionCode() >= 0x90);
        return;
    }
    struct Row
    {
        const wchar_t *name;
        int code;
    };
    const Row rows[] = {{L"winxp64", 0x40}, {L"vista", 0x80}, {L"win7", 0x90},
                        {L"win8", 0xA0},    {L"win81", 0xB0}, {L"win10", 0xC0}};
    for (const Row &row : rows) {
        RegSetKeyValueW(HKEY_CURRENT_USER, versionKey, L"Version", REG_SZ, row.name,
                        static_cast<DWORD>((wcslen(row.name) + 1) * sizeof(wchar_t)));
        OtherProgram program(L"version");
        CHECK_ROW(utf8(row.name), program.end(), row.code);
    }
    RegDeleteKeyValueW(HKEY_CURRENT_USER, versionKey, L"Version");
}

/// What the kernel below Wine counts as locked by the process with a word on its command line; -1
/// when it does not tell.
long lockedKilobytes(const std::string &commandWord)
{
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW(L"Z:\\proc\\*", &entry);
    if (search == INVALID_HANDLE_VALUE)
        return -1;
    long count = -1;
    do {
        const std::string folder = "Z:\\proc\\" + utf8(entry.cFileName);
        std::ifstream command(folder + "\\cmdline", std::ios::binary);
        const std::string line{std::istreambuf_iterator<char>(command), {}};
        if (line.find(commandWord) == std::string::npos)
            continue;
        std::ifstream status(folder + "\\status");
        std::string word;
        while (status >> word) {
            if (word == "VmLck:")
                status >> count;
        }
    } while (count < 0 && FindNextFileW(search, &entry));
    FindClose(search);
    return count;
}

void secretMemory()
{
    const std::size_t size = 10000;
    auto *memory = static_cast<char *>(allocateSecretMemory(size));
    CHECK(std::all_of(memory, memory + size, [](char each) { return each == 0; }));
    // On Windows itself this fails for memory that was not locked.
    CHECK(VirtualUnlock(memory, size) != FALSE);
    std::fill_n(memory, size, 'x');
    wipeMemory(memory, size - 1);
    CHECK(std::all_of(memory, memory + size - 1, [](char each) { return each == 0; }));
    CHECK_EQUAL(memory[size - 1], 'x');
    freeSecretMemory(memory, size);
    MEMORY_BASIC_INFORMATION info = {};
    VirtualQuery(memory, &info, sizeof(info));
    CHECK_EQUAL(info.State, DWORD{MEM_FREE});

    freeSecretMemory(nullptr, 1);
    bool refused = false;
    try {
        allocateSecretMemory(std::numeric_limits<std::size_t>::max() / 2);
    } catch (const std::bad_alloc &) {
        refused = true;
    }
    CHECK(refused);
    keepOutOfCrashDumps();
}

/// Each secret has a page of its own, and the usual quota holds a few dozen.
void manySecrets()
{
    std::vector<void *> secrets(OtherProgram::secretCount);
    for (void *&secret : secrets)
        secret = allocateSecretMemory(32);
    CHECK(std::all_of(secrets.begin(), secrets.end(),
                      [](void *each) { return VirtualUnlock(each, 32) != FALSE; }));
    for (void *secret : secrets)
        freeSecretMemory(secret, 32);
    if (!isWine())
        return;
    // Wine unlocks whatever it is asked to.
    const std::string part = "secrets" + std::to_string(GetTickCount64());
    OtherProgram other(wide(part));
    CHECK(other.isReady());
    CHECK_EQUAL(lockedKilobytes(part), OtherProgram::secretCount * 4L);
    CHECK_EQUAL(other.end(), 0);
}

void filesOnDisk()
{
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"gl\u00e4tte \u0436.txt";
    CHECK(!forceFileToDisk(utf8(path)));
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    // Also while a writer still has it open.
    CHECK(forceFileToDisk(utf8(path)));
    CloseHandle(file);
    DeleteFileW(path.c_str());
}

void machine()
{
    const std::string identity = machineIdentity();
    CHECK(!identity.empty());
    CHECK_EQUAL(machineIdentity(), identity);
}

void fileInUse()
{
    const std::wstring path = OtherProgram::filePath();
    CHECK(waitWhileFileInUse(utf8(path)));
    const std::wstring next = path + L".next";
    for (const std::wstring &name : {path, next})
        CloseHandle(CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
    CHECK(waitWhileFileInUse(utf8(path)));
    OtherProgram other(L"file");
    CHECK(other.isReady());
    CHECK(!MoveFileExW(next.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING));
    const ULONGLONG start = GetTickCount64();
    CHECK(!waitWhileFileInUse(utf8(path)));
    CHECK(GetTickCount64() - start >= 490);
    // It ends while this waits.
    other.tellToEnd();
    CHECK(waitUntil([&] { return waitWhileFileInUse(utf8(path)); }));
    CHECK(MoveFileExW(next.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE);
    CHECK_EQUAL(other.end(), 0);
    DeleteFileW(path.c_str());
}

void texts()
{
    const std::string texts[] = {"", "plain", "\xc3\xbc \xf0\x9f\x94\x91", std::string("a\0b", 3)};
    for (const std::string &text : texts)
        CHECK_ROW(text, utf8(wide(text)), text);
    // Broken ones come out as something, and end.
    CHECK_EQUAL(utf8(wide("a\xff")), "a\xef\xbf\xbd");
    CHECK_EQUAL(utf8(std::wstring(1, wchar_t(0xD800))), "\xef\xbf\xbd");
}

const Checks::Group groups[] = {{"version", versions},
                                {"secret memory", secretMemory},
                                {"many secrets", manySecrets},
                                {"files on the disk", filesOnDisk},
                                {"machine", machine},
                                {"file in use", fileInUse},
                                {"texts", texts}};

} // namespace
