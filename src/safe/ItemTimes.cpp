#include "ItemTimes.h"

#include <array>

qint64 nextModified(qint64 now, qint64 before, const RandomSource &random)
{
    if (now > before)
        return now;
    std::array<unsigned char, 2> bytes{};
    random(bytes.data(), static_cast<int>(bytes.size()));
    return before + 1 + (bytes[0] * 256 + bytes[1]) % 1000;
}
