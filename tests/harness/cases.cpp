// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"

#include <fnmatch.h>

#include <iterator>
#include <map>
#include <random>
#include <vector>

#include "tests/reference/chromasampling.h"
#include "tests/reference/hexcone.h"
#include "tests/reference/reduce.h"
#include "tests/reference/ycbcr.h"
#include "tests/reference/yuv.h"

namespace zorcc::test {

using namespace reference;
using interface::Extra;
using interface::Function;

namespace {

// ---- arguments ------------------------------------------------------------------------------------------------------

// Every method; levels that divide white and that do not, few and many.
Extra anyReduction(const Function& function, std::uint32_t seed)
{
    std::minstd_rand random(seed + 1);
    const auto below = [&](int count) { return static_cast<int>(random() / 7 % static_cast<unsigned>(count)); };
    constexpr int usual[] = {2, 3, 4, 5, 6, 8, 15, 16, 17, 18, 52, 86, 103, 255, 256};
    constexpr int noises[] = {1, 37, 50, 99, 100};
    Extra extra;
    extra.method = static_cast<ZorDitherMethod>(below(zorDitherMethodOrdered + 1));
    extra.noise = below(2) ? 0 : noises[below(static_cast<int>(std::size(noises)))];
    extra.levels = below(2) ? usual[below(static_cast<int>(std::size(usual)))] : 2 + below(mostLevels(function) - 1);
    return extra;
}

// The interpolation is not looked at.
Extra anyGrid(const Function&, std::uint32_t seed)
{
    return {.grid = static_cast<int>(seed % 4), .interpolation = static_cast<int>(seed)};
}

// ---- rules ----------------------------------------------------------------------------------------------------------

constexpr Case yuv[] = {
    {"zoriRGBToYUV_8u_P3R", rgbToYuvMatrix},
    {"zoriRGBToYUV_*", rgbToYuv},
    {"zoriYUVToRGB_8u_P3*", yuvToRgbPlanarWeights},
    {"zoriYUVToRGB_*", yuvToRgb},
    {"zori*ToYUV422_*", rgbToYuvPairs},
    {"zoriRGBToYUV420_8u_C3*", rgbToYuvBlocksQ14, OddSize::warning},
    {"zori*ToYUV420_*", rgbToYuvBlocksQ16, OddSize::warning},
    {"zoriYUV422To*_P3AC4R", subsampledYuvToRgbRounded},
    {"zoriYUV422To*", subsampledYuvToRgb},
    {"zoriYUV420To*_P3AC4R", subsampledYuvToRgbRounded, OddSize::warning},
    {"zoriYUV420To*", subsampledYuvToRgb, OddSize::warning},
};

constexpr Case bt601[] = {
    {"zoriRGBToYCbCr_*", rgbToBt601},
    {"zoriRGBToYCbCr422_*", rgbToBt601Pairs},
    {"zoriRGBToYCbCr420_*", rgbToBt601Blocks, OddSize::warning},
    {"zoriYCbCrToRGB_8u_P3C*", bt601ToRgbPlanarWeights},
    {"zoriYCbCrToRGB_*", bt601ToRgb},
    {"zoriYCbCr422To*_C2*", bt601ToRgbPackedConstants},
    {"zoriYCbCr422To*_P3*", bt601ToRgbPlanarWeights},
    {"zori*420ToBGR_Filter_*", bt601ToRgbFiltered, OddSize::warning},
    {"zori*420To*", bt601ToRgb, OddSize::warning},
    {"zoriYCbCr411To*", bt601ToRgb411},
};

constexpr Case bt709[] = {
    {"zoriBGRTo*420_709CSC_*", rgbToBt709Blocks, OddSize::warning},
    {"zoriYCbCr420To*_709CSC_*", bt709ToRgb, OddSize::warning},
    {"zoriYCbCrTo*_709CSC_*", bt709ToRgb},
    {"zoriBGRTo*420_709HDTV_*", rgbToBt709FullBlocks, OddSize::warning},
    {"zoriYCbCr420To*_709HDTV_*", bt709FullToRgb, OddSize::warning},
    {"zoriBGRTo*422_709HDTV_*", rgbToBt709FullPairs},
    {"zoriCbYCr422To*_709HDTV_*", bt709FullToRgb},
};

// At least one block; what does not fill one is cut off.
constexpr Case inBlocks(std::string_view name, Reference reference, ZorSize block, OddSize oddSize = OddSize::cutOff)
{
    return {name, reference, oddSize, Checks::pointersFirst, block, block};
}

constexpr Case chromasampling[] = {
    inBlocks("zori*_Filter_*", filterOddRows, {2, 8}),
    inBlocks("zori*422To*_Interlace_*", mixFieldsTo420, {2, 4}, OddSize::warning),
    inBlocks("zori*420To*_Interlace_*", mixFieldsTo422, {2, 4}, OddSize::warning),
    inBlocks("zori*420To1620_*", moveChroma, {4, 4}, OddSize::refused),
    inBlocks("zori*1620To420_*", doubleColumnsAndRows, {4, 4}, OddSize::refused),
    inBlocks("zori*411To420_*", doubleColumns, {4, 4}, OddSize::refused),
    inBlocks("zori*420To411_*", doubleRows, {4, 2}, OddSize::refused),
    inBlocks("zori*411ToY*420_*", rearrange411As420, {4, 2}),
    inBlocks("zori*420ToY*411_*", rearrange420As411, {4, 2}),
    inBlocks("zori*411*", moveChroma, {4, 1}),
    inBlocks("zori*420*", moveChroma, {2, 2}),
    inBlocks("zori*422*", moveChroma, {2, 1}),
};

constexpr Case videolayouts[] = {
    inBlocks("zori*_Filter_*", deinterlace, {2, 2}),
    inBlocks("zori*420*", moveChroma, {2, 2}),
    inBlocks("zori*422*", moveChroma, {2, 1}),
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

constexpr Case reduce[] = {{.name = "zoriReduceBits_*", .imageReference = reduceBits, .arguments = anyReduction}};

constexpr Case bayer[] = {
    {.name = "zoriCFAToRGB_*", .minimum = {2, 2}, .arguments = anyGrid, .demosaic = alongGradients}};

constexpr Case demosaicahd[] = {
    {.name = "zoriDemosaicAHD_*", .minimum = {5, 5}, .arguments = anyGrid, .demosaic = adaptive}};

constexpr Family table[] = {
    {"yuv", "RGB and YUV", yuv},
    {"bt601", "RGB and YCbCr (ITU-R BT.601)", bt601},
    {"bt709", "BGR and YCbCr (ITU-R BT.709)", bt709},
    {"chromasampling", "Chroma sampling and plane orders", chromasampling},
    {"videolayouts", "Video layouts and deinterlacing", videolayouts},
    {"hlspl", "HLS and HSV", hlspl},
    {"hls", "HLS and HSV", hls},
    {"hsv", "HLS and HSV", hsv},
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

std::span<const Case> casesOf(std::string_view family)
{
    static const auto all = [] {
        std::map<std::string_view, std::vector<Case>> cases;
        for (const Function& function : interface::functions())
            if (const Rule rule = ruleOf(function); rule.expected) {
                cases[rule.family->name].push_back(*rule.expected);
                cases[rule.family->name].back().name = function.name;
            }
        return cases;
    }();
    return all.at(family);
}

const Function& functionOf(const Case& c) { return *interface::findFunction(c.name); }

} // namespace zorcc::test
