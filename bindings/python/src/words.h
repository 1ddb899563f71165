// SPDX-License-Identifier: MIT
// Words in place of the numbers of enumerations.
#pragma once

#include <pybind11/pybind11.h>

#include <string>
#include <string_view>

#include "zorconvert.h"

namespace zorcc::python {

struct Word {
    std::string_view word;
    int number;
};

inline constexpr Word ditherMethods[] = {{"none", zorDitherMethodNone},
                                         {"fs", zorDitherMethodFloydSteinberg},
                                         {"jjn", zorDitherMethodJarvisJudiceNinke},
                                         {"stucki", zorDitherMethodStucki},
                                         {"ordered", zorDitherMethodOrdered}};
inline constexpr Word bayerGrids[] = {
    {"bggr", zorBayerBGGR}, {"rggb", zorBayerRGGB}, {"gbrg", zorBayerGBRG}, {"grbg", zorBayerGRBG}};
inline constexpr Word ranges[] = {{"default", zorRangeDefault}, {"limited", zorRangeLimited}, {"full", zorRangeFull}};
inline constexpr Word alphas[] = {{"drop", zorAlphaDrop}, {"refuse", zorAlphaRefuse}, {"opaque", zorAlphaOpaque}};
inline constexpr Word depths[] = {{"nearest", zorDepthNearest},       {"fs", zorDepthFloydSteinberg},
                                  {"jjn", zorDepthJarvisJudiceNinke}, {"stucki", zorDepthStucki},
                                  {"ordered", zorDepthOrdered},       {"truncate", zorDepthTruncate}};
inline constexpr Word greys[] = {{"luma", zorGreyLuma}, {"refuse", zorGreyRefuse}};

// Of a word; of a number, too. ValueError lists the words.
template <std::size_t n> int numberOf(const Word (&words)[n], pybind11::handle given)
{
    if (!pybind11::isinstance<pybind11::str>(given)) return given.cast<int>();
    const std::string text = given.cast<std::string>();
    std::string known;
    for (const Word& word : words) {
        if (word.word == text) return word.number;
        (known += known.empty() ? "" : ", ") += word.word;
    }
    throw pybind11::value_error("one of " + known + ", not " + text);
}

template <std::size_t n> std::string wordOf(const Word (&words)[n], int number)
{
    for (const Word& word : words)
        if (word.number == number) return std::string(word.word);
    return {};
}

} // namespace zorcc::python
