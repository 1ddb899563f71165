// SPDX-License-Identifier: MIT
#include "core_stand_in.h"

#include <dlfcn.h>

#include <atomic>

namespace {

constexpr int never = -1;

std::atomic<int> live = 0, lastBytes = 0, untilFailure = never;

zorcc::test::CacheOf* cache = nullptr; // in place of the processor's

// The function of the core library.
template <class Function> Function* original(Function*, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

void* zorMalloc(int bytes)
{
    static const auto allocate = original(&zorMalloc, "zorMalloc");
    lastBytes = bytes;
    if (untilFailure != never && untilFailure-- == 0) return nullptr;
    void* const block = allocate(bytes);
    live += block != nullptr;
    return block;
}

void zorFree(void* block)
{
    static const auto release = original(&zorFree, "zorFree");
    live -= block != nullptr;
    release(block);
}

ZorStatus zorGetMaxCacheSizeB(int* bytes)
{
    static const auto ask = original(&zorGetMaxCacheSizeB, "zorGetMaxCacheSizeB");
    if (!cache) return ask(bytes);
    ++cache->timesAsked;
    if (cache->status == zorStatusOk) *bytes = cache->bytes;
    return cache->status;
}

namespace zorcc::test {

int liveBlocks() { return live; }
int lastAllocation() { return lastBytes; }

AllocationFailure::AllocationFailure(int index) { untilFailure = index; }
AllocationFailure::~AllocationFailure() { untilFailure = never; }

CacheOf::CacheOf(int size, ZorStatus result) : bytes(size), status(result) { cache = this; }
CacheOf::~CacheOf() { cache = nullptr; }

} // namespace zorcc::test
