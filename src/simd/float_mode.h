// SPDX-License-Identifier: MIT
// What floating-point code relies on whoever calls it: rounding to nearest, ties to even, denormals kept, no traps.
#pragma once

#include <immintrin.h>

namespace zorcc {

// Sets that for the calling thread as long as it lives. Afterwards the caller's mode is as it was, exception flags
// included. A mode that is right already, which is the rule, is not written, as that would stall the processor.
class DefaultFloatMode {
public:
    DefaultFloatMode() : callers(_mm_getcsr())
    {
        if ((callers & ~flags) != standard) _mm_setcsr(standard);
    }
    ~DefaultFloatMode()
    {
        if ((callers & ~flags) != standard) _mm_setcsr(callers);
    }
    DefaultFloatMode(const DefaultFloatMode&) = delete;
    DefaultFloatMode& operator=(const DefaultFloatMode&) = delete;

private:
    static constexpr unsigned flags = 0x3f, standard = 0x1f80; // all exceptions masked

    const unsigned callers;
};

} // namespace zorcc
