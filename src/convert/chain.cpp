// SPDX-License-Identifier: MIT
#include "convert/chain.h"

#include <algorithm>
#include <cstdlib>

#include "convert/team.h"

namespace zorcc::conversion {

using interface::Call;
using interface::sampleBytes;

namespace {

constexpr int leastRows = 4;                  // of thresholds, and of the largest block
constexpr std::int64_t cachedBytes = 1 << 18; // of all images of a strip: a part of any second-level cache
constexpr std::int64_t leastShare = 1 << 16;  // pixels that are worth a thread

int roundUp(int value, int unit) { return (value + unit - 1) / unit * unit; }

// ---- the caller's images --------------------------------------------------------------------------------------------

ZorStatus checkPlanes(const Format& format, const void* const* planes, ZorStatus status = zorStatusOk)
{
    for (int p = 0; p < format.planes; ++p)
        if (!planes[p]) status = zorStatusNullPointer;
    return status;
}

ZorStatus checkSteps(const Format& format, const void* const* planes, const int* steps, ZorSize size)
{
    for (int p = 0; p < format.planes; ++p) {
        const int unit = sampleBytes(format.sample);
        const bool isShort = static_cast<std::size_t>(std::llabs(steps[p])) < bytesOfRow(format, p, size.width);
        if ((isShort && rowsOf(format, p, size.height) > 1) || steps[p] % unit != 0 ||
            reinterpret_cast<std::uintptr_t>(planes[p]) % unit != 0)
            return zorStatusBadStep;
    }
    return zorStatusOk;
}

// Functions may refuse to walk upwards, and take one step for all planes that are of the same size.
bool canBePassed(const Format& format, const int* steps, int width)
{
    for (int p = 0; p < format.planes; ++p) {
        if (steps[p] < 1 || static_cast<std::size_t>(steps[p]) < bytesOfRow(format, p, width)) return false;
        if (format.layout == Layout::planar && !format.subsampled() && steps[p] != steps[0]) return false;
    }
    return true;
}

Image imageAt(const Format& format, void* const* planes, const int* steps, int y)
{
    Image image;
    for (int p = 0; p < format.planes; ++p) {
        image.plane[p] = static_cast<std::uint8_t*>(planes[p]) +
                         static_cast<std::ptrdiff_t>(steps[p]) * (y >> format.plane[p].log2Y);
        image.step[p] = steps[p];
    }
    return image;
}

void copyImage(const Format& format, const Image& from, const Image& to, ZorSize size)
{
    for (int p = 0; p < format.planes; ++p)
        copyRows(from.plane[p], from.step[p], to.plane[p], to.step[p], bytesOfRow(format, p, size.width),
                 rowsOf(format, p, size.height));
}

// ---- a strip --------------------------------------------------------------------------------------------------------

class Strip {
public:
    Strip(const Chain& itsChain, const CallersImages& images, int firstRow, std::uint8_t* memory)
        : chain(itsChain),
          last(chain.images() - 1), given{chain.size.width, std::min(chain.stripRows, chain.size.height - firstRow)},
          size{chain.wholeWidth, roundUp(given.height, chain.block.height)}
    {
        for (int i = 0; i <= last; ++i)
            for (int p = 0; p < chain.format(i).planes; ++p) {
                image[i].plane[p] = memory + chain.offsets[i][p];
                image[i].step[p] = chain.steps[i][p];
            }
        const bool isWhole = size.width == given.width && size.height == given.height;
        // Nothing writes to the source.
        callersSource = imageAt(chain.format(0), const_cast<void* const*>(images.source), images.sourceSteps, firstRow);
        callersDestination = imageAt(chain.format(last), images.destination, images.destinationSteps, firstRow);
        readsDirectly = isWhole && canBePassed(chain.format(0), images.sourceSteps, given.width);
        writesDirectly = isWhole && canBePassed(chain.format(last), images.destinationSteps, given.width);
        if (readsDirectly) image[0] = callersSource;
        if (writesDirectly) image[last] = callersDestination;
        leavePlanesInPlace();
    }

    ZorStatus run()
    {
        if (!readsDirectly) {
            copyImage(chain.format(0), callersSource, image[0], given);
            repeatEdges(chain.format(0), image[0], given, size);
        }
        for (int i = 0; i < last; ++i)
            if (const ZorStatus status = step(i); status < zorStatusOk) return status;
        if (chain.alpha != AlphaStep::none)
            moveAlpha(chain.format(0), chain.alpha == AlphaStep::copy ? &image[0] : nullptr, chain.format(last),
                      image[last], size, chain.truncates);
        if (!writesDirectly) copyImage(chain.format(last), image[last], callersDestination, given);
        return zorStatusOk;
    }

private:
    const Chain& chain;
    const int last;
    const ZorSize given, size; // with and without what fills up blocks
    Image image[Chain::maxImages];
    Image callersSource, callersDestination;
    bool readsDirectly, writesDirectly;

    // A plane that a move leaves as it is belongs to both of its images; in the last image, to the one before.
    void leavePlanesInPlace()
    {
        bool isShared[interface::maxPlanes] = {}; // of the image before
        for (int i = 0; i < last; ++i) {
            bool isSharedNext[interface::maxPlanes] = {};
            for (int p = 0; p < chain.format(i + 1).planes; ++p) {
                const int q = chain.same[i].of[p];
                if (q < 0) continue;
                if (i + 1 < last) {
                    share(image[i + 1], p, image[i], q);
                    isSharedNext[p] = true;
                } else if (i > 0 && !isShared[q]) {
                    share(image[i], q, image[last], p);
                    isShared[q] = true;
                }
            }
            std::copy(std::begin(isSharedNext), std::end(isSharedNext), isShared);
        }
    }

    static void share(Image& image, int p, const Image& with, int q)
    {
        image.plane[p] = with.plane[q];
        image.step[p] = with.step[q];
    }

    ZorStatus step(int i) const
    {
        const Format &from = chain.format(i), &to = chain.format(i + 1);
        const Function* const function = chain.route.steps[i].function;
        if (!function) {
            if (chain.route.steps[i].result.format == (i == 0 ? chain.from : chain.route.steps[i - 1].result).format)
                copyImage(from, image[i], image[i + 1], size);
            else
                move(from, image[i], to, image[i + 1], size, chain.truncates);
            return zorStatusOk;
        }
        Call call{image[i], image[i + 1], size, {}};
        call.extra.alpha = to.sample == Sample::u8 ? 255 : to.sample == Sample::u16 ? 65535 : 32767;
        call.extra.levels = 256;
        call.extra.method = chain.method;
        // In the order of memory.
        const float* const w = chain.greyWeights;
        const float reversed[3] = {w[2], w[1], w[0]};
        call.extra.weights = !chain.weighsGrey ? nullptr : from.channels[0] == 'B' ? reversed : w;
        return function->bound(call);
    }
};

} // namespace

void Chain::layOut(int rows)
{
    const auto adapt = [&](const Format& f) {
        block.width = std::max(block.width, 1 << f.log2X());
        block.height = std::max(block.height, 1 << f.log2Y());
    };
    bool whole = false;
    std::int64_t rowOfAll = 0;
    for (int i = 0; i < images(); ++i) {
        adapt(format(i));
        for (int p = 0; p < format(i).planes; ++p)
            rowOfAll += static_cast<std::int64_t>(bytesOfRow(format(i), p, size.width) >> format(i).plane[p].log2Y);
    }
    for (int i = 0; i < route.count; ++i) {
        const Function* const f = route.steps[i].function;
        if (f)
            whole |= mixesRows(*f) ||
                     (reducesDepth(*f) && method != zorDitherMethodNone && method != zorDitherMethodOrdered);
        else
            same[i] = samePlanes(format(i), format(i + 1));
    }
    wholeWidth = roundUp(size.width, block.width);
    if (rows == 0) {
        // Enough strips that threads end together.
        constexpr int stripsOfThread = 4;
        const std::int64_t shares = std::int64_t{threads} * stripsOfThread;
        rows = static_cast<int>(std::min<std::int64_t>(cachedBytes / rowOfAll, size.height));
        if (threads > 1) rows = static_cast<int>(std::min<std::int64_t>(rows, (size.height + shares - 1) / shares));
    }
    plannedThreads = threads;
    stripRows = whole ? roundUp(size.height, block.height)
                      : std::min(roundUp(std::max(rows, 1), leastRows), roundUp(size.height, leastRows));
    threads = std::min(threads, strips());
    for (int i = 0; i < images(); ++i)
        for (int p = 0; p < format(i).planes; ++p) {
            constexpr int line = 64, page = 4096;
            int step = roundUp(static_cast<int>(bytesOfRow(format(i), p, wholeWidth)), line);
            if (step % page == 0) step += line; // rows would share the same lines of a cache
            steps[i][p] = step;
            offsets[i][p] = bytesOfStrip;
            bytesOfStrip += static_cast<std::size_t>(step) * rowsOf(format(i), p, roundUp(stripRows, leastRows));
        }
}

ZorStatus Chain::check(const CallersImages& images) const
{
    const Format &source = format(0), &destination = format(route.count);
    if (checkPlanes(source, images.source) != zorStatusOk ||
        checkPlanes(destination, images.destination) != zorStatusOk)
        return zorStatusNullPointer;
    const ZorStatus status = checkSteps(source, images.source, images.sourceSteps, size);
    return status != zorStatusOk ? status : checkSteps(destination, images.destination, images.destinationSteps, size);
}

ZorStatus Chain::run(const CallersImages& images, std::uint8_t* memory) const
{
    const std::int64_t pixels = std::int64_t{size.width} * size.height;
    const int team = static_cast<int>(std::min<std::int64_t>({threads, strips(), pixels / leastShare + 1}));
    const auto strip = [&](int i, int member) {
        return Strip(*this, images, i * stripRows, memory + bytesOfStrip * member).run();
    };
    return forEachStrip(team, strips(), !isCut() && plannedThreads > 1, strip);
}

} // namespace zorcc::conversion
