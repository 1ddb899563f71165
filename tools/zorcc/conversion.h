// SPDX-License-Identifier: MIT
// Choosing and running functions of the library.
#pragma once

#include <chrono>
#include <mutex>
#include <optional>
#include <string>

#include "formats.h"
#include "picture.h"

namespace zorcc::tool {

using interface::Function;

// What a function of the library has been run on, and the time of its work alone. Several threads may add to it.
class Stats {
public:
    explicit Stats(int runs = 1) : repeat(runs) {}

    const int repeat; // runs on each picture, of which the fastest counts

    void add(const Function& ran, const Picture& picture, std::chrono::duration<double> time);
    bool isEmpty() const { return !function; }

    // One line: "zoriRGBToYUV_8u_C3R: 1 picture of 1920x1080, 5012.3 megapixels/s (best of 3)".
    std::string line() const;

private:
    std::mutex mutex;
    int pictures = 0;
    double megapixels = 0, seconds = 0;
    const Function* function = nullptr; // of the last picture
    ZorSize size{};
};

// Runs a function on a picture of its source format; the result has the same size, whole and visible. Samples that
// the function leaves alone are 0, alpha 255. Throws Cause for an error and leaves a warning in `status`.
inline constexpr interface::Extra opaque {
    .alpha = 255
};
Picture run(const Function& function, const Picture& source, Stats& stats, const interface::Extra& arguments = opaque,
            ZorStatus* status = nullptr);

// The way from one format to another: rearrangement, a function, rearrangement; or, without a function, just that.
struct Conversion {
    const Function* function;
    const Format* target;

    // Nothing of an odd size is lost: the picture is first filled up to whole blocks by repeating its last column and
    // row, which the result has, too, but does not show.
    Picture operator()(Picture picture, Stats& stats) const;
};

// The cheapest conversion, preferring functions with steps; throws Cause if there is none. Formats that go with any
// matrix are taken for the given one, or for any there is a function for. With `dither` it ends in 16-bit pixels,
// dithered.
Conversion findConversion(const Format& from, const Format& to, std::optional<interface::Model> matrix = {},
                          bool dither = false);

// From 4:2:0 to 4:2:2 or 4:2:0, whichever leads to the format better; throws Cause for other pictures.
Conversion findDeinterlacing(const Format& from, const Format& to);

} // namespace zorcc::tool
