// SPDX-License-Identifier: MIT
#include "tests/harness/contents.h"

#include <bit>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <type_traits>

namespace zorcc::test {

namespace {

// A generator that is quick to seed: the images are small and many.
class Random {
public:
    explicit Random(std::uint32_t seed) : state(seed * 0x9e3779b97f4a7c15u + 1) {}
    std::uint32_t next()
    {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        return static_cast<std::uint32_t>((state * 0x2545f4914f6cdd1du) >> 32);
    }
    int below(int count) { return static_cast<int>(next() % static_cast<std::uint32_t>(count)); }

private:
    std::uint64_t state;
};

template <class T> class Source {
public:
    Source(Contents contents, std::uint32_t seed) : kind(contents), random(seed), level(random.below(greatest + 1)) {}

    void startRow() { position = 0; }

    T next()
    {
        const int x = position++;
        switch (kind) {
        case Contents::random:
        case Contents::anyFloats:
            return static_cast<T>(random.next());
        case Contents::zeros:
            return 0;
        case Contents::maximum:
            return greatest;
        case Contents::extremes:
            return random.next() & 0x8000 ? greatest : 0;
        case Contents::alternating:
            return x & 1 ? 0 : greatest;
        case Contents::ramp:
            return static_cast<T>(level + x);
        case Contents::runs:
            if (run-- == 0) {
                run = random.below(40);
                level = random.below(greatest + 1);
            }
            return static_cast<T>(level);
        case Contents::nearGrey:
            return static_cast<T>(level + random.below(3) - 1);
        }
        throw std::logic_error("unknown contents");
    }

private:
    static constexpr T greatest = std::numeric_limits<T>::max();
    Contents kind;
    Random random;
    int level;
    int run = 0;
    int position = 0;
};

// Samples made of unsigned integers, which span the same range: least to greatest, or 0 to 1.
std::uint8_t sampleOf(std::uint8_t value, std::uint8_t) { return value; }
std::uint16_t sampleOf(std::uint16_t value, std::uint16_t) { return value; }
std::int16_t sampleOf(std::uint16_t value, std::int16_t) { return static_cast<std::int16_t>(value - 32768); }
float sampleOf(std::uint16_t value, float) { return static_cast<float>(value) / 65535.0f; }

float anyFloat(Random& random)
{
    using Limits = std::numeric_limits<float>;
    constexpr float special[] = {Limits::quiet_NaN(),
                                 Limits::infinity(),
                                 Limits::max(),
                                 Limits::min(),
                                 Limits::denorm_min(),
                                 Limits::epsilon(),
                                 0,
                                 1};
    const std::uint32_t bits = random.next();
    const float sign = random.below(2) ? 1.0f : -1.0f;
    switch (random.below(16)) {
    case 0:
        return std::bit_cast<float>(bits); // of any magnitude
    case 1:
        return sign * special[bits % 8];
    case 2:
        return sign * Limits::denorm_min() * static_cast<float>(bits % 100);
    case 3:
    case 4:
        return static_cast<float>(bits) * 0x5p-32f - 2;
    default:
        return static_cast<float>(bits % 65536) / 65535;
    }
}

template <class T> void fillAs(TestImage& image, Contents contents, std::uint32_t seed)
{
    Random random(seed);
    Source<std::conditional_t<sizeof(T) == 1, std::uint8_t, std::uint16_t>> source(contents, seed);
    image.eachRow([&](std::uint8_t* row, int samples, int, int) {
        source.startRow();
        for (int i = 0; i < samples; ++i) {
            T value = sampleOf(source.next(), T{});
            if constexpr (std::is_same_v<T, float>)
                if (contents == Contents::anyFloats) value = anyFloat(random);
            std::memcpy(row + i * sizeof(T), &value, sizeof(T));
        }
    });
}

} // namespace

const char* describe(Contents contents)
{
    constexpr const char* names[] = {
        "random", "zeros", "maximum", "extremes", "alternating", "ramp", "runs", "near grey", "floats of every kind"};
    return names[static_cast<int>(contents)];
}

void fill(TestImage& image, Contents contents, std::uint32_t seed)
{
    switch (image.format().sample) {
    case interface::Sample::u8:
        return fillAs<std::uint8_t>(image, contents, seed);
    case interface::Sample::u16:
        return fillAs<std::uint16_t>(image, contents, seed);
    case interface::Sample::s16:
        return fillAs<std::int16_t>(image, contents, seed);
    case interface::Sample::f32:
        return fillAs<float>(image, contents, seed);
    case interface::Sample::s32:
        throw std::logic_error("no contents for this sample type");
    }
}

} // namespace zorcc::test
