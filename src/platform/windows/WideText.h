#pragma once

#include <string>

std::wstring wide(const std::string &utf8Text);
std::string utf8(const std::wstring &text);
