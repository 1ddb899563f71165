// SPDX-License-Identifier: MIT
// In a program that links this, zorMalloc, zorFree and zorGetMaxCacheSizeB go through a stand-in for the core library:
// it does what the core library does, counts, and fails where a test wants it to.
#pragma once

#include "zorcore.h"

namespace zorcc::test {

int liveBlocks();     // blocks that were allocated and not freed
int lastAllocation(); // bytes that zorMalloc was asked for last

// While this lives, allocation number `index` from now on, and no other, fails; 0 is the next one.
struct AllocationFailure {
    explicit AllocationFailure(int index);
    ~AllocationFailure();
};

// While this lives, the processor's largest cache has the given size, or the question for it fails.
struct CacheOf {
    explicit CacheOf(int size, ZorStatus result = zorStatusOk);
    ~CacheOf();

    const int bytes;
    const ZorStatus status;
    int timesAsked = 0;
};

} // namespace zorcc::test
