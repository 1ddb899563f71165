// SPDX-License-Identifier: MIT
// The table's colour models, which no conversion's result shows. Layouts, samples and alpha are those of the
// differential tests, parameters those of the header.
#include <fnmatch.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "interface/functions.h"

namespace zorcc::test {
namespace {

using namespace interface;

// The first pattern that fits a name.
constexpr struct {
    const char* pattern;
    Model source, destination;
} models[] = {
    {"zoriReduceBits_*_C1R", Model::grey, Model::grey},
    {"zoriReduceBits_*", Model::rgb, Model::rgb},
    {"zoriCFAToRGB_*", Model::mosaic, Model::rgb},
    {"zoriDemosaicAHD_*", Model::mosaic, Model::rgb},
    {"zori*ToHLS_*", Model::rgb, Model::hls},
    {"zoriHLSTo*", Model::hls, Model::rgb},
    {"zori*ToHSV_*", Model::rgb, Model::hsv},
    {"zoriHSVTo*", Model::hsv, Model::rgb},
    {"zori*ToYUV*", Model::rgb, Model::yuv},
    {"zoriYUV*To*", Model::yuv, Model::rgb},
    {"zoriBGRTo*_709CSC_*", Model::rgb, Model::bt709},
    {"zori*ToBGR_709CSC_*", Model::bt709, Model::rgb},
    {"zoriBGRTo*_709HDTV_*", Model::rgb, Model::bt709full},
    {"zori*ToBGR_709HDTV_*", Model::bt709full, Model::rgb},
    {"zoriRGBTo*", Model::rgb, Model::bt601},
    {"zori*ToRGB_*", Model::bt601, Model::rgb},
    {"zori*ToBGR_*", Model::bt601, Model::rgb},
    {"zoriY*", Model::anyYcc, Model::anyYcc},
    {"zoriCbYCr*", Model::anyYcc, Model::anyYcc},
};

TEST(Interface, ModelsAreThoseOfTheNames)
{
    ASSERT_FALSE(functions().empty());
    for (const Function& function : functions()) {
        SCOPED_TRACE(function.name);
        const auto model = std::find_if(std::begin(models), std::end(models), [&](const auto& m) {
            return fnmatch(m.pattern, std::string(function.name).c_str(), 0) == 0;
        });
        ASSERT_NE(model, std::end(models));
        EXPECT_EQ(function.source->model, model->source);
        EXPECT_EQ(function.destination->model, model->destination);
        EXPECT_FALSE(function.family.empty());
        EXPECT_EQ(findFunction(function.name), &function);
    }
}

} // namespace
} // namespace zorcc::test
