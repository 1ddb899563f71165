// SPDX-License-Identifier: MIT
#include "tests/convert/by_hand.h"

#include <algorithm>
#include <limits>

#include "tests/reference/pixels.h"

namespace zorcc::test {

namespace {

using Pictured = std::unique_ptr<PictureInMemory>;

// Whatever the type of a sample.
template <class Body> auto withType(ZorSample sample, Body body)
{
    static_assert(zorSample8u == int(interface::Sample::u8) && zorSample32f == int(interface::Sample::f32));
    return reference::withType(static_cast<interface::Sample>(sample), body);
}

double get(ZorSample sample, const std::uint8_t* from)
{
    return withType(sample, [&](auto value) {
        std::memcpy(&value, from, sizeof value);
        return static_cast<double>(value);
    });
}

void put(ZorSample sample, std::uint8_t* to, double value)
{
    withType(sample, [&](auto stored) {
        stored = static_cast<decltype(stored)>(value);
        std::memcpy(to, &stored, sizeof stored);
    });
}

// Black and white of a sample type.
struct Ends {
    double low, high;
};
Ends endsOf(ZorSample sample)
{
    return withType(sample, [](auto value) {
        using Limits = std::numeric_limits<decltype(value)>;
        if (!Limits::is_integer) return Ends{0, 1};
        return Ends{sizeof value == 4 ? 0. : double{Limits::min()}, double{Limits::max()}};
    });
}

void moveSample(ZorSample from, const std::uint8_t* source, ZorSample to, std::uint8_t* destination, bool truncate)
{
    double value = get(from, source);
    if (from != to) {
        const Ends a = endsOf(from), b = endsOf(to);
        const double unit = std::clamp((value - a.low) / (a.high - a.low), 0.0, 1.0);
        value = b.low + unit * (b.high - b.low);
        const bool narrows = (to == zorSample8u || to == zorSample8s) && from != zorSample8u && from != zorSample8s;
        if (truncate && narrows && from != zorSample32f)
            value = b.low + std::floor((get(from, source) - a.low) / 256);
        else if (to != zorSample32f)
            value = b.low + std::floor(unit * (b.high - b.low) + (truncate && from == zorSample32f ? 0 : 0.5));
    }
    put(to, destination, value);
}

void unpack(const PictureInMemory& from, const PictureInMemory& to, int x, int y)
{
    unsigned word = static_cast<unsigned>(get(zorSample16u, from.row(0, y) + 2 * x));
    for (int c = 0; c < 3; ++c) {
        const int bits = from.layout.fieldBits[c];
        to.row(0, y)[3 * x + c] = static_cast<std::uint8_t>((word & ((1u << bits) - 1)) << (8 - bits));
        word >>= bits;
    }
}

void pack(const PictureInMemory& from, const PictureInMemory& to, int x, int y)
{
    unsigned word = 0;
    for (int c = 2; c >= 0; --c) {
        const int bits = to.layout.fieldBits[c];
        word = word << bits | from.row(0, y)[3 * x + c] >> (8 - bits);
    }
    put(zorSample16u, to.row(0, y) + 2 * x, word);
}

void moveChannel(const PictureInMemory& from, const PictureInMemory& to, char letter, bool truncate)
{
    for (int y = 0; y < to.size.height; ++y)
        for (int x = 0; x < to.size.width; ++x) {
            std::uint8_t* const destination = to.sample(letter, x, y);
            if (from.has(letter) || letter != 'A')
                moveSample(from.layout.sample, from.sample(from.has(letter) ? letter : 'L', x, y), to.layout.sample,
                           destination, truncate);
            else
                put(to.layout.sample, destination, endsOf(to.layout.sample).high);
        }
}

void moveSamples(const PictureInMemory& from, const PictureInMemory& to, bool truncate)
{
    if (from.isPackedBits() || to.isPackedBits()) {
        for (int y = 0; y < to.size.height; ++y)
            for (int x = 0; x < to.size.width; ++x)
                if (from.isPackedBits() && to.isPackedBits())
                    std::memcpy(to.row(0, y) + 2 * x, from.row(0, y) + 2 * x, 2);
                else
                    (from.isPackedBits() ? unpack : pack)(from, to, x, y);
        return;
    }
    for (char letter : to.channels()) moveChannel(from, to, letter, truncate);
}

int roundUp(int value, int unit) { return (value + unit - 1) / unit * unit; }

// With the last column and row repeated.
Pictured filledUp(const PictureInMemory& source, const std::string& format, ZorSize size)
{
    auto all = std::make_unique<PictureInMemory>(format, size);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const int sx = std::min(x, source.size.width - 1), sy = std::min(y, source.size.height - 1);
            if (source.isPackedBits())
                std::memcpy(all->row(0, y) + 2 * x, source.row(0, sy) + 2 * sx, 2);
            else
                for (char letter : source.channels())
                    std::memcpy(all->sample(letter, x, y), source.sample(letter, sx, sy), source.layout.sampleBytes);
        }
    return all;
}

} // namespace

Pictured byHand(const ZorPlan* plan, const PictureInMemory& source, const std::string& target,
                const HandOptions& options)
{
    const bool truncate = options.depth == zorDepthTruncate;
    int width = 1 << source.layout.log2ChromaX, height = 1 << source.layout.log2ChromaY;
    for (int i = 0; zorPlanStepFormat(plan, i); ++i) {
        const ZorLayout layout = layoutOf(zorPlanStepFormat(plan, i), source.size);
        width = std::max(width, 1 << layout.log2ChromaX);
        height = std::max(height, 1 << layout.log2ChromaY);
    }
    const ZorSize whole{roundUp(source.size.width, width), roundUp(source.size.height, height)};
    const Pictured first = filledUp(source, source.layout.name, whole);
    Pictured now = filledUp(*first, first->layout.name, whole);
    for (int i = 0; zorPlanStepFunction(plan, i); ++i) {
        auto next = std::make_unique<PictureInMemory>(zorPlanStepFormat(plan, i), whole);
        const std::string_view name = zorPlanStepFunction(plan, i);
        if (name.empty()) {
            moveSamples(*now, *next, truncate);
        } else {
            interface::Extra extra;
            extra.alpha = static_cast<int>(endsOf(next->layout.sample).high);
            extra.levels = 256;
            extra.method = truncate ? zorDitherMethodNone : static_cast<ZorDitherMethod>(options.depth);
            const float* const w = options.greyWeights;
            const float reversed[3] = {w ? w[2] : 0, w ? w[1] : 0, w ? w[0] : 0};
            extra.weights = !w ? nullptr : now->channels()[0] == 'B' ? reversed : w;
            const interface::Function* const function = interface::findFunction(name);
            if (!function || (*function)(now->image(), next->image(), whole, extra) != zorStatusOk)
                throw std::runtime_error(std::string(name) + " fails");
        }
        now = std::move(next);
    }
    if (now->layout.name != std::string_view(layoutOf(target, whole).name))
        throw std::runtime_error("the plan ends in another format");
    if (now->has('A')) {
        const bool keeps = first->has('A') && !options.opaque;
        const PictureInMemory opaque("grey8", whole);
        moveChannel(keeps ? *first : opaque, *now, 'A', truncate);
    }
    return now;
}

// The second may have more columns and rows.
bool isSame(const PictureInMemory& a, const PictureInMemory& b)
{
    for (int p = 0; p < a.layout.planes; ++p)
        for (int y = 0; y < a.layout.rows[p]; ++y)
            if (std::memcmp(a.row(p, y), b.row(p, y), a.layout.rowBytes[p]) != 0) return false;
    return true;
}

} // namespace zorcc::test
