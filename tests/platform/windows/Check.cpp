#include "Check.h"

#include <cstdio>
#include <map>

namespace {

int failures = 0;
int checked = 0;

std::map<std::string, void (*)()> &groups()
{
    static std::map<std::string, void (*)()> all;
    return all;
}

} // namespace

void Checks::note(bool good, const std::string &what, const char *file, int line)
{
    ++checked;
    if (good)
        return;
    ++failures;
    std::printf("FAIL   %s:%d: %s\n", file, line, what.c_str());
}

Checks::Group::Group(const char *name, void (*run)())
{
    groups()[name] = run;
}

int Checks::run()
{
    for (const auto &[name, run] : groups()) {
        const int before = failures;
        const int checkedBefore = checked;
        run();
        if (checked == checkedBefore)
            note(false, "nothing was checked", name.c_str(), 0);
        std::printf("%s %s (%d)\n", failures == before ? "ok    " : "failed", name.c_str(),
                    checked - checkedBefore);
        std::fflush(stdout);
    }
    std::printf("%d checks, %d failed\n", checked, failures);
    return failures == 0 ? 0 : 1;
}
