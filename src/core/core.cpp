// SPDX-License-Identifier: MIT
#include "zorcore.h"

#include <cpuid.h>
#include <limits.h>
#include <omp.h>
#include <pthread.h>
#include <stdlib.h>
#include <unistd.h>

namespace {

constexpr size_t blockAlignment = 64; // a cache line, and the widest vector

int configuredThreads = 0; // 0: not set, the OpenMP runtime decides

// A child of a fork has the memory of the OpenMP runtime, but not its threads: a team there would be waited for for
// ever. Set before the child's only thread goes on.
bool isForkedChild = false;

__attribute__((constructor)) void handleForks()
{
    static_cast<void>(pthread_atfork(nullptr, nullptr, [] { isForkedChild = true; }));
}

int knownCacheBytes = 0; // 0: not asked yet; every thread finds the same value, so it does not matter who stores it

// The largest data or unified cache that a leaf of the "deterministic cache parameters" form lists; 0 if none.
long long largestCacheOfLeaf(unsigned leaf)
{
    constexpr unsigned maxCaches = 16; // far above any processor; a hypervisor might never end the list
    constexpr unsigned noMore = 0, instructions = 2;
    long long largest = 0;
    for (unsigned index = 0; index < maxCaches; ++index) {
        unsigned a, b, c, d;
        if (!__get_cpuid_count(leaf, index, &a, &b, &c, &d)) break;
        const unsigned type = a & 0x1f;
        if (type == noMore) break;
        if (type == instructions) continue;
        const long long ways = (b >> 22) + 1, partitions = ((b >> 12) & 0x3ff) + 1, lineBytes = (b & 0xfff) + 1;
        const long long bytes = ways * partitions * lineBytes * (static_cast<long long>(c) + 1);
        if (bytes > largest) largest = bytes;
    }
    return largest;
}

int findCacheBytes()
{
    constexpr unsigned intelLeaf = 4, amdLeaf = 0x8000001d;
    long long bytes = largestCacheOfLeaf(intelLeaf);
    if (bytes == 0) bytes = largestCacheOfLeaf(amdLeaf);
    constexpr int names[] = {_SC_LEVEL4_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE, _SC_LEVEL2_CACHE_SIZE,
                             _SC_LEVEL1_DCACHE_SIZE};
    for (const int name : names)
        if (bytes <= 0) bytes = sysconf(name);
    return bytes <= 0 ? 0 : bytes > INT_MAX ? INT_MAX : static_cast<int>(bytes);
}

} // namespace

void* zorMalloc(int bytes)
{
    if (bytes < 1) return nullptr;
    const size_t wholeLines = (static_cast<size_t>(bytes) + blockAlignment - 1) / blockAlignment * blockAlignment;
    return aligned_alloc(blockAlignment, wholeLines);
}

void zorFree(void* block) { free(block); }

ZorStatus zorGetMaxCacheSizeB(int* bytes)
{
    if (!bytes) return zorStatusNullPointer;
    // CPUID is slow, above all in a virtual machine, and large fills ask each time.
    int known = __atomic_load_n(&knownCacheBytes, __ATOMIC_RELAXED);
    if (known == 0) {
        known = findCacheBytes();
        __atomic_store_n(&knownCacheBytes, known, __ATOMIC_RELAXED);
    }
    if (known == 0) return zorStatusNothingDone;
    *bytes = known;
    return zorStatusOk;
}

int ownGetNumThreads(void)
{
    if (isForkedChild) return 1;
    const int configured = __atomic_load_n(&configuredThreads, __ATOMIC_RELAXED);
    if (configured > 0) return configured;
    const int usual = omp_get_max_threads();
    return usual > 0 ? usual : 1;
}

ZorStatus zorSetNumThreads(int count)
{
    if (count < 1) return zorStatusBadArgument;
    __atomic_store_n(&configuredThreads, count, __ATOMIC_RELAXED);
    return zorStatusOk;
}
