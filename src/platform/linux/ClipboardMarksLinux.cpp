#include "ClipboardMarks.h"

std::vector<ClipboardMark> secretClipboardMarks()
{
    return {{"x-kde-passwordManagerHint", "secret"}};
}
