// SPDX-License-Identifier: MIT
// Temporary buffers by element count, on 64-byte boundaries, not cleared.
#pragma once

#include <stdint.h>

namespace zorcc {

// Null when the count is below 1 or memory is out.
int16_t* zorsMalloc_16s(int count);
uint16_t* zorsMalloc_16u(int count);
float* zorsMalloc_32f(int count);

// Null is ignored.
void zorsFree(void* block);

} // namespace zorcc
