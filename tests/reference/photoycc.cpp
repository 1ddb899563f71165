// SPDX-License-Identifier: MIT
#include "tests/reference/photoycc.h"

#include "tests/reference/colours.h"

namespace zorcc::reference {

using interface::Sample;

namespace {

Three yccOfBytes(int r, int g, int b)
{
    const int luma = 4898 * r + 9617 * g + 1867 * b;
    return levelsOf((luma >> 10) * 2921 >> 16, (((b * 16384 - luma) >> 10) * 1789 >> 16) + 156,
                    (((r * 16384 - luma) >> 10) * 2178 >> 16) + 137);
}

Three rgbOfBytes(int y, int c1, int c2)
{
    const int blue = 9084 * c1 - 1417104, red = 7460 * c2 - 1022020;
    return levelsOf((5564 * y + red) >> 12, (89024 * y - 794 * (blue >> 8) - 2084 * (red >> 8)) >> 16,
                    (5564 * y + blue) >> 12);
}

float lumaOf(const Three& rgb) { return 0.299f * rgb[0] + 0.587f * rgb[1] + 0.114f * rgb[2]; }

Three yccOfWords(const Three& rgb)
{
    const auto [r, g, b] = rgb;
    return {0.213267f * r + 0.418688f * g + 0.0813124f * b + 0.49999f,
            0.4368627f * (b - lumaOf(rgb)) + 40092 + 0.49999f,
            r * 0.372876f - g * 0.312237f - b * 0.0606389f + 35209 + 0.49999f};
}

Three rgbOfWords(const Three& ycc)
{
    const float y = 1.3584f * ycc[0], c1 = ycc[1] - 40092, c2 = ycc[2] - 35209;
    return {y + 1.8215f * c2 + 0.49999f, y - 0.4302726f * c1 - 0.92714345f * c2 + 0.49999f,
            y + 2.2179f * c1 + 0.49999f};
}

Three yccOfFloats(const Three& rgb)
{
    const float luma = lumaOf(rgb);
    return {0.7132668f * luma, 0.4368627f * (rgb[2] - luma) + 0.6117647f, 0.53192f * (rgb[0] - luma) + 0.5372549f};
}

Three rgbOfFloats(const Three& ycc)
{
    const float y = 1.3584f * ycc[0], c1 = 2.2179f * (ycc[1] - 0.6117647f), c2 = 1.8215f * (ycc[2] - 0.5372549f);
    return withinUnit({y + c2, y - 0.194f * c1 - 0.509f * c2, y + c1});
}

template <auto ofBytes, auto ofWords, auto ofFloats> void convertEach(const Pixels& source, Pixels& destination)
{
    eachColour(source, destination, [&](const Three& from, int) {
        if (source.sample() == Sample::u8)
            return ofBytes(static_cast<int>(from[0]), static_cast<int>(from[1]), static_cast<int>(from[2]));
        return source.sample() == Sample::f32 ? ofFloats(from) : ofWords(from);
    });
}

} // namespace

void rgbToPhotoYcc(const Pixels& source, Pixels& destination)
{
    convertEach<yccOfBytes, yccOfWords, yccOfFloats>(source, destination);
}

void photoYccToRgb(const Pixels& source, Pixels& destination)
{
    convertEach<rgbOfBytes, rgbOfWords, rgbOfFloats>(source, destination);
}

} // namespace zorcc::reference
