// SPDX-License-Identifier: MIT
// Declares the drivers of a family in the namespace of every tier:
//     #define ZORCC_DRIVERS "lumachroma/yuv_rows.h"
//     #include "simd/each_tier.h"
// No include guard: a file may do this for several families.
#include "simd/tier.h"

namespace zorcc::ssse3 {
#include ZORCC_DRIVERS
}
namespace zorcc::avx2 {
#include ZORCC_DRIVERS
}
namespace zorcc::avx512 {
#include ZORCC_DRIVERS
}

#undef ZORCC_DRIVERS
