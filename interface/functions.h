// SPDX-License-Identifier: MIT
// The table of all exported conversions.
#pragma once

#include <span>
#include <string_view>

#include "interface/call.h"

namespace zorcc::interface {

// What becomes of a destination's fourth channel: there is none, it is kept, copied from the source, set to 0 or to an
// argument, or converted as the other channels are.
enum class Alpha { none, keep, copy, zero, argument, converted };

struct Function {
    std::string_view name;
    std::string_view family;  // title
    std::string_view variant; // as the name has it: "Filter"; often empty
    bool dithers;             // by a fixed matrix of thresholds
    const Format* source;
    const Format* destination;
    Alpha alpha;
    Signature signature;
    std::string_view arguments; // beside images and size: "noise, method, levels"
    bool takesSlice, takesScratch, takesTwist, takesRange, takesLevels, takesWeights;
    ZorStatus (*bound)(const Call&);

    ZorStatus operator()(const Image& from, const Image& to, ZorSize size, const Extra& extra = {}) const
    {
        return bound({from, to, size, withScratch(extra, size)});
    }

    // With scratch memory where the function takes some. It belongs to the calling thread and is good until the
    // thread's next call for a larger size.
    Extra withScratch(Extra extra, ZorSize size) const;
};

std::span<const Function> functions();

// Null when there is no such function.
const Function* findFunction(std::string_view name);

// Steps of an image without gaps between its rows, as the forms without steps take it.
void setContiguousSteps(const Format& format, int width, Image& image);

} // namespace zorcc::interface
