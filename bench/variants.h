// SPDX-License-Identifier: MIT
// Functions whose speed depends on an argument are measured with several.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "interface/functions.h"

namespace zorcc::bench {

struct Variant {
    std::string_view name; // empty where there is but one
    interface::Extra arguments;
};

inline std::span<const Variant> variantsOf(const interface::Function& function)
{
    static constexpr Variant usual[] = {{"", {}}};
    static constexpr Variant reductions[] = {
        {"none", {.levels = 4, .method = zorDitherMethodNone}},
        {"ordered", {.levels = 4, .method = zorDitherMethodOrdered}},
        {"fs", {.levels = 4, .method = zorDitherMethodFloydSteinberg}},
        {"jjn", {.levels = 4, .method = zorDitherMethodJarvisJudiceNinke}},
        {"stucki", {.levels = 4, .method = zorDitherMethodStucki}},
    };
    // No matrix that is a special case.
    static constexpr float matrix[4][4] = {{0.39f, 0.77f, -0.19f, 0.01f},
                                           {0.35f, -0.69f, 0.17f, 0.02f},
                                           {-0.27f, 0.53f, 0.13f, 0.03f},
                                           {0.1f, 0.2f, 0.3f, 1}};
    static constexpr Variant twisted[] = {{"", {.twist = matrix}}};
    if (function.takesTwist) return twisted;
    return function.family == "Bit-depth reduction" ? std::span<const Variant>(reductions) : usual;
}

// What is measured, as the tables name it: "zoriReduceBits_8u_C1R fs".
inline std::string nameOf(const interface::Function& function, const Variant& variant)
{
    const std::string name(function.name);
    return variant.name.empty() ? name : name + " " + std::string(variant.name);
}

} // namespace zorcc::bench
