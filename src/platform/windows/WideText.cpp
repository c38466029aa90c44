#include "WideText.h"

#include <windows.h>

std::wstring wide(const std::string &utf8Text)
{
    const int length = MultiByteToWideChar(CP_UTF8, 0, utf8Text.data(),
                                           static_cast<int>(utf8Text.size()), nullptr, 0);
    std::wstring result(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8Text.data(), static_cast<int>(utf8Text.size()),
                        result.data(), length);
    return result;
}

std::string utf8(const std::wstring &text)
{
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                           nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(),
                        length, nullptr, nullptr);
    return result;
}
