// SPDX-License-Identifier: MIT
// Temporary buffers by element count, on 64-byte boundaries, not cleared.
#pragma once

#include <stdint.h>

#include <memory>

namespace zorcc {

// Null when the count is below 1 or memory is out.
int16_t* zorsMalloc_16s(int count);
uint16_t* zorsMalloc_16u(int count);
float* zorsMalloc_32f(int count);

// Null is ignored.
void zorsFree(void* block);

// A buffer that is freed with its owner.
struct FreeBuffer {
    void operator()(void* block) const { zorsFree(block); }
};
template <class Element> using Owned = std::unique_ptr<Element, FreeBuffer>;

} // namespace zorcc
