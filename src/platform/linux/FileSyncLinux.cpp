#include "FileSync.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

bool forceFileToDisk(const std::string &path)
{
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    // File systems that cannot do it say EINVAL; there is nothing to wait for then.
    const bool good = fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP;
    close(file);
    return good;
}
