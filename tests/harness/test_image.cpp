// SPDX-License-Identifier: MIT
#include "tests/harness/test_image.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>
#include <vector>

#include "tests/reference/pixels.h"

namespace zorcc::test {

using namespace interface;

namespace {

constexpr int wideGap = 67;        // samples
constexpr int wideGapPerPlane = 5; // samples more in every further plane
constexpr std::size_t patternBytes = 1 << 16;
constexpr int hugeStep = 0x60000000; // bytes; three rows are further from each other than an int can say

const std::vector<std::uint8_t>& pattern()
{
    static const auto bytes = [] {
        std::mt19937 random(1);
        std::vector<std::uint8_t> table(patternBytes);
        for (std::uint8_t& byte : table) byte = static_cast<std::uint8_t>(random() >> 24);
        return table;
    }();
    return bytes;
}

StepArguments stepArguments(bool any, bool perPlane)
{
    return !any ? StepArguments::none : perPlane ? StepArguments::perPlane : StepArguments::one;
}

} // namespace

StepArguments sourceSteps(const Signature& s) { return stepArguments(s.steps, s.sourceSteps); }
StepArguments destinationSteps(const Signature& s) { return stepArguments(s.steps, s.destinationSteps); }

bool hasImagesOfOneShape(const Function& function)
{
    const Format &from = *function.source, &to = *function.destination;
    return from.sample == to.sample && from.layout == to.layout && std::ranges::equal(from.plane, to.plane);
}

std::string describe(const Arrangement& a)
{
    constexpr const char* names[] = {"tight", "sample", "wide", "isolated", "huge"};
    std::ostringstream text;
    text << names[static_cast<int>(a.steps)] << (a.upwards ? " steps upwards" : " steps")
         << (a.edge == Edge::start ? ", start at the edge" : ", end at the edge");
    if (a.moved > 0) {
        text << " but for " << a.moved << " bytes";
        if (a.movedPlane >= 0) text << " in plane " << a.movedPlane;
    }
    return text.str();
}

void TestImage::arrange(const Format& imageFormat, ZorSize imageSize, ZorSize used, const Arrangement& arrangement,
                        StepArguments stepArguments)
{
    form = &imageFormat;
    wholeSize = imageSize;
    usedPart = used;
    const int bytes = sampleBytes(form->sample);
    const bool free = stepArguments != StepArguments::none; // to choose steps
    const bool isolated = free && (arrangement.steps == Steps::isolated || arrangement.steps == Steps::huge);
    for (int p = 0; p < form->planes; ++p) {
        rows[p] = interface::rows(*form, p, used.height);
        rowBytes[p] = interface::rowBytes(*form, p, used.width);
        int step = static_cast<int>(interface::rowBytes(*form, p, imageSize.width));
        if (free && arrangement.steps == Steps::sample) step += bytes;
        if (free && arrangement.steps == Steps::wide)
            step += bytes * (wideGap + (stepArguments == StepArguments::perPlane ? p * wideGapPerPlane : 0));
        if (isolated)
            step = arrangement.steps == Steps::huge ? hugeStep : static_cast<int>(PlaneMemory::isolatedStep());
        if (free && arrangement.upwards) step = -step;
        const bool moves = arrangement.movedPlane < 0 || arrangement.movedPlane == p;
        const RowArrangement plane{rows[p],
                                   rowBytes[p],
                                   step,
                                   arrangement.edge,
                                   moves ? static_cast<std::size_t>(arrangement.moved / bytes * bytes) : 0,
                                   isolated};
        actual[p].arrange(plane);
        expected[p].arrange(plane);
        actualImage.plane[p] = actual[p].firstRow();
        shadowImage.plane[p] = expected[p].firstRow();
        actualImage.step[p] = shadowImage.step[p] = step;
    }
}

void TestImage::fillPattern(std::uint32_t seed)
{
    const std::vector<std::uint8_t>& bytes = pattern();
    std::size_t i = std::size_t{40503} * seed;
    for (int p = 0; p < form->planes; ++p)
        for (const auto piece : actual[p].pieces())
            for (std::uint8_t& byte : piece) byte = bytes[i++ % patternBytes];
}

void TestImage::copyToShadow()
{
    for (int p = 0; p < form->planes; ++p)
        for (std::size_t i = 0; i < actual[p].pieces().size(); ++i) {
            const auto from = actual[p].pieces()[i];
            std::memcpy(expected[p].pieces()[i].data(), from.data(), from.size());
        }
}

void TestImage::acceptRows()
{
    eachRow([&](std::uint8_t* row, int, int p, int y) { std::memcpy(rowOf(shadowImage, p, y), row, rowBytes[p]); });
}

std::optional<std::string> TestImage::difference() const
{
    for (int p = 0; p < form->planes; ++p)
        for (std::size_t i = 0; i < actual[p].pieces().size(); ++i) {
            const auto a = actual[p].pieces()[i], e = expected[p].pieces()[i];
            if (std::memcmp(a.data(), e.data(), a.size()) == 0) continue;
            const auto at = std::mismatch(a.begin(), a.end(), e.begin()).first - a.begin();
            const Place place = placeOf(&a[at]);
            const bool inRow = place.distance == 0;
            const int bytes = inRow ? sampleBytes(form->sample) : 1;
            // The whole sample of a row, the byte beside it.
            const auto valueIn = [&](std::span<const std::uint8_t> piece) {
                return reference::withType(inRow ? form->sample : Sample::u8, [&](auto sample) {
                    std::memcpy(&sample, &piece[at - place.x % bytes], sizeof sample);
                    return static_cast<double>(sample);
                });
            };
            std::ostringstream text;
            text.precision(9); // floats that differ are not written alike
            text << "plane " << p;
            if (inRow)
                text << ", sample (" << place.x / bytes << ", " << place.y << ")";
            else
                text << ", outside the image, " << place.x << " bytes from the start of row " << place.y;
            text << ": expected " << valueIn(e) << ", actual " << valueIn(a);
            return text.str();
        }
    return std::nullopt;
}

TestImage::Place TestImage::placeOf(const std::uint8_t* address) const
{
    Place nearest{std::numeric_limits<std::ptrdiff_t>::max(), 0, 0, 0};
    for (int p = 0; p < planes(); ++p)
        for (int y = 0; y < std::max(rows[p], 1); ++y) {
            const std::ptrdiff_t x = address - rowOf(actualImage, p, y);
            const std::ptrdiff_t bytes = static_cast<std::ptrdiff_t>(rowBytes[p]);
            const std::ptrdiff_t distance = x < 0 ? -x : x >= bytes ? x - bytes + 1 : 0;
            if (distance < nearest.distance) nearest = {distance, p, y, x};
        }
    return nearest;
}

} // namespace zorcc::test
