// SPDX-License-Identifier: MIT
#include "tests/harness/contents.h"

#include <bit>
#include <cstring>
#include <limits>
#include <type_traits>

#include "tests/harness/random.h"
#include "tests/reference/pixels.h"

namespace zorcc::test {

namespace {

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
    const std::uint32_t bits = random();
    const float sign = random.below(2) ? 1.0f : -1.0f;
    switch (random.below(16)) {
    case 0:
        return std::bit_cast<float>(bits); // of any magnitude
    case 1:
        return sign * random.anyOf(special);
    case 2:
        return sign * Limits::denorm_min() * static_cast<float>(bits % 100);
    case 3:
    case 4:
        return static_cast<float>(bits) * 0x5p-32f - 2;
    default:
        return static_cast<float>(bits % 65536) / 65535;
    }
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
    Random random(seed);
    const int greatest = interface::sampleBytes(image.format().sample) == 1 ? 255 : 65535;
    int level = random.below(greatest + 1), run = 0;
    const auto valueAt = [&](int x) {
        switch (contents) {
        case Contents::zeros:
            return 0;
        case Contents::maximum:
            return greatest;
        case Contents::extremes:
            return random.below(2) * greatest;
        case Contents::alternating:
            return x % 2 == 0 ? greatest : 0;
        case Contents::ramp:
            return level + x;
        case Contents::runs:
            if (run-- == 0) {
                run = random.below(40);
                level = random.below(greatest + 1);
            }
            return level;
        case Contents::nearGrey:
            return level + random.below(3) - 1;
        default:
            return random.below(greatest + 1);
        }
    };
    // Samples of every type span the same range: least to greatest, or 0 to 1.
    image.eachRow([&](std::uint8_t* row, int samples, int, int) {
        for (int i = 0; i < samples; ++i)
            reference::withType(image.format().sample, [&](auto sample) {
                using T = decltype(sample);
                const int value = valueAt(i) & greatest;
                if constexpr (std::is_same_v<T, std::int32_t>)
                    sample = (value - 32768) * 65536 + value;
                else if constexpr (std::is_integral_v<T>)
                    sample = static_cast<T>(value + std::numeric_limits<T>::min());
                else
                    sample = contents == Contents::anyFloats ? anyFloat(random) : static_cast<float>(value) / 65535;
                std::memcpy(row + i * sizeof sample, &sample, sizeof sample);
            });
    });
}

void fillColours(TestImage& image, int first)
{
    const ZorSize size = image.size();
    reference::Pixels pixels(image.format(), image.image(), size);
    reference::eachPixel(size, [&](int x, int y) {
        const int colour = scattered(first + y * size.width + x, colours);
        for (int c = 0; c < 3; ++c) pixels.put(c, x, y, colour >> 8 * c & 255);
    });
}

} // namespace zorcc::test
