// SPDX-License-Identifier: MIT
// Turns an access to inaccessible memory into a result, so that a test can say what it ran and go on.
#pragma once

#include <setjmp.h>
#include <signal.h>

#include <cstdint>
#include <optional>

namespace zorcc::test {

namespace trap {

inline thread_local sigjmp_buf* armed = nullptr;
inline thread_local const std::uint8_t* address = nullptr;

inline void handle(int signal, siginfo_t* info, void*)
{
    if (!armed) { // a fault of the test itself
        ::signal(signal, SIG_DFL);
        raise(signal);
        return;
    }
    address = static_cast<const std::uint8_t*>(info->si_addr);
    siglongjmp(*armed, 1);
}

} // namespace trap

// The address of the access that stopped `run`, or nothing. `run` may own nothing that a destructor frees. Faults of
// other threads that it starts still end the test.
template <class Run> std::optional<const std::uint8_t*> faultOf(Run run)
{
    struct sigaction action = {}, segv, bus;
    action.sa_sigaction = trap::handle;
    action.sa_flags = SA_SIGINFO;
    sigaction(SIGSEGV, &action, &segv);
    sigaction(SIGBUS, &action, &bus);
    sigjmp_buf back;
    std::optional<const std::uint8_t*> fault;
    if (sigsetjmp(back, 1) == 0) {
        trap::armed = &back;
        run();
    } else {
        fault = trap::address;
    }
    trap::armed = nullptr;
    sigaction(SIGSEGV, &segv, nullptr);
    sigaction(SIGBUS, &bus, nullptr);
    return fault;
}

} // namespace zorcc::test
