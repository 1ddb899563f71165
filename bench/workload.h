// SPDX-License-Identifier: MIT
// A function with images that it converts, and a memcpy of the same traffic.
#pragma once

#include "bench/picture.h"
#include "bench/variants.h"

namespace zorcc::bench {

class Workload {
public:
    // Converts the upper left corner where the images are larger.
    Workload(const interface::Function& f, const Variant& variant, ZorSize size, ZorSize imageSize)
        : function(f), source(*f.source, imageSize),
          destination(*f.destination, imageSize), call{source.image, destination.image, size,
                                                       f.withScratch(variant.arguments, size)}
    {
    }
    Workload(const interface::Function& f, const Variant& variant, ZorSize size) : Workload(f, variant, size, size) {}

    ZorStatus operator()() const { return function.bound(call); }

private:
    const interface::Function& function;

public:
    const Picture source, destination;

private:
    const interface::Call call;
};

// Half of the conversion's traffic is read and half is written.
class Copy {
public:
    Copy(const interface::Function& function, ZorSize size)
        : bytes(trafficBytes(function, size) / 2), source(bytes), destination(bytes)
    {
    }

    void operator()() const { std::memcpy(destination.data(), source.data(), bytes); }

private:
    std::size_t bytes;
    Buffer source, destination;
};

} // namespace zorcc::bench
