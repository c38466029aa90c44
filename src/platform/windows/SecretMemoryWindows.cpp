#include "SecretMemory.h"

#include <new>
#include <windows.h>

void *allocateSecretMemory(std::size_t size)
{
    const std::size_t length = size == 0 ? 1 : size;
    void *memory = VirtualAlloc(nullptr, length, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (!memory)
        throw std::bad_alloc();
    // May be refused when the working set is small; the memory serves all the same.
    VirtualLock(memory, length);
    return memory;
}

void freeSecretMemory(void *memory, std::size_t size)
{
    if (!memory)
        return;
    wipeMemory(memory, size);
    VirtualFree(memory, 0, MEM_RELEASE);
}

void wipeMemory(void *memory, std::size_t size)
{
    if (size > 0)
        SecureZeroMemory(memory, size);
}
