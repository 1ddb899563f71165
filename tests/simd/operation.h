// SPDX-License-Identifier: MIT
// An operation of the vector vocabulary, and what its elements must be. Nothing here is code, so that the files of all
// tiers may share it.
#pragma once

#include <stdint.h>

#include "simd/tier.h"

namespace zorcc::test {

struct Operation {
    const char* name;
    int inBytes, outBytes;
    void (*onVectors)(const uint8_t* in, uint8_t* out);  // may touch these bytes alone
    void (*onElements)(const uint8_t* in, uint8_t* out); // the same, one element at a time
};

struct Operations {
    const Operation* first;
    int count;
};

} // namespace zorcc::test

ZORCC_TABLE_OF_EACH_TIER(test::Operations, vecOperations)
ZORCC_TABLE_OF_EACH_TIER(test::Operations, orderOperations)
ZORCC_TABLE_OF_EACH_TIER(test::Operations, floatsOperations)
ZORCC_TABLE_OF_EACH_TIER(test::Operation, labCurves)
ZORCC_TABLE_OF_EACH_TIER(test::Operation, powers)
