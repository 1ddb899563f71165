// SPDX-License-Identifier: MIT
// An image in guarded memory, as a function's signature wants it laid out, and a shadow: a second image of the same
// arrangement that holds what the first must hold, every byte of rows, gaps and margins.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "interface/functions.h"
#include "tests/harness/plane_memory.h"

namespace zorcc::test {

enum class Steps {
    tight,    // rows without gaps
    sample,   // a gap of one sample
    wide,     // a gap of many samples, a different one in every plane where the signature allows it
    isolated, // inaccessible memory around every row
    huge      // as isolated, more than a GiB from row to row
};

struct Arrangement {
    Steps steps = Steps::tight;
    bool upwards = false; // negative steps
    Edge edge = Edge::end;
    int moved = 0;       // bytes by which a plane lies off the edge, in whole samples ...
    int movedPlane = -1; // ... namely this plane; -1: every plane
};

std::string describe(const Arrangement& arrangement);

// How a signature passes steps.
enum class StepArguments { none, one, perPlane };
StepArguments sourceSteps(const interface::Signature& signature);
StepArguments destinationSteps(const interface::Signature& signature);

// Whether source and destination may be the same image: they have the same rows of the same samples.
bool hasImagesOfOneShape(const interface::Function& function);

// The first byte of a row.
inline std::uint8_t* rowOf(const interface::Image& image, int p, int y)
{
    return static_cast<std::uint8_t*>(image.plane[p]) + std::ptrdiff_t{image.step[p]} * y;
}

class TestImage {
public:
    // `used` are the pixels that the function may touch; the rest of the image has no memory.
    void arrange(const interface::Format& imageFormat, ZorSize imageSize, ZorSize used, const Arrangement& arrangement,
                 StepArguments stepArguments);

    const interface::Format& format() const { return *form; }
    int planes() const { return form ? form->planes : 0; }
    ZorSize size() const { return wholeSize; }
    ZorSize usedSize() const { return usedPart; }
    const interface::Image& image() const { return actualImage; }
    const interface::Image& shadow() const { return shadowImage; }

    // Fills everything, gaps and margins included, with bytes that depend on the seed alone.
    void fillPattern(std::uint32_t seed);

    void copyToShadow();

    // Takes what the rows hold for what they must hold, so that only what lies around them is compared.
    void acceptRows();

    // The first byte in which image and shadow differ, in words.
    [[nodiscard]] std::optional<std::string> difference() const;

    // Where an address lies.
    struct Place {
        std::ptrdiff_t distance; // from the nearest row, in bytes; 0 inside it
        int plane, y;
        std::ptrdiff_t x; // bytes from the start of row y
    };
    Place placeOf(const std::uint8_t* address) const;

    // The used rows: calls visit(row, samples, plane, y) with the first byte of each row of the image.
    template <class Visit> void eachRow(Visit visit) const
    {
        for (int p = 0; p < form->planes; ++p)
            for (int y = 0; y < rows[p]; ++y)
                visit(rowOf(actualImage, p, y), static_cast<int>(rowBytes[p]) / interface::sampleBytes(form->sample), p,
                      y);
    }

private:
    const interface::Format* form = nullptr;
    ZorSize wholeSize{}, usedPart{};
    PlaneMemory actual[interface::maxPlanes], expected[interface::maxPlanes];
    interface::Image actualImage, shadowImage;
    int rows[interface::maxPlanes] = {};
    std::size_t rowBytes[interface::maxPlanes] = {};
};

// The images of a function, without gaps between rows.
struct Images {
    TestImage source, destination;

    Images(const interface::Function& function, ZorSize size) : Images(function, size, size) {}
    Images(const interface::Function& function, ZorSize size, ZorSize used)
    {
        source.arrange(*function.source, size, used, {}, sourceSteps(function.signature));
        destination.arrange(*function.destination, size, used, {}, destinationSteps(function.signature));
    }
};

} // namespace zorcc::test
