// SPDX-License-Identifier: MIT
// Every function against its reference on real pictures.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "tests/harness/family_test.h"
#include "tests/harness/picture.h"

namespace zorcc::test {
namespace {

class Pictures : public FamilyTest {};

TEST_P(Pictures, Png)
{
    const std::filesystem::path folder = ZORCC_PICTURES;
    if (!is_directory(folder)) GTEST_SKIP() << "no pictures in " << folder;
    // Even, odd width, odd width and height, with alpha, large.
    for (const char* name : {"parrots_768x512.png", "chelsea_451x300.png", "coffee_599x399.png",
                             "tulips_alpha_500x500.png", "canyon_1920x1080.png"}) {
        static std::map<std::string, Picture> decoded;
        const auto [entry, isNew] = decoded.try_emplace(name);
        Picture& picture = entry->second;
        if (isNew) picture = readPng(folder / name);
        EXPECT_TRUE(checker.check({picture.size}, [&](TestImage& image) { fill(image, picture); })) << name;
    }
}

ZORCC_FOR_EVERY_FUNCTION(Pictures);

} // namespace
} // namespace zorcc::test
