// SPDX-License-Identifier: MIT
// What a function of the library must do, in one row of a table.
#pragma once

#include <span>
#include <string_view>

#include "interface/functions.h"
#include "tests/reference/mosaic.h"
#include "tests/reference/pixels.h"

namespace zorcc::reference {

// Writes the colour channels of every pixel that the function converts; source and destination have the same size.
using Reference = void (*)(const Pixels& source, Pixels& destination);

// The same of all channels that the function converts, for one whose samples depend on arguments.
using ImageReference = void (*)(const interface::Function& function, const Pixels& source, Pixels& destination,
                                const interface::Extra& extra);

// What becomes of a call with good arguments by what the source holds.
using Outcome = ZorStatus (*)(const Pixels& source);

// Arguments beside images and size for a trial: the same seed gives the same ones.
using Arguments = interface::Extra (*)(const interface::Function& function, std::uint32_t seed);

enum class OddSize {
    plain,           // every pixel is converted
    warning,         // whole blocks are converted; zorStatusOddSize when there are pixels beside them
    plainAndWarning, // every pixel is converted, and the same status
    cutOff,          // whole blocks are converted without the warning
    refused          // nothing is converted unless it is whole blocks: zorStatusBadSize
};

// In which order arguments are checked.
enum class Checks {
    sizeFirst,        // images, size, planes of arrays, grid of a mosaic
    pointersFirst,    // images and planes, size
    pointersOnly,     // the same without the size: one below 1 converts nothing
    stepsFirst,       // image after image with its planes, steps, size
    stepsLast,        // images, size, steps
    pointersSizeSteps // images and planes, a matrix, size, steps
};

struct Case {
    std::string_view name; // of the exported function
    Reference reference = nullptr;
    OddSize oddSize = OddSize::plain;
    Checks checks = Checks::sizeFirst;
    ZorSize block = {2, 2}, minimum = {1, 1};
    ImageReference imageReference = nullptr; // given: in place of the other
    Arguments arguments = nullptr;
    Demosaic demosaic = nullptr; // given: in place of both; converts a region of a larger image
    // Whether the formula says what becomes of a pixel of floats; null: of every one.
    bool (*defined)(const float* pixel) = nullptr;
    // How far floats may be from the reference, in units of its last place; on all tiers they must be the same.
    int ulps = 0;
    bool anyNaN = false;       // the bits of what is no number do not count
    Outcome outcome = nullptr; // null: always the status of the size
};

// Whether steps below 1 are refused.
inline bool checksSteps(const Case& c)
{
    return c.checks == Checks::stepsFirst || c.checks == Checks::stepsLast || c.checks == Checks::pointersSizeSteps;
}

inline ZorStatus statusOf(const Case& c, ZorSize size)
{
    if (c.checks == Checks::pointersOnly) return zorStatusOk;
    if (size.width < c.minimum.width || size.height < c.minimum.height) return zorStatusBadSize;
    if (size.width % c.block.width == 0 && size.height % c.block.height == 0) return zorStatusOk;
    return c.oddSize == OddSize::warning || c.oddSize == OddSize::plainAndWarning ? zorStatusOddSize
           : c.oddSize == OddSize::refused                                        ? zorStatusBadSize
                                                                                  : zorStatusOk;
}

// The pixels of the source that the function may touch.
inline ZorSize usedSize(const Case& c, ZorSize size)
{
    if (statusOf(c, size) < 0) return {0, 0};
    if (c.oddSize == OddSize::plain || c.oddSize == OddSize::plainAndWarning) return size;
    return {size.width - size.width % c.block.width, size.height - size.height % c.block.height};
}

// The size of the destination, and the pixels of it that the function may touch.
struct DestinationSize {
    ZorSize whole, used;
};
DestinationSize destinationSize(const Case& c, ZorSize size, const interface::Extra& extra);

// Writes what the function must write, alpha included, into a destination that holds what it held before.
void convert(const Case& c, const interface::Function& function, const interface::Image& source,
             const interface::Image& destination, ZorSize size, const interface::Extra& extra = {});

} // namespace zorcc::reference
