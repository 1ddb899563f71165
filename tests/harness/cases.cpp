// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"

#include <fnmatch.h>

#include <iterator>

#include "tests/harness/random.h"
#include "tests/reference/cbycr422.h"
#include "tests/reference/chromasampling.h"
#include "tests/reference/cie.h"
#include "tests/reference/gamma.h"
#include "tests/reference/gray.h"
#include "tests/reference/hexcone.h"
#include "tests/reference/lumachroma.h"
#include "tests/reference/photoycc.h"
#include "tests/reference/reduce.h"
#include "tests/reference/twist.h"
#include "tests/reference/ycocg.h"

namespace zorcc::test {

using namespace reference;
using interface::Extra;
using interface::Function;

namespace {

// ---- arguments ------------------------------------------------------------------------------------------------------

// Every method; levels that divide white and that do not, few and many.
Extra anyReduction(const Function& function, std::uint32_t seed)
{
    Random random(~seed); // not the numbers of the contents
    constexpr int usual[] = {2, 3, 4, 5, 6, 8, 15, 16, 17, 18, 52, 86, 103, 255, 256};
    constexpr int noises[] = {1, 37, 50, 99, 100};
    Extra extra;
    extra.method = static_cast<ZorDitherMethod>(random.below(zorDitherMethodOrdered + 1));
    extra.noise = random.below(2) ? 0 : random.anyOf(noises);
    extra.levels = random.below(2) ? random.anyOf(usual) : 2 + random.below(mostLevels(function) - 1);
    return extra;
}

// The interpolation is not looked at.
Extra anyGrid(const Function&, std::uint32_t seed)
{
    return {.grid = static_cast<int>(seed % 4), .interpolation = static_cast<int>(seed)};
}

// For the first seeds one matrix each, then any.
Extra anyTwist(const Function& function, std::uint32_t seed)
{
    if (seed < twistCount) return {.twist = twists[seed]};
    thread_local float matrix[4][4];
    Random random(~seed);
    const int bytes = interface::sampleBytes(function.source->sample);
    const float white = bytes == 1 ? 255 : bytes == 2 ? 65535 : 1;
    for (auto& row : matrix)
        for (float& t : row) t = static_cast<float>(random() * 0x1p-30 - 2) * (&t == row + 3 ? white / 4 : 0.5f);
    return {.twist = matrix};
}

// Fractions of 1, and what weights are not meant to be.
Extra anyWeights(const Function&, std::uint32_t seed)
{
    static constexpr float special[][3] = {{1, 0, 0},          {0, 0, 1},          {1, 1, 1},
                                           {0.5f, 0.5f, 0.5f}, {-0.25f, 1, 0.25f}, {1.0f / 3, 1.0f / 3, 1.0f / 3},
                                           {20, -3, 17}};
    if (seed % 3 == 0) return {};
    if (seed % 3 == 1) return {.weights = special[seed / 3 % std::size(special)]};
    thread_local float weights[3];
    Random random(~seed);
    float rest = 1;
    for (float& w : weights) rest -= w = rest * static_cast<float>(random() * 0x1p-32);
    return {.weights = weights};
}

Extra anyRange(const Function&, std::uint32_t seed)
{
    constexpr float ranges[][2] = {{0, 1}, {0.25f, 0.75f}, {-1, 3}, {0, 1e-3f}, {0, 255}, {-1e30f, 2e30f}};
    const auto [vMin, vMax] = ranges[seed % std::size(ranges)];
    return {.vMin = vMin, .vMax = vMax};
}

// ---- rules ----------------------------------------------------------------------------------------------------------

constexpr Case yuv[] = {
    {"zoriRGBToYUV_8u_P3R", rgbToYuvMatrix},
    {"zoriRGBToYUV420_8u_C3*", rgbToYuvQ14, OddSize::warning},
    {"zori*ToYUV420_*", rgbToYuv, OddSize::warning},
    {"zori*ToYUV*", rgbToYuv},
    {"zoriYUVToRGB_8u_P3*", toRgb<yuvPlanarWeights>},
    {"zoriYUVToRGB_*", toRgb<yuvWeights>},
    {"zoriYUV422To*_P3AC4R", toRgb<yuvRoundedWeights>},
    {"zoriYUV422To*", toRgb<yuvWeights>},
    {"zoriYUV420To*_P3AC4R", toRgb<yuvRoundedWeights>, OddSize::warning},
    {"zoriYUV420To*", toRgb<yuvWeights>, OddSize::warning},
};

// Luma of every pixel, chroma of the groups that are whole, of which there must be one.
constexpr Case wholeGroups(std::string_view name, ZorSize group)
{
    return {name, rgbToBt601By8ths, OddSize::plainAndWarning, Checks::pointersFirst, group, group};
}

constexpr Case bt601[] = {
    {"zoriYCbCr422ToBGR_*", toRgb<bt601FoldedWeights>, OddSize::plain, Checks::pointersFirst, {1, 1}, {2, 1}},
    {"zoriYCbCrToBGR_*", toRgb<bt601FoldedWeights>, OddSize::plain, Checks::pointersFirst},
    {"zoriBGRToYCbCr422_*", rgbToBt601By8ths, OddSize::plain, Checks::pointersFirst, {1, 1}, {2, 1}},
    wholeGroups("zoriRGBToYCbCr422_8u_C3P3R", {2, 1}),
    wholeGroups("zoriBGRToYCbCr411_*", {4, 1}),
    wholeGroups("zoriBGRToY*420_*", {2, 2}),
    wholeGroups("zoriRGBToYCrCb420_*", {2, 2}),
    {"zoriRGBToYCbCr420_*", rgbToBt601, OddSize::warning},
    {"zoriRGBToYCbCr*", rgbToBt601},
    {"zoriYCbCrToRGB_8u_P3C*", toRgb<bt601PlanarWeights>},
    {"zoriYCbCrToRGB_*", toRgb<bt601Weights>},
    {"zoriYCbCr422To*_C2*", toRgb<bt601FoldedWeights>},
    {"zoriYCbCr422To*_P3*", toRgb<bt601PlanarWeights>},
    {"zori*420ToBGR_Filter_*", bt601ToRgbFiltered, OddSize::warning},
    {"zori*420To*", toRgb<bt601Weights>, OddSize::warning},
    {"zoriYCbCr411To*", toRgb<bt601Weights411>},
};

constexpr Case cbycr422[] = {
    {"zoriRGBToCbYCr422Gamma_*", linearRgbToBt601Filtered, OddSize::plain, Checks::stepsLast},
    {"zoriRGBToCbYCr422_*", rgbToBt601Filtered},
    {"zoriBGRToCbYCr422_*", rgbToCbYCr},
    {"zoriRGBToYCrCb422_*", rgbToYCrCb},
    {"zoriCbYCr422To*", toRgb<bt601RoundedWeights>},
    {"zoriYCrCb422To*", toRgb<bt601FoldedWeights>},
};

constexpr Case bt709[] = {
    {"zoriBGRTo*420_709CSC_*", rgbToBt709, OddSize::warning},
    {"zoriYCbCr420To*_709CSC_*", toRgb<bt709Weights>, OddSize::warning},
    {"zoriYCbCrTo*_709CSC_*", toRgb<bt709Weights>},
    {"zoriBGRTo*420_709HDTV_*", rgbToBt709Full, OddSize::warning},
    {"zoriYCbCr420To*_709HDTV_*", toRgb<bt709FullWeights>, OddSize::warning},
    {"zoriBGRTo*422_709HDTV_*", rgbToBt709Full},
    {"zoriCbYCr422To*_709HDTV_*", toRgb<bt709FullWeights>},
};

// At least one block; what does not fill one is cut off.
constexpr Case inBlocks(std::string_view name, Reference reference, ZorSize block, OddSize oddSize = OddSize::cutOff)
{
    return {name, reference, oddSize, Checks::pointersFirst, block, block};
}

constexpr Case chromasampling[] = {
    inBlocks("zori*_Filter_*", resample<filteredOddRows>, {2, 8}),
    inBlocks("zori*422To*_Interlace_*", resample<mixedFields420>, {2, 4}, OddSize::warning),
    inBlocks("zori*420To*_Interlace_*", resample<mixedFields422>, {2, 4}, OddSize::warning),
    inBlocks("zori*420To1620_*", resample<moved>, {4, 4}, OddSize::refused),
    inBlocks("zori*1620To420_*", resample<doubledColumnsAndRows>, {4, 4}, OddSize::refused),
    inBlocks("zori*411To420_*", resample<doubledColumns>, {4, 4}, OddSize::refused),
    inBlocks("zori*420To411_*", resample<doubledRows>, {4, 2}, OddSize::refused),
    inBlocks("zori*411ToY*420_*", resample<rearranged411As420>, {4, 2}),
    inBlocks("zori*420ToY*411_*", resample<rearranged420As411>, {4, 2}),
    inBlocks("zori*411*", resample<moved>, {4, 1}),
    inBlocks("zori*420*", resample<moved>, {2, 2}),
    inBlocks("zori*422*", resample<moved>, {2, 1}),
};

constexpr Case videolayouts[] = {
    inBlocks("zori*_Filter_*", resample<deinterlacedChroma, deinterlacedLuma>, {2, 2}),
    inBlocks("zori*420*", resample<moved>, {2, 2}),
    inBlocks("zori*422*", resample<moved>, {2, 1}),
};

constexpr Case rgb565[] = {
    {"zoriYCbCrTo*_P3C3R", toRgb<bt601PlanarWeights>},
    {"zoriYCbCr422To*_P3C3R", toRgb<bt601PlanarWeights>},
    {"zoriYCbCr422To*_C2C3R", toRgb<bt601FoldedWeights>},
    {"zoriYCbCr411To*", toRgb<bt601Weights411>},
    {"zoriYCbCr*To*_8u16u_*", toRgb<bt601Weights>},
    {"zoriYUV420To*", toRgb<yuvWeights>},
    {.name = "zori*ToYCbCr422_*", .reference = rgbToBt601By8ths, .minimum = {2, 1}},
    {"zori*ToYCbCr411_*", rgbToBt601By8ths, OddSize::plainAndWarning, Checks::sizeFirst, {4, 1}, {4, 1}},
    {"zori*ToYUV420_*", rgbToYuv, OddSize::warning, Checks::pointersFirst, {2, 2}, {2, 2}},
    {"zori*420_16u8u_*", rgbToBt601, OddSize::warning, Checks::sizeFirst, {2, 2}, {2, 2}},
    {"zori*", copyRgb, OddSize::plain, Checks::stepsLast},
};

constexpr Case ycocg[] = {
    {"zori*ToYCoCg_Rev_*", rgbToYCoCgReversible, OddSize::plain, Checks::pointersOnly},
    {"zori*ToYCoCg_*", rgbToYCoCg, OddSize::plain, Checks::pointersOnly},
    {"zoriYCoCgTo*_Rev_*", yCoCgReversibleToRgb, OddSize::plain, Checks::pointersOnly},
    {"zoriYCoCgTo*", yCoCgToRgb, OddSize::plain, Checks::pointersOnly},
};

constexpr Case hlspl[] = {
    {"zoriBGRToHLS_8u_*P*", rgbToHls, OddSize::plain, Checks::stepsFirst},
    {"zoriHLSToBGR_8u_*P*", hlsToRgb, OddSize::plain, Checks::stepsFirst},
};

constexpr Case hls[] = {
    {.name = "zori*ToHLS_*", .reference = rgbToHls, .defined = hasHls},
    {.name = "zoriHLSTo*", .reference = hlsToRgb, .defined = isHls},
};

constexpr Case hsv[] = {
    {"zoriRGBToHSV_*", rgbToHsv},
    {"zoriHSVToRGB_*", hsvToRgb},
};

constexpr Case xyz[] = {
    {.name = "zoriRGBToXYZ_*", .reference = rgbToXyz, .defined = isLinear},
    {.name = "zoriXYZToRGB_*", .reference = xyzToRgb, .defined = isLinear},
};

constexpr Case luv[] = {
    {.name = "zoriRGBToLUV_*", .reference = rgbToLuv, .defined = isLinear},
    {.name = "zoriLUVToRGB_*", .reference = luvToRgb, .defined = isLuv},
};

constexpr Case lab[] = {
    {"zoriBGRToLab_*", rgbToLab},
    {"zoriLabToBGR_*", labToRgb},
};

constexpr Case photoycc[] = {
    {.name = "zoriRGBToYCC_*", .reference = rgbToPhotoYcc, .defined = isLinear},
    {.name = "zoriYCCToRGB_*", .reference = photoYccToRgb, .defined = isLinear},
};

constexpr Case twistRules[] = {{.name = "zoriColorTwist*",
                                .checks = Checks::pointersSizeSteps,
                                .imageReference = twist,
                                .arguments = anyTwist,
                                .anyNaN = true}};

constexpr Case gammaRule(std::string_view name, ImageReference reference)
{
    return {.name = name,
            .checks = Checks::pointersSizeSteps,
            .imageReference = reference,
            .arguments = anyRange,
            .ulps = 1,
            .anyNaN = true};
}
constexpr Case gammaRules[] = {gammaRule("zoriGammaFwd_*", gammaForward), gammaRule("zoriGammaInv_*", gammaInverse)};

constexpr Case gray[] = {
    {.name = "zoriRGBToGray_*", .imageReference = toGray, .anyNaN = true},
    {.name = "zoriColorToGray_*", .imageReference = toGray, .arguments = anyWeights, .anyNaN = true},
};

constexpr Case tonemap[] = {
    {.name = "zoriToneMapLinear_*", .reference = toneMapLinear, .outcome = outcomeOfLinear},
    {.name = "zoriToneMapMean_*", .reference = toneMapMean, .outcome = outcomeOfMean},
};

constexpr Case reduce[] = {{.name = "zoriReduceBits_*", .imageReference = reduceBits, .arguments = anyReduction}};

constexpr Case bayer[] = {
    {.name = "zoriCFAToRGB_*", .minimum = {2, 2}, .arguments = anyGrid, .demosaic = alongGradients}};

constexpr Case demosaicahd[] = {
    {.name = "zoriDemosaicAHD_*", .minimum = {5, 5}, .arguments = anyGrid, .demosaic = adaptive}};

constexpr Family table[] = {
    {"yuv", "RGB and YUV", yuv},
    {"bt601", "RGB and YCbCr (ITU-R BT.601)", bt601},
    {"cbycr422", "RGB and packed CbYCr and YCrCb 4:2:2", cbycr422},
    {"bt709", "BGR and YCbCr (ITU-R BT.709)", bt709},
    {"chromasampling", "Chroma sampling and plane orders", chromasampling},
    {"videolayouts", "Video layouts and deinterlacing", videolayouts},
    {"rgb565", "Packed 16-bit RGB", rgb565},
    {"ycocg", "RGB and YCoCg", ycocg},
    {"hlspl", "HLS and HSV", hlspl},
    {"hls", "HLS and HSV", hls},
    {"hsv", "HLS and HSV", hsv},
    {"xyz", "CIE XYZ, LUV and Lab", xyz},
    {"luv", "CIE XYZ, LUV and Lab", luv},
    {"lab", "CIE XYZ, LUV and Lab", lab},
    {"photoycc", "PhotoYCC", photoycc},
    {"twist", "Colour twist", twistRules},
    {"gamma", "Gamma correction", gammaRules},
    {"gray", "Grey and tone mapping", gray},
    {"tonemap", "Grey and tone mapping", tonemap},
    {"reduce", "Bit-depth reduction", reduce},
    {"bayer", "Demosaicing", bayer},
    {"demosaicahd", "Demosaicing", demosaicahd},
};

} // namespace

std::span<const Family> families() { return table; }

Rule ruleOf(const Function& function)
{
    for (const Family& family : table)
        for (const Case& rule : family.rules)
            if (family.title == function.family &&
                fnmatch(std::string(rule.name).c_str(), std::string(function.name).c_str(), 0) == 0)
                return {&family, &rule};
    return {};
}

std::vector<Case> casesOf(std::string_view family)
{
    std::vector<Case> cases;
    for (const Function& function : interface::functions())
        if (const Rule rule = ruleOf(function); rule.expected && rule.family->name == family) {
            cases.push_back(*rule.expected);
            cases.back().name = function.name;
        }
    return cases;
}

const Function& functionOf(const Case& c) { return *interface::findFunction(c.name); }

} // namespace zorcc::test
