// SPDX-License-Identifier: MIT
// Threads with small stacks.
#pragma once

#include <pthread.h>

#include <cstddef>
#include <cstdlib>

namespace zorcc::test {

// Calls work() on a thread with a stack of so many bytes, and waits for it.
template <class Work> void onStackOf(std::size_t bytes, Work work)
{
    pthread_attr_t attributes;
    pthread_t thread;
    pthread_attr_init(&attributes);
    if (pthread_attr_setstacksize(&attributes, bytes) != 0) std::abort();
    const auto run = [](void* w) -> void* {
        (*static_cast<Work*>(w))();
        return nullptr;
    };
    if (pthread_create(&thread, &attributes, run, &work) != 0) std::abort();
    pthread_attr_destroy(&attributes);
    pthread_join(thread, nullptr);
}

} // namespace zorcc::test
