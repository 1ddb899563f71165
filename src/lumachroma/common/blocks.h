// SPDX-License-Identifier: MIT
// The checks of conversions that only convert whole blocks of the pixels that share chroma: every pointer first, those
// of planes included, then the size, which has at least one block.
#pragma once

#include "frame/convert.h"

namespace zorcc {

constexpr Checks wholeBlocks(ZorSize block, Checks::OddSize oddSize = Checks::OddSize::cutOff)
{
    return {.block = block, .minimum = block, .oddSize = oddSize, .planes = Checks::Planes::beforeSize};
}

inline constexpr Checks pairs = wholeBlocks({2, 1}), squares = wholeBlocks({2, 2}), quads = wholeBlocks({4, 1}),
                        quadPairs = wholeBlocks({4, 2});

} // namespace zorcc
