// SPDX-License-Identifier: MIT
#include "tests/reference/gamma.h"

#include <cmath>
#include <vector>

namespace zorcc::reference {

using interface::Sample;

namespace {

// A curve on 0..1, with a line up to the knee.
struct Curve {
    double knee, slope;
    double (*aboveKnee)(double x);
};

constexpr Curve forward = {0.018, 4.5, [](double x) { return 1.099 * std::pow(x, 0.45) - 0.099; }};
constexpr Curve inverse = {0.0812, 0.2222222222222222,
                           [](double x) { return std::pow((x + 0.099) * 0.9099181073703366, 2.2222222222222223); }};

double at(const Curve& curve, double x) { return x < curve.knee ? curve.slope * x : curve.aboveKnee(x); }

// To nearest, ties to even, by the steps of the definition for words.
double wordOf(const Curve& curve, double v)
{
    const double x = v * 1.5259021896696422e-5;
    const float raised = static_cast<float>(x < curve.knee ? curve.slope * v + 0.5 : curve.aboveKnee(x) * 65535 + 0.5);
    const float whole = std::trunc(raised);
    return raised == whole && std::fmod(whole, 2.0f) == 1 ? whole - 1 : whole;
}

std::vector<double> wordsOf(const Curve& curve)
{
    std::vector<double> words;
    for (int v = 0; v < 65536; ++v) words.push_back(wordOf(curve, v));
    return words;
}

float ofFloat(const Curve& curve, float v, float vMin, float vMax)
{
    const float range = vMax - vMin;
    const double above = double{v} - double{vMin}, x = above * (1 / double{range});
    return static_cast<float>(x < curve.knee ? above * curve.slope + vMin : curve.aboveKnee(x) * range + vMin);
}

void correct(const Curve& curve, const std::vector<double>& words, const Pixels& from, Pixels& to,
             const interface::Extra& extra)
{
    for (int c = 0; c < 3; ++c)
        eachPixel(from.size(), [&](int x, int y) {
            const double v = from.get<double>(c, x, y);
            to.put(c, x, y,
                   from.sample() == Sample::u8    ? std::nearbyint(at(curve, v / 255) * 255)
                   : from.sample() == Sample::u16 ? words[static_cast<std::size_t>(v)]
                                                  : ofFloat(curve, from.get<float>(c, x, y), extra.vMin, extra.vMax));
        });
}

} // namespace

void gammaForward(const interface::Function&, const Pixels& from, Pixels& to, const interface::Extra& extra)
{
    static const std::vector<double> words = wordsOf(forward);
    correct(forward, words, from, to, extra);
}

void gammaInverse(const interface::Function&, const Pixels& from, Pixels& to, const interface::Extra& extra)
{
    static const std::vector<double> words = wordsOf(inverse);
    correct(inverse, words, from, to, extra);
}

} // namespace zorcc::reference
