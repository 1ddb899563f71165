// SPDX-License-Identifier: MIT
// The SIMD tiers and the one that calls run on. Every row file is compiled once for each tier, in a namespace of its
// name; all tiers give the same bytes.
#pragma once

#include "zorcc/types.h"

namespace zorcc {

enum class Tier {
    ssse3, // 128 bits: what every processor that the library supports has
    avx2,  // 256 bits
    avx512 // 512 bits: F, BW, DQ, VL, VBMI, VNNI, GFNI
};

const char* nameOf(Tier tier);

// The best tier of this processor and this build.
Tier bestTier();

// Set before main and before any library that uses this one is initialised; read without a lock by every call. Only
// tests and benchmarks set it again, to a lower tier: the library exports no way to change it.
extern Tier currentTier;
inline Tier activeTier() { return currentTier; }
inline void setActiveTier(Tier tier) { currentTier = tier; }

// The widest tier with vectors of bytes that rows of `width` pixels fill. Shorter rows go through copies, which takes
// several times as long as a narrower tier does.
inline Tier activeTierFor(int width)
{
    const Tier widest = width >= 64 ? Tier::avx512 : width >= 32 ? Tier::avx2 : Tier::ssse3;
    return widest < activeTier() ? widest : activeTier();
}

} // namespace zorcc

// Calls `of` with each tier that is built; builds for diagnosis may leave out the wider ones.
#if ZORCC_TIERS_BUILT == 3
    #define ZORCC_OF_EACH_TIER(of, ...) of(ssse3, __VA_ARGS__) of(avx2, __VA_ARGS__) of(avx512, __VA_ARGS__)
#elif ZORCC_TIERS_BUILT == 2
    #define ZORCC_OF_EACH_TIER(of, ...) of(ssse3, __VA_ARGS__) of(avx2, __VA_ARGS__)
#else
    #define ZORCC_OF_EACH_TIER(of, ...) of(ssse3, __VA_ARGS__)
#endif

namespace zorcc {

// The tables of drivers of a family, one for each tier.
template <class Table> struct TablesOfTiers {
    const Table* ofTier[ZORCC_TIERS_BUILT];

    const Table& operator()() const { return *ofTier[static_cast<int>(activeTier())]; }

    // For conversions that never walk an image without gaps as one row.
    const Table& operator()(ZorSize size) const { return *ofTier[static_cast<int>(activeTierFor(size.width))]; }
};

} // namespace zorcc

// Declares the table of drivers of a family for each tier, and the tables by its name.
#define ZORCC_DECLARE_TABLE(tier, Table, table)                                                                        \
    namespace zorcc::tier {                                                                                            \
    extern const Table table;                                                                                          \
    }
#define ZORCC_ADDRESS_OF_TABLE(tier, table) &tier::table,
#define ZORCC_TABLE_OF_EACH_TIER(Table, table)                                                                         \
    ZORCC_OF_EACH_TIER(ZORCC_DECLARE_TABLE, Table, table)                                                              \
    namespace zorcc {                                                                                                  \
    inline constexpr TablesOfTiers<Table> table = {{ZORCC_OF_EACH_TIER(ZORCC_ADDRESS_OF_TABLE, table)}};               \
    }
