#pragma once

#include <string>
#include <windows.h>

/// This program once more, as another one that does something beside the checks.
class OtherProgram
{
public:
    static const int secretCount = 300;
    /// The file that "file" has open.
    static std::wstring filePath();

    explicit OtherProgram(const std::wstring &part);
    ~OtherProgram();
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

    /// Waits until it says that it is ready.
    bool isReady() const;
    void tellToEnd() const;
    /// Tells it to end and gives its exit code; -1 when it does not end.
    int end();

    /// Acts the named part, in the other program itself.
    static int act(const std::wstring &part);

private:
    HANDLE m_ready;
    HANDLE m_end;
    HANDLE m_process = nullptr;
};
