#include "SecretMemory.h"

#include "SystemCall.h"

#include <new>
#include <windows.h>

namespace {

// What is asked for beyond the need, as the quota is small and each secret has a page of its own.
const SIZE_T spareBytes = 64 * 4096;

bool lockPages(void *memory, SIZE_T size)
{
    if (VirtualLock(memory, size))
        return true;
    if (GetLastError() != ERROR_WORKING_SET_QUOTA)
        return false;
    const HANDLE process = GetCurrentProcess();
    SIZE_T smallest = 0;
    SIZE_T largest = 0;
    if (!GetProcessWorkingSetSize(process, &smallest, &largest))
        return false;
    const SIZE_T more = size + spareBytes;
    return SetProcessWorkingSetSize(process, smallest + more, largest + more) &&
           VirtualLock(memory, size);
}

} // namespace

void *allocateSecretMemory(std::size_t size, bool *isKept)
{
    const std::size_t length = size == 0 ? 1 : size;
    void *memory = VirtualAlloc(nullptr, length, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (!memory)
        throw std::bad_alloc();
    const bool locked = lockPages(memory, length);
    if (isKept)
        *isKept = locked;
    // Since Windows 10.
    static const auto exclude = systemCall<HRESULT(WINAPI *)(const void *, DWORD)>(
        L"kernel32.dll", "WerRegisterExcludedMemoryBlock");
    if (exclude)
        exclude(memory, static_cast<DWORD>(length));
    return memory;
}

void freeSecretMemory(void *memory, std::size_t size)
{
    if (!memory)
        return;
    wipeMemory(memory, size);
    static const auto forget = systemCall<HRESULT(WINAPI *)(const void *)>(
        L"kernel32.dll", "WerUnregisterExcludedMemoryBlock");
    if (forget)
        forget(memory);
    VirtualFree(memory, 0, MEM_RELEASE);
}

void keepOutOfCrashDumps()
{
    // MinGW's header of error reporting does not compile.
    const DWORD withoutHeap = 1;
    const auto setFlags = systemCall<HRESULT(WINAPI *)(DWORD)>(L"kernel32.dll", "WerSetFlags");
    if (setFlags)
        setFlags(withoutHeap);
}

void closeMemoryToOthers()
{
    // What programs of one user may do to each other is the same for all of them here.
}

void wipeMemory(void *memory, std::size_t size)
{
    if (size > 0)
        SecureZeroMemory(memory, size);
}
