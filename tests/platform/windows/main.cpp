#include "Check.h"
#include "OtherProgram.h"

#include <shellapi.h>

int main()
{
    int count = 0;
    wchar_t **arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    const std::wstring part = count > 1 ? arguments[1] : L"";
    LocalFree(arguments);
    return part.empty() ? Checks::run() : OtherProgram::act(part);
}
