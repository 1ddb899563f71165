// SPDX-License-Identifier: MIT
// The table of functions says what their names say.
#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <string_view>

#include "interface/functions.h"

namespace zorcc::test {
namespace {

using namespace interface;
using std::string_view;

#define MODEL "(CFA|RGB|BGR|YUV|YCbCr|YCrCb|CbYCr|HLS|HSV)"
#define PACKING "(422|420|411|1620|565)?"
#define TYPE "(8u|16u|16s|32s|32f)"
#define LAYOUT "(AC4|AP4|C1|C2|C3|C4|P2|P3|P4)"

// What a name says; of the destination as of the source, where it says nothing.
struct Name {
    std::string model[2], packing[2], type[2], layout[2]; // source, destination
    std::string variant;
    bool steps = false, whole = false;
    bool reduction = false; // keeps the colour model, whichever it is

    explicit Name(std::string text)
    {
        // Operations whose names do not say the models.
        const auto replace = [&](string_view operation, const char* models) {
            if (!text.starts_with(operation)) return false;
            text.replace(0, operation.size(), models);
            return true;
        };
        reduction = replace("zoriReduceBits", "zoriRGB");
        replace("zoriDemosaicAHD", "zoriCFAToRGB");
        static const std::regex form("zori" MODEL PACKING "(To" MODEL "?" PACKING
                                     ")?_((709CSC|709HDTV|Filter|Interlace)_)?" TYPE TYPE "?_" LAYOUT LAYOUT "?(R?)");
        std::smatch word;
        whole = std::regex_match(text, word, form);
        if (!whole) return;
        const auto pair = [&](std::string(&both)[2], int source, int destination) {
            both[0] = word[source];
            both[1] = word[word[destination].length() > 0 ? destination : source];
        };
        if (!reduction) pair(model, 1, 4);
        packing[0] = word[2];
        packing[1] = word[3].length() > 0 ? word[5] : word[2];
        variant = word[7];
        pair(type, 8, 9);
        pair(layout, 10, 11);
        steps = word[12].length() > 0;
    }
};

#undef MODEL
#undef PACKING
#undef TYPE
#undef LAYOUT

Sample sampleOf(string_view type)
{
    if (type == "8u") return Sample::u8;
    if (type == "16u") return Sample::u16;
    if (type == "16s") return Sample::s16;
    return type == "32s" ? Sample::s32 : Sample::f32;
}

void expectImage(const Name& name, int i, const Format& format, bool array, bool stepOfEachPlane)
{
    const auto isRgb = [&](int side) { return name.model[side] == "RGB" || name.model[side] == "BGR"; };
    const bool rgb = isRgb(i);
    const Model model = name.reduction              ? (format.channels.size() == 1 ? Model::grey : Model::rgb)
                        : rgb                       ? Model::rgb
                        : name.model[i] == "CFA"    ? Model::mosaic
                        : !isRgb(1 - i)             ? Model::anyYcc
                        : name.model[i] == "YUV"    ? Model::yuv
                        : name.model[i] == "HLS"    ? Model::hls
                        : name.model[i] == "HSV"    ? Model::hsv
                        : name.variant == "709CSC"  ? Model::bt709
                        : name.variant == "709HDTV" ? Model::bt709full
                                                    : Model::bt601;
    EXPECT_EQ(format.model, model);
    if (rgb) {
        EXPECT_EQ(format.channels.substr(0, 3), name.model[i]);
    }
    const bool packed422 = name.layout[i] == "C2";
    EXPECT_EQ(format.channels[0] == 'U', name.model[i] == "CbYCr" && packed422);
    EXPECT_EQ(format.channels[1] == 'V', name.model[i] == "YCrCb");
    EXPECT_EQ(format.layout == Layout::packedBits, name.packing[i] == "565");
    const bool blocks = name.packing[i] == "420", fours = name.packing[i] == "1620";
    const bool quads = name.packing[i] == "411" || fours;
    const bool shared = blocks || quads || name.packing[i] == "422";
    EXPECT_EQ(format.subsampled(), shared);
    EXPECT_EQ(format.log2X(), quads ? 2 : shared ? 1 : 0);
    EXPECT_EQ(format.log2Y(), blocks ? 1 : fours ? 2 : 0);

    EXPECT_EQ(format.sample, sampleOf(name.type[i]));

    const string_view layout = name.layout[i];
    const int count = layout.back() - '0';
    const bool planar = layout[0] == 'P' || layout == "AP4";
    EXPECT_EQ(format.planes, planar ? count : 1);
    if (!planar) {
        const bool packed = format.layout == Layout::packed422;
        EXPECT_EQ(packed ? format.plane[0].samples : static_cast<int>(format.channels.size()), count);
    }
    if (layout[0] == 'A') {
        EXPECT_NE(format.channels.find('A'), string_view::npos);
    }
    EXPECT_EQ(array, planar && layout != "P2");
    EXPECT_EQ(stepOfEachPlane, planar && shared && name.steps);
}

TEST(Interface, TableSaysWhatNamesSay)
{
    ASSERT_FALSE(functions().empty());
    for (const Function& function : functions()) {
        SCOPED_TRACE(function.name);
        const Name name(std::string(function.name));
        ASSERT_TRUE(name.whole) << "a name that this test cannot read";
        const Signature& signature = function.signature;
        EXPECT_EQ(signature.steps, name.steps);
        expectImage(name, 0, *function.source, signature.sourceArray, signature.sourceSteps);
        expectImage(name, 1, *function.destination, signature.destinationArray, signature.destinationSteps);
        const bool hasAlpha = function.destination->channels.find('A') != string_view::npos;
        EXPECT_EQ(function.alpha != Alpha::none, hasAlpha);
        if (function.alpha == Alpha::copy) {
            EXPECT_NE(function.source->channels.find('A'), string_view::npos);
        }
        EXPECT_FALSE(function.family.empty());
        EXPECT_EQ(findFunction(function.name), &function);
    }
}

} // namespace
} // namespace zorcc::test
