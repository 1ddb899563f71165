// SPDX-License-Identifier: MIT
// What cannot be converted is said, and nothing is written.
#include <gtest/gtest.h>

#include "interface/functions.h"
#include "tests/convert/picture.h"

namespace zorcc::test {

namespace {

ZorPlanOptions defaults(size_t bytes)
{
    ZorPlanOptions options{};
    options.structBytes = bytes;
    return options;
}

struct Given {
    ZorPicture from, to;
    ZorPlanOptions options = defaults(sizeof(ZorPlanOptions));
};

class PlanErrors : public testing::Test {
protected:
    static constexpr ZorSize size{16, 8};

    void expect(const Given& given, ZorStatus status, const std::string& part)
    {
        ZorPlan* const plan = zorPlanCreate(&given.from, &given.to, &given.options);
        EXPECT_EQ(zorPlanStatus(plan), status) << zorPlanDescribe(plan);
        EXPECT_NE(std::string(zorPlanDescribe(plan)).find(part), std::string::npos) << zorPlanDescribe(plan);
        if (status != zorStatusOk) {
            EXPECT_EQ(zorPlanStepFunction(plan, 0), nullptr);
            EXPECT_EQ(zorPlanRun(plan, nullptr, nullptr, nullptr, nullptr), status);
        }
        zorPlanFree(plan);
    }

    static ZorPicture picture(const char* format, const char* matrix = nullptr, ZorRange range = zorRangeDefault)
    {
        return {format, matrix, range, size};
    }
};

} // namespace

TEST_F(PlanErrors, NamesAndColours)
{
    expect({picture("nv13"), picture("rgb24")}, zorStatusUnknownFormat, "nearest is nv1");
    expect({picture("rgb24"), picture("yuv420q")}, zorStatusUnknownFormat, "nearest is yuv420p");
    expect({picture("nv12_bt602"), picture("rgb24")}, zorStatusUnknownFormat, "nv12");
    expect({picture(""), picture("rgb24")}, zorStatusUnknownFormat, "unknown format");
    expect({picture(nullptr), picture("rgb24")}, zorStatusNullPointer, "no picture");
    expect({picture("nv12", "bt610"), picture("rgb24")}, zorStatusBadArgument, "nearest is bt601");
    expect({picture("nv12_bt709", "bt601"), picture("rgb24")}, zorStatusBadArgument, "bt709 and not bt601");
    expect({picture("yuvj420p", nullptr, zorRangeLimited), picture("nv12")}, zorStatusBadArgument, "full range");
    expect({picture("yuv420p", "yuv", zorRangeLimited), picture("rgb24")}, zorStatusBadArgument, "full range");
    expect({picture("rgb24", "bt709"), picture("nv12")}, zorStatusBadArgument, "no matrix bt709");
    expect({picture("rgb24", nullptr, zorRangeLimited), picture("nv12")}, zorStatusBadArgument, "full range");
    expect({picture("rgb24", nullptr, ZorRange(3)), picture("nv12")}, zorStatusBadArgument, "range");
    expect({picture("rgb24"), picture("nv12", "bt2020")}, zorStatusNoConversion, "no conversion leads to bt2020");
    expect({picture("nv12", "bt2020nc"), picture("rgb24")}, zorStatusNoConversion, "comes from bt2020");
    expect({picture("yuvj420p"), picture("rgb24")}, zorStatusNoConversion, "bt601 of limited range");
    expect({picture("rgb24"), picture("yuv444p", "bt709")}, zorStatusNoConversion, "nearest that there is: ");
    expect({picture("nv12", "bt2020"), picture("nv12", "bt709")}, zorStatusNoConversion, "comes from bt2020");
    expect({picture("bayer8"), picture("rgb24")}, zorStatusNoConversion, "no conversion leads from bayer8");
}

// The same colours on both sides need no conversion of them, so that any matrix will do.
TEST_F(PlanErrors, SamplesOfAnyMatrixMove)
{
    expect({picture("nv12", "bt2020"), picture("YV12", "bt2020")}, zorStatusOk, "bt2020, limited range");
    expect({picture("yuvj420p"), picture("nv12", "bt601", zorRangeFull)}, zorStatusOk, "bt601, full range");
    expect({picture("yuv420p_bt709"), picture("nv12", "BT709")}, zorStatusOk, "zoriYCbCr420_8u_P3P2R");
    expect({picture("rgb565le"), picture("bgr565")}, zorStatusOk, "samples are copied: bgr565");
    // Only 4:2:0 leads to BT.709 of limited range.
    expect({picture("yuyv", "bt601"), picture("yuyv", "bt709")}, zorStatusOk, "there is no other way");
}

TEST_F(PlanErrors, SizesAndOptions)
{
    Given given{picture("nv12"), picture("rgb24")};
    given.to.size.height = 9;
    expect(given, zorStatusBadSize, "16x8 and 16x9");
    given.from.size = given.to.size = {0, 8};
    expect(given, zorStatusBadSize, "a side below 1");
    given.from.size = given.to.size = {1 << 30, 8};
    expect(given, zorStatusBadSize, "2 GiB");

    given = {picture("nv12"), picture("rgb24")};
    given.options = defaults(4);
    expect(given, zorStatusBadArgument, "without their size");
    given.options = defaults(sizeof(ZorPlanOptions));
    given.options.threads = -1;
    expect(given, zorStatusBadArgument, "negative");
    given.options.threads = 0;
    given.options.alpha = ZorAlpha(3);
    expect(given, zorStatusBadArgument, "value that there is not");
    given.options.structBytes = sizeof(size_t); // the negative number lies beyond what the caller knows
    expect(given, zorStatusOk, "zoriYCbCr420ToRGB_8u_P3C3R");

    given = {picture("rgba"), picture("nv12")};
    expect(given, zorStatusOk, "alpha is dropped");
    given.options.alpha = zorAlphaRefuse;
    expect(given, zorStatusRefused, "no alpha");
    given = {picture("rgb24"), picture("gray")};
    expect(given, zorStatusOk, "colours become grey");
    given.options.grey = zorGreyRefuse;
    expect(given, zorStatusRefused, "no colours");
    given = {picture("rgb24"), picture("rgb555")};
    given.options.fields = zorFieldsDither;
    expect(given, zorStatusNoConversion, "no conversion leads from rgb24");
    given = {picture("grayf32"), picture("gray")};
    given.options.depth = zorDepthStucki;
    expect(given, zorStatusOk, "in one piece");
}

TEST_F(PlanErrors, LossesAreLinesOfTheDescription)
{
    for (const auto& [from, to, losses] :
         {std::tuple{"rgba64", "rgb24", "16 bits become 8 to the nearest value\nalpha is dropped\n"},
          std::tuple{"rgb24", "nv12", ""}, std::tuple{"ycocg444p16s", "rgb24", ""},
          std::tuple{"bgra", "gray", "colours become grey, by the weights of luma\nalpha is dropped\n"}}) {
        const ZorPicture pictures[] = {picture(from), picture(to)};
        ZorPlan* const plan = zorPlanCreate(&pictures[0], &pictures[1], nullptr);
        EXPECT_STREQ(zorPlanLosses(plan), losses) << from;
        EXPECT_NE(std::string(zorPlanDescribe(plan)).find(losses), std::string::npos);
        zorPlanFree(plan);
    }
}

TEST_F(PlanErrors, Colours)
{
    for (const auto& [given, matrix, range, isSaid] :
         {std::tuple{picture("nv12"), "bt601", zorRangeLimited, 0},
          {picture("rgb24"), "", zorRangeFull, 0},
          {picture("YUVJ420P"), "bt601", zorRangeFull, 1},
          {picture("nv12_bt709full"), "bt709", zorRangeFull, 1},
          {picture("nv12", "YUV"), "yuv", zorRangeFull, 1},
          {picture("nv12", nullptr, zorRangeFull), "bt601", zorRangeFull, 0}}) {
        ZorColour colour;
        EXPECT_EQ(zorPictureColour(&given, &colour), zorStatusOk);
        EXPECT_STREQ(colour.matrix, matrix);
        EXPECT_EQ(colour.range, range);
        EXPECT_EQ(colour.isSaid, isSaid);
    }
    const ZorPicture wrong = picture("nv12", "bt610");
    ZorColour colour;
    EXPECT_EQ(zorPictureColour(&wrong, &colour), zorStatusBadArgument);
    EXPECT_EQ(zorPictureColour(&wrong, nullptr), zorStatusNullPointer);
}

// The matrix that a picture of this height is taken for where neither it nor its format names one.
TEST_F(PlanErrors, UsualMatrices)
{
    for (const auto& [height, matrix] : {std::pair{719, "bt601"}, std::pair{720, "bt709"}}) {
        Given given{picture("nv12"), picture("bgr24")};
        given.from.size = given.to.size = {16, height};
        expect(given, zorStatusOk, std::string("(") + matrix + ", limited range)");
    }
}

TEST_F(PlanErrors, NothingIsWritten)
{
    PictureInMemory source("nv12", size), destination("rgb24", size);
    const ZorPicture from = picture("nv12"), to = picture("rgb24");
    ZorPlan* const plan = zorPlanCreate(&from, &to, nullptr);
    const auto expectStatus = [&](ZorStatus status, const PictureInMemory& a, const PictureInMemory& b) {
        EXPECT_EQ(zorPlanRun(plan, a.plane, a.step, b.plane, b.step), status);
        EXPECT_EQ(destination.bytes(), std::vector<std::uint8_t>(destination.bytes().size()));
    };
    const auto with = [&](auto& member, auto value, ZorStatus status) {
        const auto kept = member;
        member = value;
        expectStatus(status, source, destination);
        member = kept;
    };
    with(source.plane[1], nullptr, zorStatusNullPointer);
    with(destination.plane[0], nullptr, zorStatusNullPointer);
    with(source.step[1], 15, zorStatusBadStep);
    with(destination.step[0], -47, zorStatusBadStep);
    EXPECT_EQ(zorPlanRun(nullptr, source.plane, source.step, destination.plane, destination.step),
              zorStatusNullPointer);
    EXPECT_EQ(zorPlanRun(plan, nullptr, source.step, destination.plane, destination.step), zorStatusNullPointer);
    EXPECT_EQ(zorPlanRun(plan, source.plane, source.step, destination.plane, nullptr), zorStatusNullPointer);
    EXPECT_EQ(zorPlanRun(plan, source.plane, source.step, destination.plane, destination.step), zorStatusOk);
    zorPlanFree(plan);
    zorPlanFree(nullptr);
    EXPECT_EQ(zorPlanStatus(nullptr), zorStatusNoMemory);
}

// Words begin on even bytes.
TEST_F(PlanErrors, SamplesAreAligned)
{
    PictureInMemory source("rgb48", size, Rows::padded), destination("rgb24", size);
    const ZorPicture from = picture("rgb48"), to = picture("rgb24");
    ZorPlan* const plan = zorPlanCreate(&from, &to, nullptr);
    const int odd = source.step[0] - 1;
    EXPECT_EQ(zorPlanRun(plan, source.plane, &odd, destination.plane, destination.step), zorStatusBadStep);
    const void* const oddPlane = source.row(0, 0) + 1;
    EXPECT_EQ(zorPlanRun(plan, &oddPlane, source.step, destination.plane, destination.step), zorStatusBadStep);
    zorPlanFree(plan);
}

TEST_F(PlanErrors, EveryFormatOfTheTableHasAName)
{
    for (const interface::Function& function : interface::functions())
        for (const interface::Format* format : {function.source, function.destination}) {
            const ZorLayout layout = layoutOf(std::string(format->name), {8, 8});
            EXPECT_EQ(layout.channels, format->channels) << format->name;
            for (int p = 0; p < format->planes; ++p)
                EXPECT_EQ(layout.rowBytes[p], interface::rowBytes(*format, p, 8)) << format->name;
        }
}

// Every name of the outside world, with what it must be like.
TEST_F(PlanErrors, LayoutsOfTheOutsideWorld)
{
    const struct {
        const char *name, *channels;
        int planes, rowBytes[3], rows[3];
    } layouts[] = {
        {"yuv420p", "YUV", 3, {5, 3, 3}, {5, 3, 3}},
        {"I420", "YUV", 3, {5, 3, 3}, {5, 3, 3}},
        {"iyuv", "YUV", 3, {5, 3, 3}, {5, 3, 3}},
        {"YV12", "YVU", 3, {5, 3, 3}, {5, 3, 3}},
        {"NV12", "YUV", 2, {5, 6}, {5, 3}},
        {"nv21", "YVU", 2, {5, 6}, {5, 3}},
        {"nv16", "YUV", 2, {5, 6}, {5, 5}},
        {"yuyv422", "YUYV", 1, {12}, {5}},
        {"YUY2", "YUYV", 1, {12}, {5}},
        {"UYVY", "UYVY", 1, {12}, {5}},
        {"yvyu422", "YVYU", 1, {12}, {5}},
        {"yuv411p", "YUV", 3, {5, 2, 2}, {5, 5, 5}},
        {"yuv410p", "YUV", 3, {5, 2, 2}, {5, 2, 2}},
        {"yuvj444p", "YUV", 3, {5, 5, 5}, {5, 5, 5}},
        {"gray", "L", 1, {5}, {5}},
        {"gray16le", "L", 1, {10}, {5}},
        {"rgb48le", "RGB", 1, {30}, {5}},
        {"rgb565le", "BGR", 1, {10}, {5}},
        {"bgr555le", "RGB", 1, {10}, {5}},
        {"gbrp", "GBR", 3, {5, 5, 5}, {5, 5, 5}},
        {"argb", "ARGB", 1, {20}, {5}},
        {"yuva420p", "YUVA", 4, {5, 3, 3}, {5, 3, 3}},
        {"grayf32le", "L", 1, {20}, {5}},
    };
    for (const auto& expected : layouts) {
        const ZorLayout layout = layoutOf(expected.name, {5, 5});
        EXPECT_STREQ(layout.channels, expected.channels) << expected.name;
        EXPECT_EQ(layout.planes, expected.planes) << expected.name;
        for (int p = 0; p < std::min(layout.planes, 3); ++p) {
            EXPECT_EQ(layout.rowBytes[p], expected.rowBytes[p]) << expected.name;
            EXPECT_EQ(layout.rows[p], expected.rows[p]) << expected.name;
        }
    }
    const ZorPicture unknown = picture("rgb25");
    ZorLayout layout;
    EXPECT_EQ(zorPictureLayout(&unknown, &layout), zorStatusUnknownFormat);
    EXPECT_EQ(zorPictureLayout(nullptr, &layout), zorStatusNullPointer);
    EXPECT_EQ(zorFormatAt(-1), nullptr);
}

} // namespace zorcc::test
