#include "Check.h"
#include "Platform.h"
#include "WideText.h"

#include <windows.h>

namespace {

const char key[] = "Software\\Glaceron\\Platform tests";

template <std::size_t size>
void store(const wchar_t *name, DWORD type, const wchar_t (&text)[size], bool ended = true)
{
    RegSetKeyValueW(HKEY_CURRENT_USER, wide(key).c_str(), name, type, text,
                    static_cast<DWORD>((ended ? size : size - 1) * sizeof(wchar_t)));
}

void registryValues()
{
    store(L"Text", REG_SZ, L"1.1.32");
    store(L"Not ended", REG_SZ, L"1.1.32", false);
    store(L"Other letters", REG_SZ, L"Schl\u00fcssel \u0436 \U0001F511");
    store(L"Variables", REG_EXPAND_SZ, L"%GLACERON_TEST%\\chrome.exe");
    store(L"List", REG_MULTI_SZ, L"one\0two\0");
    store(L"Bytes", REG_BINARY, L"text");
    store(L"", REG_SZ, L"the key's own");
    const DWORD number = 7;
    RegSetKeyValueW(HKEY_CURRENT_USER, wide(key).c_str(), L"Number", REG_DWORD, &number,
                    sizeof(number));
    SetEnvironmentVariableW(L"GLACERON_TEST", L"C:\\Programs");

    const std::string absent = std::string(key) + "\\absent";
    const std::string slash = std::string(key) + "\\";
    struct Row
    {
        std::string key;
        const char *name;
        const char *value;
    };
    const Row rows[] = {
        {key, "Text", "1.1.32"},
        {key, "text", "1.1.32"},
        {key, "Not ended", "1.1.32"},
        {key, "Other letters", "Schl\xc3\xbcssel \xd0\xb6 \xf0\x9f\x94\x91"},
        {key, "Variables", "C:\\Programs\\chrome.exe"},
        {key, "", "the key's own"},
        {slash, "", "the key's own"},
        {key, "Absent", ""},
        {absent, "Text", ""},
        {absent, "", ""},
        {key, "Number", ""},
        {key, "Bytes", ""},
        {key, "List", ""},
    };
    const auto platform = Platform::create();
    for (const Row &row : rows)
        CHECK_ROW(row.key + ":" + row.name, platform->currentUserRegistryValue(row.key, row.name),
                  row.value);
    RegDeleteTreeW(HKEY_CURRENT_USER, wide(key).c_str());
}

const Checks::Group group("registry", registryValues);

} // namespace
