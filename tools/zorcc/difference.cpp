// SPDX-License-Identifier: MIT
#include "difference.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace zorcc::tool {

namespace {

// Windows of 8 x 8 samples at every fourth column and row, as video encoders measure it; smaller channels are one
// window.
constexpr int window = 8, distance = 4;

template <class T> double at(const Channel& channel, int x, int y)
{
    T value;
    std::memcpy(&value, channel.first + channel.step * y + channel.stride * x, sizeof value);
    return value;
}

// Structural similarity (Wang et al. 2004) of one window, by its means, variances and covariance.
template <class T> double similarityOf(const Channel& a, const Channel& b, int left, int top, double peak)
{
    const int right = std::min(left + window, a.width), bottom = std::min(top + window, a.height);
    const double count = static_cast<double>(right - left) * (bottom - top);
    double sumA = 0, sumB = 0, squaresA = 0, squaresB = 0, products = 0;
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x) {
            const double p = at<T>(a, x, y), q = at<T>(b, x, y);
            sumA += p;
            sumB += q;
            squaresA += p * p;
            squaresB += q * q;
            products += p * q;
        }
    const double meanA = sumA / count, meanB = sumB / count;
    const double variances = squaresA / count - meanA * meanA + squaresB / count - meanB * meanB;
    const double covariance = products / count - meanA * meanB;
    const double c1 = std::pow(0.01 * peak, 2), c2 = std::pow(0.03 * peak, 2);
    return (2 * meanA * meanB + c1) * (2 * covariance + c2) / ((meanA * meanA + meanB * meanB + c1) * (variances + c2));
}

} // namespace

void Difference::add(const Channel& a, const Channel& b, Sample sample)
{
    const auto addAs = [&]<class T>(T) {
        for (int y = 0; y < a.height; ++y)
            for (int x = 0; x < a.width; ++x) {
                const double difference = at<T>(a, x, y) - at<T>(b, x, y);
                squares += difference * difference;
                most = std::max(most, std::abs(difference));
            }
        for (int y = 0; y == 0 || y + window <= a.height; y += distance)
            for (int x = 0; x == 0 || x + window <= a.width; x += distance) {
                similarity += similarityOf<T>(a, b, x, y, peak);
                ++windows;
            }
    };
    samples += static_cast<double>(a.width) * a.height;
    if (a.width == 0 || a.height == 0) return; // chroma of a very small picture
    if (sample == Sample::u8)
        peak = 255, addAs(std::uint8_t{});
    else
        addAs(float{});
}

void Difference::add(const Difference& other)
{
    peak = other.peak;
    squares += other.squares;
    samples += other.samples;
    most = std::max(most, other.most);
    similarity += other.similarity;
    windows += other.windows;
}

double Difference::psnr() const
{
    return squares == 0 ? std::numeric_limits<double>::infinity() : 10 * std::log10(peak * peak * samples / squares);
}

double Difference::ssim() const { return windows > 0 ? similarity / windows : 1; }

} // namespace zorcc::tool
