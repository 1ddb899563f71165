// SPDX-License-Identifier: MIT
#include "convert/team.h"

#include <omp.h>
#include <pthread.h>

namespace zorcc::conversion {
namespace {

// A child of a fork has the memory of the OpenMP runtime, but not its threads: it works alone.
bool isForkedChild = false;

__attribute__((constructor)) void handleForks()
{
    static_cast<void>(pthread_atfork(nullptr, nullptr, [] { isForkedChild = true; }));
}

} // namespace

ZorStatus forEachStrip(int threads, int count, bool mayFork, FunctionRef<ZorStatus(int strip, int member)> work)
{
    ZorStatus result = zorStatusOk;
    if (threads == 1 || isForkedChild) {
        const int levels = omp_get_max_active_levels();
        if (!mayFork) omp_set_max_active_levels(0);
        for (int i = 0; i < count && result == zorStatusOk; ++i) result = work(i, 0);
        omp_set_max_active_levels(levels);
        return result;
    }
    // Whichever thread is free takes the next strip: processors are not equally quick, or not equally free.
#pragma omp parallel for schedule(dynamic) num_threads(threads)
    for (int i = 0; i < count; ++i)
        if (const ZorStatus status = work(i, omp_get_thread_num()); status != zorStatusOk) {
#pragma omp atomic write
            result = status;
        }
    return result;
}

} // namespace zorcc::conversion
