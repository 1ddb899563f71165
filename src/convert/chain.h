// SPDX-License-Identifier: MIT
// A route with all that its run needs, and the run: strip by strip, step by step.
#pragma once

#include "convert/moves.h"
#include "convert/route.h"

namespace zorcc::conversion {

// What a chain does about alpha after its last step.
enum class AlphaStep {
    none, // there is none, or the chain has given it
    copy, // from the source
    opaque
};

// Planes and steps as the caller gives them.
struct CallersImages {
    const void* const* source;
    const int* sourceSteps;
    void* const* destination;
    const int* destinationSteps;
};

struct Chain {
    static constexpr int maxImages = Route::maxSteps + 1;

    Picture from;
    Route route;
    ZorSize size = {};
    bool truncates = false;
    AlphaStep alpha = AlphaStep::none;
    ZorDitherMethod method = zorDitherMethodNone; // of a reduction to 8 bits
    float greyWeights[3] = {};
    bool weighsGrey = false;

    int threads = 1;        // at most; layOut leaves no more than there are strips
    int plannedThreads = 1; // before that
    int stripRows = 0;      // of whole blocks; all rows where they cannot be cut
    ZorSize block = {1, 1}; // sides are filled up to whole ones
    int wholeWidth = 0;     // filled up

    // Where each image's planes lie in the memory of a strip.
    int steps[maxImages][interface::maxPlanes] = {};
    std::size_t offsets[maxImages][interface::maxPlanes] = {};
    std::size_t bytesOfStrip = 0;
    SamePlanes same[Route::maxSteps]; // of moves

    int images() const { return route.count + 1; }
    const Format& format(int image) const
    {
        return image == 0 ? from.layout() : route.steps[image - 1].result.layout();
    }
    bool isCut() const { return stripRows < size.height; }
    int strips() const { return (size.height + stripRows - 1) / stripRows; }

    // Lays out the memory of a strip of `rows` rows; 0: of the number that suits the cache.
    void layOut(int rows);

    // Whether steps and pointers of the caller can be used.
    ZorStatus check(const CallersImages& images) const;

    // `memory` has bytesOfStrip bytes for each thread, on a boundary of 64.
    ZorStatus run(const CallersImages& images, std::uint8_t* memory) const;
};

} // namespace zorcc::conversion
