// SPDX-License-Identifier: MIT
#include "chart.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "font.h"
#include "formats.h"

namespace zorcc::tool {

namespace {

struct Rgb {
    int r, g, b;
};

constexpr Rgb black = {0, 0, 0}, white = {255, 255, 255}, red = {255, 0, 0}, green = {0, 255, 0}, blue = {0, 0, 255},
              yellow = {255, 255, 0}, cyan = {0, 255, 255}, magenta = {255, 0, 255};

constexpr Rgb grey(int value) { return {value, value, value}; }

constexpr Rgb mix(Rgb from, Rgb to, int numerator, int denominator)
{
    const auto channel = [=](int a, int b) { return a + (b - a) * numerator / std::max(denominator, 1); };
    return {channel(from.r, to.r), channel(from.g, to.g), channel(from.b, to.b)};
}

// A position along `length`, scaled to one along `newLength`, rounded down.
constexpr int scaled(int position, int length, int newLength)
{
    return static_cast<int>(static_cast<std::int64_t>(position) * newLength / length);
}

// 0..255 along a length, both ends reached.
constexpr int ramp(int position, int length)
{
    return static_cast<int>(static_cast<std::int64_t>(position) * 255 / std::max(length - 1, 1));
}

// A cosine of 0..255 without floating point; 65536 is one turn. Its halves are cubic: 3 t^2 - 2 t^3.
constexpr int wave(std::int64_t phase)
{
    const std::int64_t turn = phase & 0xffff;
    const std::int64_t t = turn < 0x8000 ? 0x8000 - turn : turn - 0x8000; // 0..2^15
    return static_cast<int>((t * t * (3 * 0x8000 - 2 * t) * 255 >> 45));
}

// A panel's colour at (x, y) within its own size.
using Shade = Rgb(int x, int y, ZorSize size);

Rgb bars(int x, int, ZorSize size)
{
    constexpr Rgb bar[] = {white, yellow, cyan, green, magenta, red, blue, black};
    return bar[scaled(x, size.width, std::size(bar))];
}

Rgb dimBars(int x, int y, ZorSize size) { return mix(black, bars(size.width - 1 - x, y, size), 3, 4); }

// Hue to the right; from white through the full colour to black downwards.
Rgb hues(int x, int y, ZorSize size)
{
    constexpr Rgb corner[] = {red, yellow, green, cyan, blue, magenta, red};
    const int at = scaled(x, size.width, 6 * 256);
    const Rgb hue = mix(corner[at / 256], corner[at / 256 + 1], at % 256, 256);
    const int level = scaled(y, size.height, 512);
    return level < 256 ? mix(white, hue, level, 255) : mix(hue, black, level - 256, 255);
}

// Frequency grows from 0 in the middle to half a cycle a pixel at the rim of the circle.
Rgb zonePlate(int x, int y, ZorSize size)
{
    const std::int64_t dx = 2ll * x - size.width + 1, dy = 2ll * y - size.height + 1; // half pixels
    const std::int64_t diameter = std::max(std::min(size.width, size.height), 1), square = dx * dx + dy * dy;
    if (square > diameter * diameter) return grey(128);
    return grey(wave(square * 0x8000 / (4 * diameter)));
}

// The direction of (x, y), 0..8191 for a turn; arc tangent z * (1 + 0.3475 (1 - z)) within 0.3 degrees.
int direction(std::int64_t x, std::int64_t y)
{
    const std::int64_t ax = std::abs(x), ay = std::abs(y), large = std::max({ax, ay, std::int64_t{1}});
    const std::int64_t z = std::min(ax, ay) * 1024 / large;
    int angle = static_cast<int>(z + z * (1024 - z) * 356 / (1024 * 1024));
    if (ay > ax) angle = 2048 - angle;
    if (x < 0) angle = 4096 - angle;
    return (y < 0 ? 8192 - angle : angle) & 8191;
}

// Saturated wedges that meet in the middle.
Rgb star(int x, int y, ZorSize size)
{
    constexpr Rgb wedge[] = {red, cyan, blue, yellow, green, magenta};
    const int at = direction(2ll * x - size.width + 1, 2ll * y - size.height + 1);
    return wedge[at * 36 / 8192 % 6];
}

// Saturated checks, finer from band to band.
Rgb checks(int x, int y, ZorSize size)
{
    constexpr Rgb pair[][2] = {{red, blue}, {green, magenta}, {yellow, blue}, {red, cyan}, {green, red}};
    const int band = scaled(y, size.height, 5), side = 16 >> band;
    return pair[band][(x / side + y / side) & 1];
}

Rgb greyRamp(int x, int, ZorSize size) { return grey(ramp(x, size.width)); }

Rgb greySteps(int x, int, ZorSize size) { return grey(scaled(x, size.width, 16) * 17); }

Rgb colourRamps(int x, int y, ZorSize size)
{
    constexpr Rgb full[] = {red, green, blue};
    return mix(black, full[scaled(y, size.height, 3)], ramp(x, size.width), 255);
}

// Small text, line by line in other colours.
Rgb text(int x, int y, ZorSize size)
{
    constexpr std::string_view line[] = {"ZORCC: COLOUR CONVERSION OF RASTER IMAGES. ",
                                         "SPHINX OF BLACK QUARTZ: JUDGE MY VOW. ",
                                         "0123456789 THE FIVE BOXING WIZARDS JUMP QUICKLY. "};
    constexpr Rgb ink[] = {black, white, yellow, red, green, cyan, blue},
                  paper[] = {white, black, blue, green, magenta, red, yellow};
    constexpr int pitch = font::width + 1, leading = font::height + 3;
    const int row = y / leading, at = x / pitch;
    const std::string_view words = line[row % std::size(line)];
    const bool set = y % leading > 0 && font::isSet(words[at % words.size()], x % pitch, y % leading - 1);
    const bool whole = (row + 1) * leading <= size.height && (at + 1) * pitch <= size.width;
    return set && whole ? ink[row % std::size(ink)] : paper[row % std::size(paper)];
}

// Stripes of 6 to 1 pixels, upright and lying, in black and white and in red and blue.
Rgb gratings(int x, int y, ZorSize size)
{
    constexpr Rgb pair[][2] = {{black, white}, {red, blue}};
    const int column = scaled(x, size.width, 6), width = 6 - column;
    const int band = scaled(y, size.height, 4);
    return pair[band / 2][(band % 2 == 0 ? x / width : y / width) & 1];
}

// Blocks along the edges show whether anything is cut off.
Rgb frame(int x, int y, ZorSize size)
{
    const int block = scaled(x, size.width, 32) + scaled(y, size.height, 18);
    return block % 2 == 0 ? white : black;
}

Rgb ground(int x, int y, ZorSize size)
{
    const auto onLine = [](int at, int length, int lines) {
        return at > 0 && scaled(at, length, lines) != scaled(at - 1, length, lines);
    };
    return onLine(x, size.width, 31) || onLine(y, size.height, 17) ? grey(112) : grey(72);
}

// Places in 64ths of the width and 36ths of the height; later panels cover earlier ones.
struct Panel {
    int left, top, right, bottom;
    Shade* shade;
};

constexpr Panel panels[] = {
    {0, 0, 64, 36, frame},      {1, 1, 63, 35, ground},      {2, 2, 62, 8, bars},          {2, 8, 62, 10, dimBars},
    {2, 11, 20, 24, hues},      {21, 11, 36, 24, zonePlate}, {37, 11, 50, 24, star},       {51, 11, 62, 24, checks},
    {2, 25, 62, 27, greyRamp},  {2, 27, 62, 28, greySteps},  {2, 28, 62, 30, colourRamps}, {2, 31, 36, 34, text},
    {37, 31, 62, 34, gratings},
};

} // namespace

Picture drawChart(ZorSize size)
{
    Picture picture(pictureFormat(false, false, Sample::u8), size);
    for (const Panel& panel : panels) {
        const int left = scaled(panel.left, 64, size.width), right = scaled(panel.right, 64, size.width);
        const int top = scaled(panel.top, 36, size.height), bottom = scaled(panel.bottom, 36, size.height);
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x) {
                const Rgb colour = panel.shade(x - left, y - top, {right - left, bottom - top});
                std::uint8_t* const pixel = picture.row(0, y) + 3 * static_cast<std::ptrdiff_t>(x);
                pixel[0] = static_cast<std::uint8_t>(colour.r);
                pixel[1] = static_cast<std::uint8_t>(colour.g);
                pixel[2] = static_cast<std::uint8_t>(colour.b);
            }
    }
    return picture;
}

} // namespace zorcc::tool
