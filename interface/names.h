// SPDX-License-Identifier: MIT
// What the name of a conversion says of its images: zori<Operation>[_<variant>]_<sample types>_<layouts>[R], with an I
// beside the layout of one in place. Names are read here alone, when this is compiled; a name that cannot be read does
// not compile.
#pragma once

#include <stdexcept>
#include <string_view>

#include "interface/formats.h"

namespace zorcc::interface {

struct Name {
    // One image.
    struct Side {
        std::string_view model, packing, sample, layout;
    };
    Side source, destination;
    std::string_view variant;
    bool dither = false;
    bool inPlace = false; // one image is source and destination
    bool steps = false;   // there are steps between rows; otherwise they follow each other without gaps
};

// Reads a name from its beginning on.
class NameReader {
public:
    explicit constexpr NameReader(std::string_view name) : rest(name) {}

    constexpr bool read(std::string_view word)
    {
        const bool found = rest.starts_with(word);
        if (found) rest.remove_prefix(word.size());
        return found;
    }

    // The one of several words that comes next; none of them: the other word.
    template <std::size_t n>
    constexpr std::string_view readOneOf(const std::string_view (&words)[n], std::string_view otherwise = {})
    {
        for (std::string_view word : words)
            if (read(word)) return word;
        return otherwise;
    }

    constexpr void expect(bool found) const
    {
        if (!found) throw std::invalid_argument("a name that cannot be read");
    }

    constexpr bool atEnd() const { return rest.empty(); }

private:
    std::string_view rest;
};

// What names are made of. Not in the function, which would measure them all for every name.
namespace nameParts {

inline constexpr std::string_view words[] = {"RGB", "BGR", "SBGR", "YUV", "YCbCr", "YCrCb", "CbYCr", "YCoCg",
                                             "HLS", "HSV", "XYZ",  "LUV", "Lab",   "YCC",   "Gray"};
inline constexpr std::string_view packings[] = {"422", "420", "411", "1620", "565", "555", "444"};
inline constexpr std::string_view variants[] = {"709CSC", "709HDTV", "Filter", "Interlace", "Rev"};
inline constexpr std::string_view curves[] = {"Gamma"}; // variants that follow the formats without a break
inline constexpr std::string_view samples[] = {"8u", "8s", "16u", "16s", "32s", "32f"};
inline constexpr std::string_view layouts[] = {"AC4", "AP4", "C1", "C2", "C3", "C4", "P2", "P3", "P4"};
inline constexpr std::string_view ofAnyModel[] = {"ReduceBits", "ColorTwist32f", "ColorTwist", "GammaFwd",
                                                  "GammaInv",   "ToneMapLinear", "ToneMapMean"};

} // namespace nameParts

constexpr Name parse(std::string_view text)
{
    using namespace nameParts;
    NameReader name(text);
    Name n;
    Name::Side &from = n.source, &to = n.destination;
    name.expect(name.read("zori"));
    if (!name.readOneOf(ofAnyModel).empty()) { // keep the model, whichever it is
        from.model = to.model = "RGB";
    } else if (name.read("ColorToGray")) {
        from.model = "RGB";
        to.model = "Gray";
    } else if (name.read("CFAToRGB") || name.read("DemosaicAHD")) {
        from.model = "CFA";
        to.model = "RGB";
    } else {
        from.model = name.readOneOf(words);
        name.expect(!from.model.empty());
        from.packing = name.readOneOf(packings);
        if (name.read("To")) {
            to.model = name.readOneOf(words, from.model);
            to.packing = name.readOneOf(packings);
            n.dither = name.read("Dither");
        } else {
            to = from;
        }
    }
    n.variant = name.readOneOf(curves);
    name.expect(name.read("_"));
    n.variant = name.readOneOf(variants, n.variant);
    name.expect(n.variant.empty() || n.variant == curves[0] || name.read("_"));
    from.sample = name.readOneOf(samples);
    to.sample = name.readOneOf(samples, from.sample);
    name.expect(!from.sample.empty() && name.read("_"));
    n.inPlace = name.read("I");
    from.layout = name.readOneOf(layouts);
    to.layout = name.readOneOf(layouts, from.layout);
    n.inPlace |= name.read("I");
    n.steps = name.read("R");
    name.expect(!from.layout.empty() && name.atEnd());
    return n;
}

constexpr bool isBgr(const Name::Side& side) { return side.model == "BGR" || side.model == "SBGR"; }
constexpr bool isRgb(const Name::Side& side) { return side.model == "RGB" || isBgr(side); }
constexpr bool isMosaic(const Name::Side& side) { return side.model == "CFA"; }
constexpr bool hasAlpha(const Name::Side& side) { return side.layout.find('4') != std::string_view::npos; }
constexpr bool isPlanar(const Name::Side& side) { return side.layout.find('P') != std::string_view::npos; }

constexpr Sample sampleOf(const Name::Side& side)
{
    return side.sample == "8u"    ? Sample::u8
           : side.sample == "8s"  ? Sample::s8
           : side.sample == "16u" ? Sample::u16
           : side.sample == "16s" ? Sample::s16
           : side.sample == "32s" ? Sample::s32
                                  : Sample::f32;
}

// Conversions between RGB and Y'CbCr have a matrix; those from Y'CbCr to Y'CbCr move samples of any.
constexpr Model modelOf(const Name& name, const Name::Side& side)
{
    if (isMosaic(side)) return Model::mosaic;
    if (side.model == "Gray") return Model::grey;
    if (isRgb(side)) return side.layout == "C1" ? Model::grey : Model::rgb;
    if (side.model == "YCoCg") return name.variant == "Rev" ? Model::ycocgRev : Model::ycocg;
    if (side.model == "HLS") return Model::hls;
    if (side.model == "HSV") return Model::hsv;
    if (side.model == "XYZ") return Model::xyz;
    if (side.model == "LUV") return Model::luv;
    if (side.model == "Lab") return Model::lab;
    if (side.model == "YCC") return Model::photoycc;
    if (!isRgb(name.source) && !isRgb(name.destination)) return Model::anyYcc;
    if (side.model == "YUV") return Model::yuv;
    return name.variant == "709CSC" ? Model::bt709 : name.variant == "709HDTV" ? Model::bt709full : Model::bt601;
}

constexpr Shape shapeOf(const Name& name, const Name::Side& side)
{
    const int count = side.layout.back() - '0';
    Shape s{modelOf(name, side), sampleOf(side), Layout::interleaved, count};
    s.reversed = isBgr(side) || side.model == "YCrCb";
    if (isRgb(side) && !side.packing.empty()) {
        s.layout = Layout::packedBits;
        s.fieldBits = side.packing == "565" ? 565 : side.packing == "555" ? 555 : 444;
    } else if (side.layout == "C2") {
        s.layout = Layout::packed422;
        s.chromaFirst = side.model == "CbYCr";
        s.channels = 3;
    } else if (side.layout == "P2") {
        s.layout = Layout::semiPlanar;
        s.channels = 3;
    } else if (isPlanar(side)) {
        s.layout = Layout::planar;
    }
    if (s.layout == Layout::planar || s.layout == Layout::semiPlanar) {
        s.log2X = side.packing == "411" || side.packing == "1620" ? 2 : side.packing == "420" || side.packing == "422";
        s.log2Y = side.packing == "1620" ? 2 : side.packing == "420";
        s.roundsUp = side.packing == "420" && isRgb(name.destination) && !name.destination.packing.empty();
    }
    return s;
}

} // namespace zorcc::interface
