// SPDX-License-Identifier: MIT
#include "tests/reference/mosaic.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace zorcc::reference {

namespace {

int mirrored(int i, int count)
{
    const int period = 2 * (count - 1), k = ((i % period) + period) % period;
    return k < count ? k : period - k;
}

} // namespace

Channel Mosaic::colour(int x, int y) const
{
    static constexpr Channel cells[4][2][2] = {{{blue, green}, {green, red}},
                                               {{red, green}, {green, blue}},
                                               {{green, blue}, {red, green}},
                                               {{green, red}, {blue, green}}};
    return cells[grid][y & 1][x & 1];
}

int Mosaic::operator()(int x, int y) const
{
    return samples[static_cast<std::size_t>(mirrored(y, size.height)) * size.width + mirrored(x, size.width)];
}

Picture alongGradients(const Mosaic& m)
{
    Picture picture{m.size};
    for (int y = 0; y < m.size.height; ++y)
        for (int x = 0; x < m.size.width; ++x) {
            const int horizontal = m(x - 1, y) + m(x + 1, y), vertical = m(x, y - 1) + m(x, y + 1);
            const Channel own = m.colour(x, y);
            picture(x, y, own) = m(x, y);
            if (own == green) {
                const Channel inRow = m.colour(x + 1, y);
                picture(x, y, inRow) = (horizontal + 1) / 2;
                picture(x, y, inRow == red ? blue : red) = (vertical + 1) / 2;
                continue;
            }
            picture(x, y, own == red ? blue : red) =
                (m(x - 1, y - 1) + m(x + 1, y - 1) + m(x - 1, y + 1) + m(x + 1, y + 1) + 2) / 4;
            const int across = std::abs(m(x - 2, y) - m(x + 2, y)), down = std::abs(m(x, y - 2) - m(x, y + 2));
            const bool inFrame = x < 2 || y < 2 || x >= m.size.width - 2 || y >= m.size.height - 2;
            picture(x, y, green) = inFrame || down == across ? (horizontal + vertical + 2) / 4
                                   : down < across           ? (vertical + 1) / 2
                                                             : (horizontal + 1) / 2;
        }
    return picture;
}

namespace {

// Values of a mosaic that is mirrored on all sides, by `margin` pixels: no pixel depends on any further away.
template <class T> class Plane {
public:
    static constexpr int margin = 10;

    explicit Plane(ZorSize size)
        : width(size.width + 2 * margin), values(static_cast<std::size_t>(width) * (size.height + 2 * margin))
    {
    }

    T& operator()(int x, int y) { return values[static_cast<std::size_t>(y + margin) * width + x + margin]; }
    const T& operator()(int x, int y) const
    {
        return values[static_cast<std::size_t>(y + margin) * width + x + margin];
    }

private:
    int width;
    std::vector<T> values;
};

// Calls body(x, y) for every pixel that lies at most `around` pixels outside.
template <class Body> void each(ZorSize size, int around, Body body)
{
    for (int y = -around; y < size.height + around; ++y)
        for (int x = -around; x < size.width + around; ++x) body(x, y);
}

struct Step {
    int x, y;
};
constexpr Step across{1, 0}, down{0, 1};

// Green at a site along one direction.
float estimate(const Mosaic& m, int x, int y, Step s)
{
    const int a = m(x - s.x, y - s.y), b = m(x + s.x, y + s.y), own = m(x, y);
    const int bend = (own - m(x - 2 * s.x, y - 2 * s.y)) + (own - m(x + 2 * s.x, y + 2 * s.y));
    return std::clamp(static_cast<float>(2 * (a + b) + bend) / 4, static_cast<float>(std::min(a, b)),
                      static_cast<float>(std::max(a, b)));
}

// Red and blue less green at a pixel.
struct Chroma {
    float red, blue;
};

// Of the colour of the row's sites, and of the third colour.
Chroma inRow(const Mosaic& m, int x, int y, float same, float other)
{
    const bool rowHasRed = m.colour(x, y) == red || m.colour(x + 1, y) == red;
    return rowHasRed ? Chroma{same, other} : Chroma{other, same};
}

// A candidate's: averages of those at the sites around the pixel.
Chroma averaged(const Mosaic& m, const Plane<float>& differences, int x, int y)
{
    const auto d = [&](int dx, int dy) { return differences(x + dx, y + dy); };
    if (m.colour(x, y) == green) return inRow(m, x, y, (d(-1, 0) + d(1, 0)) / 2, (d(0, -1) + d(0, 1)) / 2);
    return inRow(m, x, y, d(0, 0), (d(-1, -1) + d(1, -1) + d(-1, 1) + d(1, 1)) / 4);
}

// The curve as the library forms it, so that no choice depends on the last bit of another.
float curve(float t)
{
    const float knee = 0.008856f, above = std::max(t, knee);
    std::uint32_t bits;
    static_assert(sizeof bits == sizeof above);
    std::memcpy(&bits, &above, sizeof bits);
    bits = 0x54a14000 - ((bits >> 16) * 21845 >> 16 << 16 | (bits & 0xffff) * 21845 >> 16);
    float y;
    std::memcpy(&y, &bits, sizeof y);
    const float root = above * y * y, u = root * y;
    return root * ((u * 0.5588924f - 1.7887134f) * u + 2.2298227f) + std::min(t, knee) * 7.787037f;
}

struct Lab {
    float light, red, blue;
};

Lab toLab(float g, float r, float b)
{
    constexpr float unit = 1 / 257.f;
    const float x = curve(g * (0.003921f * unit) + r * (0.001702f * unit) + b * (0.000744f * unit));
    const float y = curve(g * (0.003922f * unit) + r * (0.000834f * unit) + b * (0.000283f * unit));
    const float z = curve(g * (0.003922f * unit) + r * (0.00007f * unit) + b * (0.003423f * unit));
    return {y, (x - y) * 2.5f, y - z};
}

struct Distance {
    float light, colour;
};

Distance distance(const Lab& a, const Lab& b)
{
    return {std::abs(a.light - b.light), (a.red - b.red) * (a.red - b.red) + (a.blue - b.blue) * (a.blue - b.blue)};
}

struct Candidate {
    Plane<float> differences;
    Plane<Lab> lab;

    Candidate(const Mosaic& m, Step direction) : differences(m.size), lab(m.size)
    {
        each(m.size, 8, [&](int x, int y) {
            if (m.colour(x, y) == green) return;
            differences(x, y) = static_cast<float>(m(x, y)) - estimate(m, x, y, direction);
        });
        const float scale = m.maximum == 255 ? 257.f : 1.f;
        each(m.size, 6, [&](int x, int y) {
            const Chroma chroma = averaged(m, differences, x, y);
            lab(x, y) = toLab((static_cast<float>(m(x, y)) - differences(x, y)) * scale, chroma.red * scale,
                              chroma.blue * scale);
        });
    }

    Distance to(int x, int y, Step s) const { return distance(lab(x, y), lab(x + s.x, y + s.y)); }
};

constexpr Step back(Step s) { return {-s.x, -s.y}; }

// Near neighbours in the candidate across, less those in the candidate down.
int lead(const Candidate (&candidate)[2], int x, int y)
{
    float light[2], colour[2];
    for (int d = 0; d < 2; ++d) {
        const Step s = d == 0 ? across : down;
        const Distance one = candidate[d].to(x, y, back(s)), other = candidate[d].to(x, y, s);
        light[d] = std::max(one.light, other.light);
        colour[d] = std::max(one.colour, other.colour);
    }
    int count = 0;
    for (int d = 0; d < 2; ++d)
        for (const Step s : {across, down, back(across), back(down)}) {
            const Distance distance = candidate[d].to(x, y, s);
            if (distance.light <= std::min(light[0], light[1]) && distance.colour <= std::min(colour[0], colour[1]))
                count += d == 0 ? 1 : -1;
        }
    return count;
}

// How much of a pixel is of the candidate across: half, and a 64th more for each near neighbour that this candidate has
// more than the other among those of the 5 x 5 pixels around.
float shareAcross(const Plane<int>& leads, int x, int y)
{
    int sum = 0;
    for (int i = 0; i < 25; ++i) sum += leads(x + i % 5 - 2, y + i / 5 - 2);
    return std::clamp(0.5f + static_cast<float>(sum) / 64, 0.f, 1.f);
}

// The third colour's difference at a site, from those of the sites on both diagonals, by the squares of how much
// differences and greens change along each.
float acrossDiagonals(const Mosaic& m, const Plane<float>& differences, int x, int y)
{
    const auto d = [&](int dx, int dy) { return differences(x + dx, y + dy); };
    const auto g = [&](int dx, int dy) { return static_cast<float>(m(x + dx, y + dy)) - d(dx, dy); };
    const float still = m.maximum == 255 ? 4.f : 4.f * 257;
    const auto change = [&](int toTheRight) { // of a diagonal that goes down
        const float total = still + std::abs(d(-toTheRight, -1) - d(toTheRight, 1)) +
                            std::abs(g(0, 0) - g(-toTheRight, -1)) + std::abs(g(0, 0) - g(toTheRight, 1));
        return total * total;
    };
    const float falling = change(1), rising = change(-1);
    return ((d(-1, -1) + d(1, 1)) * rising + (d(1, -1) + d(-1, 1)) * falling) / (2 * (falling + rising));
}

// At a green pixel, where its four neighbours have both colours: the averages of those across and down, by share.
float averagedByShare(const Plane<Chroma>& chroma, float Chroma::*colour, float share, int x, int y)
{
    return share * ((chroma(x - 1, y).*colour + chroma(x + 1, y).*colour) / 2) +
           (1 - share) * ((chroma(x, y - 1).*colour + chroma(x, y + 1).*colour) / 2);
}

// The colour's difference, three quarters of the way to the median of it and of those of the four neighbours.
float smoothed(const Plane<Chroma>& chroma, float Chroma::*colour, int x, int y)
{
    const float own = chroma(x, y).*colour;
    float values[5] = {own, chroma(x - 1, y).*colour, chroma(x + 1, y).*colour, chroma(x, y - 1).*colour,
                       chroma(x, y + 1).*colour};
    std::sort(std::begin(values), std::end(values));
    return own + (values[2] - own) * 0.75f;
}

} // namespace

Picture adaptive(const Mosaic& m)
{
    const Candidate candidate[2] = {{m, across}, {m, down}};
    Plane<int> leads(m.size);
    each(m.size, 5, [&](int x, int y) { leads(x, y) = lead(candidate, x, y); });
    Plane<float> shares(m.size), differences(m.size);
    each(m.size, 3, [&](int x, int y) {
        const float a = candidate[0].differences(x, y), d = candidate[1].differences(x, y);
        shares(x, y) = shareAcross(leads, x, y);
        if (m.colour(x, y) != green) differences(x, y) = d + (a - d) * shares(x, y);
    });
    Plane<Chroma> chroma(m.size);
    each(m.size, 2, [&](int x, int y) {
        if (m.colour(x, y) == green) return;
        chroma(x, y) = inRow(m, x, y, differences(x, y), acrossDiagonals(m, differences, x, y));
    });
    each(m.size, 1, [&](int x, int y) {
        if (m.colour(x, y) != green) return;
        chroma(x, y) = {averagedByShare(chroma, &Chroma::red, shares(x, y), x, y),
                        averagedByShare(chroma, &Chroma::blue, shares(x, y), x, y)};
    });
    Picture picture{m.size};
    each(m.size, 0, [&](int x, int y) {
        const Channel own = m.colour(x, y);
        const float r = smoothed(chroma, &Chroma::red, x, y), b = smoothed(chroma, &Chroma::blue, x, y);
        const float g = static_cast<float>(m(x, y)) - (own == green ? 0 : own == red ? r : b);
        const auto rounded = [&](float v) { return std::clamp(static_cast<int>(std::floor(v + 0.5f)), 0, m.maximum); };
        picture(x, y, red) = own == red ? m(x, y) : rounded(g + r);
        picture(x, y, green) = own == green ? m(x, y) : rounded(g);
        picture(x, y, blue) = own == blue ? m(x, y) : rounded(g + b);
    });
    return picture;
}

} // namespace zorcc::reference
