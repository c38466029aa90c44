#pragma once

#include <string>
#include <vector>

/// A clipboard format that says something about the text beside it.
struct ClipboardMark
{
    std::string format; ///< its name, which is its MIME type for Qt
    std::string data;
};

/// What keeps a text out of the histories and clouds of clipboards.
std::vector<ClipboardMark> secretClipboardMarks();
