// SPDX-License-Identifier: MIT
#include "core_stand_in.h"

#include <dlfcn.h>

#include <atomic>

namespace {

constexpr int never = -1;

std::atomic<int> live = 0, lastBytes = 0, untilFailure = never;

struct {
    bool replaced;
    int bytes;
    ZorStatus status;
    int asked;
} cache;

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
    if (!cache.replaced) return ask(bytes);
    ++cache.asked;
    if (cache.status == zorStatusOk) *bytes = cache.bytes;
    return cache.status;
}

namespace zorcc::test {

int liveBlocks() { return live; }
int lastAllocation() { return lastBytes; }

AllocationFailure::AllocationFailure(int index) { untilFailure = index; }
AllocationFailure::~AllocationFailure() { untilFailure = never; }

CacheOf::CacheOf(int bytes, ZorStatus status) { cache = {true, bytes, status, 0}; }
CacheOf::~CacheOf() { cache = {}; }
int CacheOf::timesAsked() const { return cache.asked; }

} // namespace zorcc::test
