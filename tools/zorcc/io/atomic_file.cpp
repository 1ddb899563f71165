// SPDX-License-Identifier: MIT
#include "atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <mutex>

#include "../error.h"
#include "file_kind.h"

namespace zorcc::tool {

namespace {

// Neither is ever destroyed: the thread that waits for signals outlives main().
constinit std::mutex listMutex;
constinit TemporaryFile* firstOfList = nullptr;

[[noreturn]] void failWithErrno() { throw Cause(std::strerror(errno)); }

std::string resolved(const std::string& path) // a link is written through, not replaced
{
    const std::unique_ptr<char, void (*)(void*)> real(realpath(path.c_str(), nullptr), std::free);
    return real ? real.get() : path;
}

mode_t modeOfNewFiles()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

} // namespace

void removeUnfinishedFiles()
{
    listMutex.lock(); // until the process ends, so that no file is created any more
    for (const TemporaryFile* file = firstOfList; file; file = file->after) unlink(file->name.c_str());
}

TemporaryFile::~TemporaryFile()
{
    if (!listed) return;
    const std::lock_guard lock(listMutex);
    unlink(name.c_str());
    leaveList();
}

int TemporaryFile::create(const std::string& target)
{
    const std::size_t nameStart = target.rfind('/') + 1; // 0 where there is no slash
    name = target.substr(0, nameStart) + ".zorcc-XXXXXX";
    const std::lock_guard lock(listMutex);
    const int descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0) failWithErrno();
    listed = true;
    after = firstOfList;
    if (after) after->before = this;
    firstOfList = this;
    return descriptor;
}

void TemporaryFile::becomes(const std::string& target)
{
    const std::lock_guard lock(listMutex);
    if (std::rename(name.c_str(), target.c_str()) != 0) failWithErrno();
    leaveList();
}

void TemporaryFile::leaveList()
{
    (before ? before->after : firstOfList) = after;
    if (after) after->before = before;
    listed = false;
}

AtomicFile::AtomicFile(const std::string& path) : target(isStandardStream(path) ? outputName(path) : resolved(path))
{
    if (isStandardStream(path)) {
        adopt(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3));
        return;
    }
    struct stat status {};
    const bool exists = stat(target.c_str(), &status) == 0;
    if (exists && S_ISDIR(status.st_mode)) errno = EISDIR, failWithErrno();
    if (exists && !S_ISREG(status.st_mode)) {
        adopt(open(target.c_str(), O_WRONLY | O_CLOEXEC));
        return;
    }
    if (exists && access(target.c_str(), W_OK) != 0) failWithErrno();
    const int descriptor = temporary.create(target);
    fchmod(descriptor, exists ? status.st_mode & 07777 : modeOfNewFiles());
    adopt(descriptor);
}

void AtomicFile::adopt(int descriptor)
{
    if (descriptor < 0) failWithErrno();
    file.reset(fdopen(descriptor, "wb"));
    if (file) return;
    const int cause = errno;
    ::close(descriptor);
    errno = cause;
    failWithErrno();
}

void AtomicFile::write(const void* from, std::size_t count)
{
    if (std::fwrite(from, 1, count, stream()) != count) failWithErrno();
}

void AtomicFile::close()
{
    if (!file) return;
    const bool failed = std::ferror(stream()) != 0;
    if (std::fclose(file.release()) != 0 || failed) failWithErrno();
}

void AtomicFile::commit()
{
    close();
    if (temporary.exists()) temporary.becomes(target);
}

} // namespace zorcc::tool
