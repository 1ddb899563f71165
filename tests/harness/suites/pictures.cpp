// SPDX-License-Identifier: MIT
// Every function against its reference on real pictures.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "tests/harness/cases.h"
#include "tests/harness/checker.h"
#include "tests/harness/picture.h"

namespace zorcc::test {
namespace {

using reference::Case;

const std::string folder = ZORCC_PICTURES;

class Pictures : public testing::TestWithParam<Case> {
protected:
    void SetUp() override
    {
        if (!std::filesystem::is_directory(folder)) GTEST_SKIP() << "no pictures in " << folder;
    }
};

TEST_P(Pictures, Png)
{
    Checker checker(GetParam(), functionOf(GetParam()));
    // Even, odd width, odd width and height, with alpha, large.
    for (const char* name :
         {"parrots_768x512", "chelsea_451x300", "coffee_599x399", "tulips_alpha_500x500", "canyon_1920x1080"}) {
        static std::map<std::string, Picture> decoded;
        auto [entry, isNew] = decoded.try_emplace(name);
        if (isNew) entry->second = readPng(folder + "/" + name + ".png");
        const Picture& picture = entry->second;
        EXPECT_TRUE(checker.check({picture.size}, [&](TestImage& image) { fill(image, picture); })) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Functions, Pictures, testing::ValuesIn(familyCases().begin(), familyCases().end()),
                         caseName<testing::TestParamInfo<Case>>);

} // namespace
} // namespace zorcc::test
