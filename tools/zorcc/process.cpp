// SPDX-License-Identifier: MIT
#include "process.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <thread>

#include "io/atomic_file.h"

namespace zorcc::tool {

namespace {

// Occupies the numbers of closed standard streams, in the mode in which reading stdin and writing stdout fail as on a
// closed stream. What is written to stderr is lost.
void occupyStandardStreams()
{
    constexpr int modes[] = {O_WRONLY, O_RDONLY, O_WRONLY};
    for (int stream = 0; stream < 3; ++stream)
        if (fcntl(stream, F_GETFD) < 0 && errno == EBADF && open("/dev/null", modes[stream]) != stream) std::_Exit(1);
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
    removeUnfinishedFiles(); // and nothing new appears
    std::signal(signal, SIG_DFL);
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    raise(signal);
}

} // namespace

void prepareProcess()
{
    occupyStandardStreams();
    for (int signal : {SIGXFSZ, SIGPIPE}) std::signal(signal, SIG_IGN);
    std::atexit(removeUnfinishedFiles);
    const sigset_t set = endingSignals();
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    std::thread(waitForSignal).detach();
}

} // namespace zorcc::tool
