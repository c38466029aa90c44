#include "WindowsVersion.h"

int windowsVersionCode(std::uint32_t major, std::uint32_t minor, std::uint32_t build)
{
    struct Row
    {
        std::uint32_t major;
        std::uint32_t minor;
        int code;
    };
    static const Row rows[] = {{5, 0, 0x20}, {5, 1, 0x30}, {5, 2, 0x40}, {6, 0, 0x80},
                               {6, 1, 0x90}, {6, 2, 0xA0}, {6, 3, 0xB0}};
    for (const Row &row : rows) {
        if (major == row.major && minor == row.minor)
            return row.code;
    }
    // Windows 11 still says 10.
    const std::uint32_t firstBuildOfEleven = 22000;
    if (major == 10)
        return build < firstBuildOfEleven ? 0xC0 : 0xD0;
    return major > 10 ? 0xD0 : 0x10;
}
