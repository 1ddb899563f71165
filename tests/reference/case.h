// SPDX-License-Identifier: MIT
// What a function of the library must do, in one row of a table.
#pragma once

#include <span>
#include <string_view>

#include "interface/functions.h"
#include "tests/reference/pixels.h"

namespace zorcc::reference {

// Writes the colour channels of every pixel that the function converts; source and destination have the same size.
using Reference = void (*)(const Pixels& source, Pixels& destination);

// The same for a function whose samples depend on each other, on their place, or on arguments: the whole image.
using ImageReference = void (*)(const interface::Function& function, const interface::Image& source,
                                const interface::Image& destination, ZorSize size, const interface::Extra& extra);

// Arguments behind the size for a trial: the same seed gives the same ones.
using Arguments = interface::Extra (*)(const interface::Function& function, std::uint32_t seed);

enum class OddSize {
    plain,  // every pixel is converted
    warning // whole 2 x 2 blocks are converted; zorStatusOddSize when there are pixels beside them
};

struct Case {
    std::string_view name; // of the exported function
    Reference reference;
    OddSize oddSize = OddSize::plain;
    ImageReference imageReference = nullptr; // given: in place of the other
    Arguments arguments = nullptr;
};

// The pixels of an image that the function may touch.
inline ZorSize usedSize(const Case& c, ZorSize size)
{
    return c.oddSize == OddSize::warning ? ZorSize{size.width & ~1, size.height & ~1} : size;
}

inline ZorStatus statusOf(const Case& c, ZorSize size)
{
    const ZorSize used = usedSize(c, size);
    return used.width == size.width && used.height == size.height ? zorStatusOk : zorStatusOddSize;
}

// Writes what the function must write, alpha included, into a destination that holds what it held before.
void convert(const Case& c, const interface::Function& function, const interface::Image& source,
             const interface::Image& destination, ZorSize size, const interface::Extra& extra = {});

} // namespace zorcc::reference
