// SPDX-License-Identifier: MIT
// Pixels whose channels are fields of one 16-bit word.
#pragma once

#include "pixels/rows.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Channel 0 in bits 4..0, channel 1 in bits 10..5, channel 2 in bits 15..11. Each field moves to the top of a byte,
// with zeros below.
struct Bits565 : Lines<Line{{2}}> {
    using Base = Lines<Line{{2}}>;

    [[gnu::always_inline]] Pixels<3> load(int x) const
    {
        u8v v[2];
        loadBlocks(at(0, x), v);
        const u16v a = (u16v)v[0], b = (u16v)v[1];
        return {{{pack(a << 3 & 0xf8, b << 3 & 0xf8), pack(a >> 3 & 0xfc, b >> 3 & 0xfc),
                  pack(a >> 8 & 0xf8, b >> 8 & 0xf8)}}};
    }

private:
    static u8v pack(u16v lo, u16v hi) { return packUnsigned((s16v)lo, (s16v)hi); }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
