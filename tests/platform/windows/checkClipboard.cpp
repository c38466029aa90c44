#include "Check.h"
#include "ClipboardMarks.h"
#include "ForeignClipboard.h"
#include "OtherProgram.h"
#include "WideText.h"

#include <cstring>
#include <map>

namespace {

void put(UINT format, const void *bytes, std::size_t size)
{
    const HGLOBAL data = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(data), bytes, size);
    GlobalUnlock(data);
    SetClipboardData(format, data);
}

void putText(const std::wstring &text)
{
    OpenClipboard(nullptr);
    EmptyClipboard();
    put(CF_UNICODETEXT, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    CloseClipboard();
}

/// What histories and clouds look for, as the makers of Windows name it.
void marks()
{
    std::map<std::string, std::string> found;
    for (const ClipboardMark &mark : secretClipboardMarks())
        found[mark.format] = mark.data;
    const std::string zero(4, '\0');
    CHECK_EQUAL(found.count("ExcludeClipboardContentFromMonitorProcessing"), 1U);
    CHECK_EQUAL(found.count("Clipboard Viewer Ignore"), 1U);
    CHECK(found["CanIncludeInClipboardHistory"] == zero);
    CHECK(found["CanUploadToCloudClipboard"] == zero);

    OpenClipboard(nullptr);
    EmptyClipboard();
    for (const auto &[name, data] : found)
        put(RegisterClipboardFormatW(wide(name).c_str()), data.data(), data.size());
    CloseClipboard();
    for (const auto &[name, data] : found)
        CHECK_ROW(name, IsClipboardFormatAvailable(RegisterClipboardFormatW(wide(name).c_str())),
                  TRUE);
}

void foreignText()
{
    putText(L"gl\u00e4tte \U0001F511\nline");
    CHECK_EQUAL(foreignClipboardText(0).value_or("nothing"),
                "gl\xc3\xa4tte \xf0\x9f\x94\x91\nline");
    putText(L"");
    CHECK_EQUAL(foreignClipboardText(0).value_or("nothing"), "");

    OpenClipboard(nullptr);
    EmptyClipboard();
    CloseClipboard();
    CHECK(!foreignClipboardText(0));
    const HDC screen = GetDC(nullptr);
    OpenClipboard(nullptr);
    EmptyClipboard();
    SetClipboardData(CF_BITMAP, CreateCompatibleBitmap(screen, 4, 4));
    CloseClipboard();
    ReleaseDC(nullptr, screen);
    CHECK(!foreignClipboardText(0));

    // Of text that is not ended nothing beyond the end is read.
    OpenClipboard(nullptr);
    EmptyClipboard();
    put(CF_UNICODETEXT, L"abcd", 4 * sizeof(wchar_t));
    CloseClipboard();
    const std::string text = foreignClipboardText(0).value_or("nothing");
    CHECK(text == "abcd" || text == "abc");
}

void heldByAnother()
{
    putText(L"text");
    OtherProgram other(L"clipboard");
    CHECK(other.isReady());
    const DWORD start = GetTickCount();
    CHECK(!foreignClipboardText(40));
    CHECK(GetTickCount() - start >= 40);
    CHECK_EQUAL(other.end(), 0);
    CHECK_EQUAL(foreignClipboardText(40).value_or("nothing"), "text");
}

void ownedByAnother()
{
    {
        const OtherProgram other(L"text");
        CHECK(other.isReady());
        CHECK_EQUAL(foreignClipboardText(5000).value_or("nothing"), "given");
    }
    // Text that a program promised that hangs is not waited for: the program is still there then.
    // Wine itself holds up whoever opens such a clipboard for five seconds.
    OtherProgram other(L"promise");
    CHECK(other.isReady());
    CHECK(!foreignClipboardText(40));
    CHECK_EQUAL(other.end(), 0);
}

const Checks::Group groups[] = {{"clipboard marks", marks},
                                {"clipboard of others", foreignText},
                                {"clipboard held by another", heldByAnother},
                                {"clipboard owned by another", ownedByAnother}};

} // namespace
