// SPDX-License-Identifier: MIT
// The SIMD tiers and the one that calls run on. Every row file is compiled once for each tier, in a namespace of its
// name; all tiers give the same bytes.
#pragma once

namespace zorcc {

enum class Tier {
    ssse3, // 128 bits: what every processor that the library supports has
    avx2,  // 256 bits
    avx512 // 512 bits: F, BW, DQ, VL, VBMI, VNNI, GFNI
};

const char* nameOf(Tier tier);

// The best tier of this processor.
Tier bestTier();

// Set before main and before any library that uses this one is initialised; read without a lock by every call. Only
// tests and benchmarks set it again, to a lower tier: the library exports no way to change it.
extern Tier currentTier;
inline Tier activeTier() { return currentTier; }
inline void setActiveTier(Tier tier) { currentTier = tier; }

} // namespace zorcc

// Declares the table of drivers of a family for each tier, and a function of its name that gives the active tier's.
#define ZORCC_TABLE_OF_EACH_TIER(Table, table)                                                                         \
    namespace zorcc::ssse3 {                                                                                           \
    extern const Table table;                                                                                          \
    }                                                                                                                  \
    namespace zorcc::avx2 {                                                                                            \
    extern const Table table;                                                                                          \
    }                                                                                                                  \
    namespace zorcc::avx512 {                                                                                          \
    extern const Table table;                                                                                          \
    }                                                                                                                  \
    namespace zorcc {                                                                                                  \
    inline const Table& table()                                                                                        \
    {                                                                                                                  \
        const Table* const ofTier[] = {&ssse3::table, &avx2::table, &avx512::table};                                   \
        return *ofTier[static_cast<int>(activeTier())];                                                                \
    }                                                                                                                  \
    }
