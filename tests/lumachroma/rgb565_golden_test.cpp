// SPDX-License-Identifier: MIT
// Words worked out from the tables of fields, the published weights and thresholds, outside this program.
#include <gtest/gtest.h>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

// As they lie in memory.
Bytes words(std::initializer_list<int> values)
{
    Bytes bytes;
    for (const int value : values) {
        bytes.push_back(static_cast<std::uint8_t>(value));
        bytes.push_back(static_cast<std::uint8_t>(value >> 8));
    }
    return bytes;
}

Bytes repeated(const Bytes& pixel, int times)
{
    Bytes all;
    for (int i = 0; i < times; ++i) all.insert(all.end(), pixel.begin(), pixel.end());
    return all;
}

// The first byte is the lowest field, whatever its name.
TEST(Rgb565Golden, BytesAndFields)
{
    for (const std::string_view name : {"zoriRGBToRGB565_8u16u_C3R", "zoriBGRToBGR565_8u16u_C3R"})
        expectGolden({name,
                      {4, 1},
                      {{255, 0, 0, 0, 255, 0, 0, 0, 255, 0x57, 0xab, 0xcd}},
                      {words({0x001f, 0x07e0, 0xf800, 0xcd4a})}});
    for (const std::string_view name : {"zoriRGB565ToRGB_16u8u_C3R", "zoriBGR565ToBGR_16u8u_C3R"})
        expectGolden({name,
                      {4, 1},
                      {words({0x001f, 0x07e0, 0xffff, 0xcd4a})},
                      {{248, 0, 0, 0, 252, 0, 248, 252, 248, 0x50, 0xa8, 0xc8}}});
}

const Bytes ycc = {132, 150, 101}; // R, G, B 91, 148, 179

TEST(Rgb565Golden, EveryOrderOfFields)
{
    const struct {
        std::string_view name;
        int word;
    } goldens[] = {{"zoriYCbCrToRGB565_8u16u_C3R", 0xb4ab}, {"zoriYCbCrToBGR565_8u16u_C3R", 0x5cb6},
                   {"zoriYCbCrToRGB555_8u16u_C3R", 0x5a4b}, {"zoriYCbCrToBGR555_8u16u_C3R", 0x2e56},
                   {"zoriYCbCrToRGB444_8u16u_C3R", 0x0b95}, {"zoriYCbCrToBGR444_8u16u_C3R", 0x059b}};
    for (const auto& golden : goldens) expectGolden({golden.name, {1, 1}, {ycc}, {words({golden.word})}});
}

TEST(Rgb565Golden, DitheredSquares)
{
    const Bytes source = repeated(ycc, 16);
    expectGolden({"zoriYCbCrToRGB565Dither_8u16u_C3R",
                  {4, 4},
                  {source},
                  {words({0xb4ac, 0xb4ab, 0xb4ab, 0xb48b, 0xac8b, 0xb4ab, 0xac8b, 0xb4ab, //
                          0xb4ab, 0xb48b, 0xb4ac, 0xb48b, 0xac8b, 0xb4ab, 0xac8b, 0xb4ab})}});
    expectGolden({"zoriYCbCrToRGB555Dither_8u16u_C3R",
                  {4, 4},
                  {source},
                  {words({0x5a4c, 0x5a4b, 0x5a4b, 0x5a4b, 0x564b, 0x5a4b, 0x564b, 0x5a4b, //
                          0x5a4b, 0x5a4b, 0x5a4c, 0x5a4b, 0x564b, 0x5a4b, 0x564b, 0x5a4b})}});
    expectGolden({"zoriYCbCrToRGB444Dither_8u16u_C3R",
                  {4, 4},
                  {source},
                  {words({0x0b96, 0x0a95, 0x0b96, 0x0a95, 0x0a85, 0x0b96, 0x0a85, 0x0b95, //
                          0x0b96, 0x0a85, 0x0b96, 0x0a95, 0x0a85, 0x0b95, 0x0a85, 0x0b96})}});
}

// The threshold of 2097 is reached by no sample in six bits: white is 62 there.
TEST(Rgb565Golden, DitheredWhite)
{
    const Bytes white = words({0xffff, 0xffff, 0xffff, 0xffff});
    Bytes expected = repeated(white, 3);
    const Bytes last = words({0xffdf, 0xffff, 0xffff, 0xffff});
    expected.insert(expected.end(), last.begin(), last.end());
    expectGolden(
        {"zoriYUV420ToRGB565Dither_8u16u_P3C3R", {4, 4}, {Bytes(16, 255), Bytes(4, 128), Bytes(4, 128)}, {expected}});
}

// An odd last column and row have the last of three columns and two rows of chroma.
TEST(Rgb565Golden, OddSizes)
{
    expectGolden({"zoriYCbCr420ToRGB565_8u16u_P3C3R", {1, 1}, {{132}, {150}, {101}}, {words({0xb4ab})}});
    expectGolden({"zoriYCbCr420ToRGB565_8u16u_P3C3R",
                  {5, 3},
                  {Bytes(15, 132), {128, 128, 150, 150, 150, 150}, {128, 128, 101, 101, 101, 101}},
                  {words({0x8430, 0x8430, 0x8430, 0x8430, 0xb4ab, 0x8430, 0x8430, 0x8430, //
                          0x8430, 0xb4ab, 0xb4ab, 0xb4ab, 0xb4ab, 0xb4ab, 0xb4ab})}});
}

TEST(Rgb565Golden, FromFields)
{
    const Bytes fine = words({0x6dec, 0x1332, 0x2c01, 0xde06, 0xd61a, 0x23c4, 0x7b38, 0x2e71}),
                coarse = words({0x52e6, 0x269e, 0x6513, 0x0c5c, 0x128b, 0x1818, 0x5d9d, 0x0ed9});
    const Bytes fineY = {147, 85, 92, 173, 187, 88, 116, 142}, coarseY = {155, 139, 115, 52, 113, 47, 134, 130};
    const ZorSize size{4, 2};
    const GoldenCall goldens[] = {
        {"zoriBGR565ToYCbCr422_16u8u_C3P3R", size, {fine}, {fineY, {130, 74, 117, 144}, {92, 123, 114, 95}}},
        {"zoriBGR555ToYCbCr422_16u8u_C3P3R", size, {coarse}, {coarseY, {124, 182, 160, 167}, {105, 149, 106, 108}}},
        {"zoriBGR565ToYCbCr422_16u8u_C3C2R",
         size,
         {fine},
         {{147, 130, 85, 92, 92, 74, 173, 123, 187, 117, 88, 114, 116, 144, 142, 95}}},
        {"zoriBGR565ToYCbCr411_16u8u_C3P3R", size, {fine}, {fineY, {102, 130}, {108, 105}}},
        {"zoriBGR555ToYCbCr411_16u8u_C3P3R", size, {coarse}, {coarseY, {153, 164}, {127, 107}}},
        {"zoriBGR565ToYCbCr420_16u8u_C3P3R", size, {fine}, {fineY, {123, 109}, {103, 109}}},
        {"zoriBGR565ToYCrCb420_16u8u_C3P3R", size, {fine}, {fineY, {103, 109}, {123, 109}}},
        {"zoriBGR555ToYCbCr420_16u8u_C3P3R", size, {coarse}, {coarseY, {142, 175}, {105, 128}}},
        {"zoriBGR565ToYUV420_16u8u_C3P3R",
         size,
         {fine},
         {{152, 79, 88, 182, 198, 83, 116, 147}, {123, 109}, {94, 102}}},
        {"zoriBGR555ToYUV420_16u8u_C3P3R",
         size,
         {coarse},
         {{161, 142, 114, 42, 113, 36, 137, 133}, {142, 174}, {97, 129}}}};
    expectGolden(goldens);
}

} // namespace
} // namespace zorcc::test
