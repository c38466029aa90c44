#pragma once

#include <windows.h>

/// A function of a loaded system library that older systems lack; null there.
template <typename Call>
Call systemCall(const wchar_t *library, const char *name)
{
    const HMODULE module = GetModuleHandleW(library);
    return module ? reinterpret_cast<Call>(reinterpret_cast<void *>(GetProcAddress(module, name)))
                  : nullptr;
}
