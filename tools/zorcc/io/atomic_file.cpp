// SPDX-License-Identifier: MIT
#include "atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <set>
#include <thread>

#include "../error.h"

namespace zorcc::tool {

namespace {

// Never destroyed, since the thread that waits for signals outlives main().
struct Unfinished {
    std::mutex mutex;
    std::set<std::string> names;
};

Unfinished& unfinished()
{
    static Unfinished& instance = *new Unfinished;
    return instance;
}

sigset_t endingSignals()
{
    sigset_t set;
    sigemptyset(&set);
    for (int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&set, signal);
    return set;
}

void waitForSignal()
{
    const sigset_t set = endingSignals();
    int signal = 0;
    if (sigwait(&set, &signal) != 0) return;
    const std::lock_guard lock(unfinished().mutex); // held to the end: nothing new appears
    for (const std::string& name : unfinished().names) unlink(name.c_str());
    std::signal(signal, SIG_DFL);
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    raise(signal);
}

[[noreturn]] void failWithErrno() { throw Cause(std::strerror(errno)); }

std::string resolved(const std::string& path) // a link is written through, not replaced
{
    char* const real = realpath(path.c_str(), nullptr);
    const std::string result = real ? real : path;
    std::free(real);
    return result;
}

mode_t modeOfNewFiles()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

} // namespace

void removeUnfinishedFilesOnSignals()
{
    const sigset_t set = endingSignals();
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    std::thread(waitForSignal).detach();
}

AtomicFile::AtomicFile(const std::string& path) : target(resolved(path))
{
    struct stat status {};
    const bool exists = stat(target.c_str(), &status) == 0;
    if (exists && S_ISDIR(status.st_mode)) errno = EISDIR, failWithErrno();
    if (exists && !S_ISREG(status.st_mode)) {
        file = std::fopen(target.c_str(), "wbe");
        if (!file) failWithErrno();
        return;
    }
    if (exists && access(target.c_str(), W_OK) != 0) failWithErrno();

    const std::size_t nameStart = target.rfind('/') + 1; // 0 where there is no slash
    std::string name = target.substr(0, nameStart) + ".zorcc-XXXXXX";
    const std::lock_guard lock(unfinished().mutex);
    const int descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0) failWithErrno();
    temporary = name;
    unfinished().names.insert(name);
    fchmod(descriptor, exists ? status.st_mode & 07777 : modeOfNewFiles());
    file = fdopen(descriptor, "wb");
}

AtomicFile::~AtomicFile()
{
    if (file) std::fclose(file);
    if (temporary.empty()) return;
    const std::lock_guard lock(unfinished().mutex);
    unlink(temporary.c_str());
    unfinished().names.erase(temporary);
}

void AtomicFile::write(const void* from, std::size_t count)
{
    if (std::fwrite(from, 1, count, file) != count) failWithErrno();
}

void AtomicFile::close()
{
    if (!file) return;
    std::FILE* const closing = file;
    file = nullptr;
    const bool failed = std::ferror(closing) != 0;
    if (std::fclose(closing) != 0 || failed) failWithErrno();
}

void AtomicFile::commit()
{
    close();
    if (temporary.empty()) return;
    const std::lock_guard lock(unfinished().mutex);
    if (std::rename(temporary.c_str(), target.c_str()) != 0) failWithErrno();
    unfinished().names.erase(temporary);
    temporary.clear();
}

} // namespace zorcc::tool
