#pragma once

#include <functional>
#include <sstream>
#include <string>
#include <vector>

/// Counts what was checked and what was not as expected.
class Checks
{
public:
    static void note(bool good, const std::string &what, const char *file, int line);
    static int run();

    /// Makes a group of checks known; they run in the order of their names.
    struct Group
    {
        Group(const char *name, void (*run)());
    };
};

template <typename A, typename B>
void checkEqual(const A &actual, const B &expected, const std::string &what, const char *file,
                int line)
{
    std::ostringstream text;
    text << what << ": " << actual << " instead of " << expected;
    Checks::note(actual == expected, text.str(), file, line);
}

#define CHECK(condition) Checks::note((condition), #condition, __FILE__, __LINE__)
#define CHECK_EQUAL(actual, expected) checkEqual((actual), (expected), #actual, __FILE__, __LINE__)
#define CHECK_ROW(row, actual, expected)                                                           \
    checkEqual((actual), (expected), std::string(row) + ": " #actual, __FILE__, __LINE__)
