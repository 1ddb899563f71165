// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

#include "commands.h"
#include "error.h"
#include "formats.h"

namespace zorcc::tool {

namespace {

struct Difference {
    double squares = 0, samples = 0, largest = 0;

    void add(double difference)
    {
        squares += difference * difference;
        largest = std::max(largest, std::abs(difference));
        ++samples;
    }

    void add(const Difference& other)
    {
        squares += other.squares;
        samples += other.samples;
        largest = std::max(largest, other.largest);
    }

    // Peak signal-to-noise ratio in dB.
    std::string psnr(double peak) const
    {
        if (squares == 0) return "inf";
        char text[32];
        std::snprintf(text, sizeof text, "%.2f", 10 * std::log10(peak * peak * samples / squares));
        return text;
    }
};

// Compared as it is at 8 bits, otherwise as floats of 0..1.
struct Scale {
    const char* print;
    double peak;
};

constexpr Scale bytes = {"%-8s %8s  %g\n", 255}, units = {"%-8s %8s  %.6f\n", 1};

double sampleAt(const Channel& channel, Sample type, int x, int y)
{
    const std::uint8_t* const at = channel.first + channel.step * y + channel.stride * x;
    if (type == Sample::u8) return *at;
    float value = 0;
    std::memcpy(&value, at, sizeof value);
    return value;
}

// The format to compare pictures in: the samples of both, alpha only if both have it.
const Format& commonFormat(const Picture& a, const Picture& b)
{
    const Format &f = a.format(), &g = b.format();
    if (!isRgb(f) && &f == &g) return f;
    if (!isRgb(f) || !isRgb(g))
        throw Cause("one holds " + std::string(f.name) + ", the other " + std::string(g.name) +
                    ": convert one of them");
    const bool exact = f.sample == Sample::u8 && g.sample == Sample::u8;
    return pictureFormat(isGrey(f) && isGrey(g), exact && hasAlpha(f) && hasAlpha(g), exact ? Sample::u8 : Sample::f32);
}

} // namespace

void compare(const std::string& a, const std::string& b)
{
    const auto first = openReader(a), second = openReader(b);
    const Format* format = nullptr;
    Difference channels[interface::maxPlanes];
    for (;;) {
        auto p = first->next(), q = second->next();
        if (!p && !q) break;
        if (!p || !q)
            throw Error(p ? b : a, "has only " + std::to_string((p ? second : first)->count()) +
                                       " pictures, the other file has more");
        naming(a + ", " + b, [&] {
            if (!(p->visible() == q->visible()))
                throw Cause("sizes differ: " + sizeName(p->visible()) + " and " + sizeName(q->visible()));
            const Format& common = commonFormat(*p, *q);
            if (format && format != &common) throw Cause("pictures of several kinds in one file");
            format = &common;
            const Picture one = rearranged(std::move(*p), common, p->size()),
                          other = rearranged(std::move(*q), common, q->size());
            for (std::size_t i = 0; i < common.channels.size(); ++i) {
                const Channel c = channelOf(one, common.channels[i], one.visible());
                const Channel d = channelOf(other, common.channels[i], other.visible());
                for (int y = 0; y < c.height; ++y)
                    for (int x = 0; x < c.width; ++x)
                        channels[i].add(sampleAt(c, common.sample, x, y) - sampleAt(d, common.sample, x, y));
            }
        });
    }

    const Scale& scale = format->sample == Sample::u8 ? bytes : units;
    std::cout << "channel   PSNR dB  largest difference\n";
    const auto print = [&](const std::string& name, const Difference& difference) {
        char line[80];
        std::snprintf(line, sizeof line, scale.print, name.c_str(), difference.psnr(scale.peak).c_str(),
                      difference.largest);
        std::cout << line;
    };
    Difference all;
    for (std::size_t i = 0; i < format->channels.size(); ++i) {
        print(isGrey(*format) ? "grey" : std::string(1, format->channels[i]), channels[i]);
        all.add(channels[i]);
    }
    print("all", all);
}

} // namespace zorcc::tool
