#include "SecretMemory.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

static std::size_t wholePages(std::size_t size)
{
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return size == 0 ? page : (size + page - 1) / page * page;
}

void *allocateSecretMemory(std::size_t size, bool *isKept)
{
    const std::size_t length = wholePages(size);
    void *memory =
        mmap(nullptr, length, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    const bool locked = mlock(memory, length) == 0;
    const bool undumped = madvise(memory, length, MADV_DONTDUMP) == 0;
    if (isKept)
        *isKept = locked && undumped;
    return memory;
}

void freeSecretMemory(void *memory, std::size_t size)
{
    if (!memory)
        return;
    wipeMemory(memory, size);
    munmap(memory, wholePages(size));
}

void keepOutOfCrashDumps()
{
    rlimit limit = {};
    if (getrlimit(RLIMIT_CORE, &limit) != 0)
        return;
    // At exactly 1 the kernel leaves a program that collects dumps alone, too, and writes no file.
    limit.rlim_cur = std::min<rlim_t>(1, limit.rlim_max);
    (void)setrlimit(RLIMIT_CORE, &limit);
}

void closeMemoryToOthers()
{
    (void)prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
}

void wipeMemory(void *memory, std::size_t size)
{
    if (size > 0)
        explicit_bzero(memory, size);
}
