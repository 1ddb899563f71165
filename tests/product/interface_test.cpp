// SPDX-License-Identifier: MIT
// The table of functions says what their names say.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "interface/functions.h"

namespace zorcc::test {
namespace {

using namespace interface;
using std::string_view;

// The first of the words that opens the text, which loses it; empty when none does.
string_view take(string_view& text, const std::vector<string_view>& words)
{
    for (const string_view word : words)
        if (text.starts_with(word)) {
            text.remove_prefix(word.size());
            return word;
        }
    return {};
}

const std::vector<string_view> models = {"CFA", "RGB", "BGR", "YUV", "YCbCr", "YCrCb", "CbYCr", "HLS", "HSV"};
const std::vector<string_view> packings = {"422", "420", "411", "1620", "565"};
const std::vector<string_view> variants = {"709CSC_", "709HDTV_", "Filter_", "Interlace_"};
const std::vector<string_view> types = {"8u", "16u", "16s", "32s", "32f"};
const std::vector<string_view> layouts = {"AC4", "AP4", "C1", "C2", "C3", "C4", "P2", "P3", "P4"};

// zori ReduceBits _ <type> [type] _ <layout> R, or
// zori <model> [packing] [To [model] [packing]] _ [variant _] <type> [type] _ <layout> [layout] [R]; what is not said
// of the destination is as in the source
struct Name {
    string_view model[2], packing[2], type[2], layout[2]; // source, destination
    string_view variant;
    bool steps = false, whole = false;
    bool reduction = false; // keeps the colour model, whichever it is

    explicit Name(string_view text)
    {
        bool known = !take(text, {"zori"}).empty();
        reduction = !take(text, {"ReduceBits_"}).empty();
        if (!take(text, {"DemosaicAHD"}).empty()) { // what it converts between goes without saying
            model[0] = "CFA";
            model[1] = "RGB";
        }
        for (int i = 0; i < 2 && !reduction; ++i) {
            if (!model[i].empty()) continue;
            if (i == 1 && take(text, {"To"}).empty()) break;
            model[i] = take(text, models);
            packing[i] = take(text, packings);
        }
        known = known && (reduction || (!model[0].empty() && !take(text, {"_"}).empty()));
        if (packing[1].empty() && model[1].empty()) packing[1] = packing[0];
        if (model[1].empty()) model[1] = model[0];
        variant = take(text, variants);
        takePair(text, types, type);
        known = known && !take(text, {"_"}).empty();
        takePair(text, layouts, layout);
        steps = !take(text, {"R"}).empty();
        whole = known && !type[0].empty() && !layout[0].empty() && text.empty();
    }

private:
    static void takePair(string_view& text, const std::vector<string_view>& words, string_view (&pair)[2])
    {
        pair[0] = take(text, words);
        pair[1] = take(text, words);
        if (pair[1].empty()) pair[1] = pair[0];
    }
};

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
    const Model model = name.reduction               ? (format.channels.size() == 1 ? Model::grey : Model::rgb)
                        : rgb                        ? Model::rgb
                        : name.model[i] == "CFA"     ? Model::mosaic
                        : !isRgb(1 - i)              ? Model::anyYcc
                        : name.model[i] == "YUV"     ? Model::yuv
                        : name.model[i] == "HLS"     ? Model::hls
                        : name.model[i] == "HSV"     ? Model::hsv
                        : name.variant == "709CSC_"  ? Model::bt709
                        : name.variant == "709HDTV_" ? Model::bt709full
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
        const Name name(function.name);
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
