// SPDX-License-Identifier: MIT
// Pictures in other formats, by plans of the conversion layer.
#pragma once

#include <memory>
#include <new>
#include <optional>
#include <string>

#include "picture.h"

namespace zorcc::tool {

// A plan for pictures of one size. One thread at a time may use it.
class Conversion {
public:
    // Between formats of the layer. Throws Cause with the layer's message where there is no way.
    Conversion(const PictureKind& from, const PictureKind& to, ZorSize size, const ZorPlanOptions& options = usual);

    // The picture in the other format, with chroma for whole blocks. Where nothing is to be done, its bytes stay where
    // they are.
    Picture operator()(Picture picture) const;

    // The same, with the matrix and range that the picture had before.
    Picture keepingColour(Picture picture) const;

    // The same `repeat` times, and the shortest time of a run in seconds.
    Picture timed(Picture picture, int repeat, double& seconds) const;

    bool isIdentity() const;       // the samples stay where they are
    std::string functions() const; // their names, ", " between them; what is done where there is none
    std::string words() const;     // all lines about the plan
    std::string losses() const;    // those about what is lost; empty where nothing is

    static constexpr ZorPlanOptions usual = [] {
        ZorPlanOptions options{};
        options.structBytes = sizeof options;
        return options;
    }();

private:
    friend std::optional<Conversion> findRearrangement(const Format&, const Format&, ZorSize);

    struct Release {
        void operator()(ZorPlan* made) const { zorPlanFree(made); }
    };
    Conversion(const PictureKind& from, const PictureKind& to, ZorSize size, const ZorPlanOptions& options,
               std::nothrow_t);

    bool exists() const { return zorPlanStatus(plan.get()) == zorStatusOk; }

    // Whether luma and chroma, or RGB and grey, stay what they are in every function.
    bool keepsColours() const;

    const Format *source = nullptr, *destination = nullptr;
    Colour colour; // of the result
    std::unique_ptr<ZorPlan, Release> plan;
};

// A conversion in which samples change places, type and number alone; none if colours or chroma would have to be
// computed. Alpha may be added or dropped, grey repeated. Formats of functions count as those of the layer.
std::optional<Conversion> findRearrangement(const Format& from, const Format& to, ZorSize size);

// By such a conversion, which there must be; a warning in the name of `file` says what it loses.
Picture rearranged(Picture picture, const Format& to, const std::string& file = "");

// The same samples in memory for another size, in a format that differs in the rounding of odd sizes at most. Pixels
// beyond the visible ones repeat the last visible column and row.
Picture resized(Picture picture, const Format& to, ZorSize size);

// A picture of those that findRearrangement() takes, as a function of this source format takes it: with chroma for its
// visible pixels as the function rounds it. Grey counts as a mosaic. None for others.
std::optional<Picture> asSource(Picture picture, const Format& source);

// Alpha of the visible pixels, from one picture to another; both have it.
void copyAlpha(const Picture& from, const Picture& to);

// Sets alpha, where there is any, to opaque.
void setOpaque(const Picture& picture);

} // namespace zorcc::tool
