// SPDX-License-Identifier: MIT
#include "tests/harness/test_image.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>

namespace zorcc::test {

using namespace interface;

namespace {

constexpr int wideGap = 67;          // samples
constexpr int wideGapPerPlane = 5;   // samples more in every further plane
constexpr int hugeStep = 0x60000000; // bytes; three rows are further from each other than an int can say
constexpr std::size_t patternBytes = 1 << 16;

// Random bytes twice over, so that any start in the first half is followed by half the bytes.
const std::uint8_t* pattern()
{
    static const auto bytes = [] {
        std::array<std::uint8_t, 2 * patternBytes> table;
        std::mt19937 random(1);
        for (std::size_t i = 0; i < patternBytes; ++i)
            table[i] = table[patternBytes + i] = static_cast<std::uint8_t>(random() >> 24);
        return table;
    }();
    return bytes.data();
}

StepArguments stepArguments(bool any, bool perPlane)
{
    return !any ? StepArguments::none : perPlane ? StepArguments::perPlane : StepArguments::one;
}

int valueAt(const std::uint8_t* at, int bytes)
{
    std::int32_t value = 0;
    std::memcpy(&value, at, static_cast<std::size_t>(bytes)); // little endian
    return value;
}

} // namespace

StepArguments sourceSteps(const Signature& s) { return stepArguments(s.steps, s.sourceSteps); }
StepArguments destinationSteps(const Signature& s) { return stepArguments(s.steps, s.destinationSteps); }

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

std::string describe(const Difference& d)
{
    std::ostringstream text;
    text << "plane " << d.plane;
    if (d.inRow)
        text << ", sample (" << d.x << ", " << d.y << ")";
    else
        text << ", outside the image, " << d.x << " bytes from the start of row " << d.y;
    text << ": expected " << d.expected << ", actual " << d.actual;
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
        if (isolated) step = arrangement.steps == Steps::huge ? hugeStep : 2 * static_cast<int>(RowPages::pageBytes());
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
    std::size_t start = seed;
    for (int p = 0; p < form->planes; ++p)
        for (const auto piece : actual[p].pieces())
            for (std::size_t done = 0; done < piece.size();) {
                const std::size_t bytes = std::min(piece.size() - done, patternBytes);
                std::memcpy(piece.data() + done, pattern() + start % patternBytes, bytes);
                start += bytes + 40503; // odd
                done += bytes;
            }
}

void TestImage::copyToShadow()
{
    for (int p = 0; p < form->planes; ++p)
        for (std::size_t i = 0; i < actual[p].pieces().size(); ++i) {
            const auto from = actual[p].pieces()[i];
            std::memcpy(expected[p].pieces()[i].data(), from.data(), from.size());
        }
}

std::optional<Difference> TestImage::difference() const
{
    for (int p = 0; p < form->planes; ++p)
        for (std::size_t i = 0; i < actual[p].pieces().size(); ++i) {
            const auto a = actual[p].pieces()[i], e = expected[p].pieces()[i];
            if (std::memcmp(a.data(), e.data(), a.size()) == 0) continue;
            const auto at = std::mismatch(a.begin(), a.end(), e.begin()).first;
            return locate(p, i, static_cast<std::size_t>(at - a.begin()));
        }
    return std::nullopt;
}

// The byte at `address`, named by the nearest row of plane p.
TestImage::Place TestImage::placeOf(int p, const std::uint8_t* address) const
{
    Place best{std::numeric_limits<std::ptrdiff_t>::max(), p, 0, 0};
    for (int y = 0; y < std::max(rows[p], 1); ++y) {
        const std::ptrdiff_t x =
            address - static_cast<const std::uint8_t*>(actualImage.plane[p]) - std::ptrdiff_t{actualImage.step[p]} * y;
        const std::ptrdiff_t bytes = static_cast<std::ptrdiff_t>(rowBytes[p]);
        const std::ptrdiff_t distance = x < 0 ? -x : x >= bytes ? x - bytes + 1 : 0;
        if (distance < best.distance) best = {distance, p, y, x};
    }
    return best;
}

Difference TestImage::locate(int p, std::size_t piece, std::size_t offset) const
{
    const std::uint8_t* const a = actual[p].pieces()[piece].data() + offset;
    const std::uint8_t* const e = expected[p].pieces()[piece].data() + offset;
    const Place place = placeOf(p, a);
    const int bytes = sampleBytes(form->sample);
    if (place.distance > 0) return {p, place.y, place.x, false, *e, *a};
    return {
        p, place.y, place.x / bytes, true, valueAt(e - place.x % bytes, bytes), valueAt(a - place.x % bytes, bytes)};
}

std::pair<std::ptrdiff_t, std::string> TestImage::nearest(const void* address) const
{
    Place best{std::numeric_limits<std::ptrdiff_t>::max(), 0, 0, 0};
    for (int p = 0; p < planes(); ++p) {
        const Place place = placeOf(p, static_cast<const std::uint8_t*>(address));
        if (place.distance < best.distance) best = place;
    }
    std::ostringstream text;
    text << "byte " << best.x << " of row " << best.y << ", plane " << best.plane;
    return {best.distance, text.str()};
}

} // namespace zorcc::test
