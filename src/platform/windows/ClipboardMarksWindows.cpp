#include "ClipboardMarks.h"

std::vector<ClipboardMark> secretClipboardMarks()
{
    // The first two say it by being there, the others by a 32-bit zero.
    const std::string no(4, '\0');
    return {{"ExcludeClipboardContentFromMonitorProcessing", no},
            {"Clipboard Viewer Ignore", no},
            {"CanIncludeInClipboardHistory", no},
            {"CanUploadToCloudClipboard", no}};
}
