// SPDX-License-Identifier: MIT
// The table of all exported conversions.
#pragma once

#include <span>
#include <string_view>

#include "interface/call.h"
#include "interface/formats.h"

namespace zorcc::interface {

enum class Alpha { none, keep, copy, zero, argument, converted };

struct Function {
    std::string_view name;
    std::string_view family; // title
    const Format* source;
    const Format* destination;
    Alpha alpha;
    Signature signature;
    ZorStatus (*bound)(Call&);
    std::function<ZorStatus()> (*prepare)(Call&);

    ZorStatus operator()(const Image& from, const Image& to, ZorSize size, const Extra& extra = {}) const
    {
        const Image result = withScratch(to, size);
        Call call{from, result, size, extra};
        return bound(call);
    }

    // The destination with scratch memory as its plane 1, where the function takes some. The memory belongs to the
    // calling thread and is good until its next call for a larger size.
    Image withScratch(const Image& to, ZorSize size) const;
};

std::span<const Function> functions();

// Null when there is no such function.
const Function* findFunction(std::string_view name);

// Steps of an image without gaps between its rows, as the forms without steps take it.
void setContiguousSteps(const Format& format, int width, Image& image);

} // namespace zorcc::interface
