// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstdio>
#include <iostream>
#include <map>
#include <string>

#include "commands.h"
#include "conversion.h"
#include "difference.h"
#include "error.h"
#include "formats.h"
#include "messages.h"

namespace zorcc::tool {

namespace {

// The format to compare pictures in: the samples of both, and alpha if both have it.
const Format& commonFormat(const Picture& a, const Picture& b)
{
    const Format &f = a.format(), &g = b.format();
    if (!isRgb(f) && !isRgb(g) && areSame(f, g) && f.sample == Sample::u8) return f;
    if (!isRgb(f) || !isRgb(g))
        throw Cause("one holds " + std::string(f.name) + ", the other " + std::string(g.name) +
                    ": convert one of them");
    const bool exact = f.sample == Sample::u8 && g.sample == Sample::u8, alpha = hasAlpha(f) && hasAlpha(g);
    if (alpha && !exact) return pictureFormat(false, true, Sample::f32);
    return pictureFormat(isGrey(f) && isGrey(g), alpha, exact ? Sample::u8 : Sample::f32);
}

class Comparison {
public:
    void add(Picture p, Picture q)
    {
        if (!(p.visible() == q.visible()))
            throw Cause("sizes differ: " + sizeName(p.visible()) + " and " + sizeName(q.visible()));
        const Format& common = commonFormat(p, q);
        if (format && format != &common) throw Cause("pictures of several kinds in one file");
        format = &common;
        const ZorSize size = p.visible();
        const Picture one = rearranged(std::move(p), common), other = rearranged(std::move(q), common);
        std::string_view letters = common.channels; // of packed 4:2:2 each once
        for (std::size_t i = 0; i < letters.size(); ++i)
            if (letters.find(letters[i]) == i)
                channels[letters[i]].add(channelOf(one, letters[i], size), channelOf(other, letters[i], size),
                                         common.sample);
    }

    Difference all() const
    {
        Difference sum;
        for (const auto& [letter, difference] : channels) sum.add(difference);
        return sum;
    }

    void print() const
    {
        std::cout << "channel   PSNR dB  largest difference      SSIM\n";
        std::string_view letters = format->channels;
        for (std::size_t i = 0; i < letters.size(); ++i)
            if (letters.find(letters[i]) == i)
                printLine(isGrey(*format) ? "grey" : std::string(1, letters[i]), channels.at(letters[i]));
        printLine("all", all());
    }

private:
    // Samples of 8 bits are compared as they are, others as floats of 0..1.
    void printLine(const std::string& name, const Difference& difference) const
    {
        char line[120], psnr[32] = "inf";
        if (std::isfinite(difference.psnr())) std::snprintf(psnr, sizeof psnr, "%.2f", difference.psnr());
        std::snprintf(line, sizeof line,
                      format->sample == Sample::u8 ? "%-8s %8s  %18g  %8.5f\n" : "%-8s %8s  %18.6f  %8.5f\n",
                      name.c_str(), psnr, difference.largest(), difference.ssim());
        std::cout << line;
    }

    const Format* format = nullptr;
    std::map<char, Difference> channels;
};

bool isHeaderlessPath(const std::string& path)
{
    const auto kind = fileKind(path);
    return kind && isHeaderless(*kind);
}

void warnOfOneAlpha(const std::string& path, const Format& format, const Format& other)
{
    if (hasAlpha(format) && !hasAlpha(other)) warn(path, "its alpha is not compared, the other has none");
}

} // namespace

void compare(const CompareOptions& options)
{
    Input other = options.a;
    other.path = options.b;
    // Where one of both files has a header, their names show which.
    const auto open = [&](Input input, const Input& twin) {
        const bool hasHeader = input.size && !isHeaderlessPath(input.path) && isHeaderlessPath(twin.path);
        return hasHeader ? openReader(input.path) : openInput(input, nullptr, OddSizes::roundUp);
    };
    const auto first = open(options.a, other), second = open(other, options.a);
    Comparison comparison;
    for (;;) {
        auto p = first->next(), q = second->next();
        if (!p && !q) break;
        if (!p || !q)
            throw Error(p ? options.b : options.a.path, "has only " + std::to_string((p ? second : first)->count()) +
                                                            " pictures, the other file has more");
        warnOfOneAlpha(options.a.path, p->format(), q->format());
        warnOfOneAlpha(options.b, q->format(), p->format());
        naming(options.a.path + ", " + options.b, [&] { comparison.add(*std::move(p), *std::move(q)); });
    }
    comparison.print();
    if (options.minPsnr && comparison.all().psnr() < *options.minPsnr) {
        char text[80];
        std::snprintf(text, sizeof text, "PSNR of %.2f dB, below %g dB", comparison.all().psnr(), *options.minPsnr);
        throw Error(options.a.path + ", " + options.b, text);
    }
}

} // namespace zorcc::tool
