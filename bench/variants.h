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
    return function.family == "Bit-depth reduction" ? std::span<const Variant>(reductions) : usual;
}

// What is measured, as the tables name it: "zoriReduceBits_8u_C1R fs".
inline std::string nameOf(const interface::Function& function, const Variant& variant)
{
    const std::string name(function.name);
    return variant.name.empty() ? name : name + " " + std::string(variant.name);
}

} // namespace zorcc::bench
