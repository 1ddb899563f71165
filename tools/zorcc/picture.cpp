// SPDX-License-Identifier: MIT
#include "picture.h"

#include <algorithm>
#include <climits>
#include <mutex>
#include <vector>

#include "error.h"

namespace zorcc::tool {

using interface::Layout;

namespace {

constexpr std::size_t alignment = 64;

constexpr std::size_t aligned(std::size_t bytes) { return (bytes + alignment - 1) / alignment * alignment; }

// Blocks of destroyed pictures, for new ones. A video needs the same sizes for every picture, and the system's pages
// for a new large block cost about as much as a conversion.
class Pool {
public:
    void* take(std::size_t bytes)
    {
        const std::lock_guard lock(mutex);
        for (Block& block : blocks)
            if (block.bytes == bytes) return std::exchange(block, Block{}).memory;
        return nullptr;
    }

    // Whether the block is kept.
    bool give(void* memory, std::size_t bytes)
    {
        if (bytes > largest) return false;
        const std::lock_guard lock(mutex);
        Block& oldest = blocks[next];
        next = (next + 1) % std::size(blocks);
        std::free(std::exchange(oldest, Block{memory, bytes}).memory);
        return true;
    }

private:
    struct Block {
        void* memory = nullptr;
        std::size_t bytes = 0;
    };

    static constexpr std::size_t largest = 64 << 20;

    std::mutex mutex;
    Block blocks[8];
    std::size_t next = 0;
};

constinit Pool pool;

int roundUp(int value, int log2)
{
    const std::int64_t rounded = (static_cast<std::int64_t>(value) + (1 << log2) - 1) >> log2 << log2;
    if (rounded > INT_MAX) throw Cause("a side of " + std::to_string(value) + " pixels is too long");
    return static_cast<int>(rounded);
}

// Planes with shared chroma are in files as a whole.
std::size_t rowBytesInFile(const Format& format, int plane, ZorSize size, ZorSize visible)
{
    const bool shared = format.plane[plane].log2X > 0 || format.layout == Layout::packed422;
    return interface::rowBytes(format, plane, shared ? size.width : visible.width);
}

int rowsInFile(const Format& format, int plane, ZorSize size, ZorSize visible)
{
    return interface::rows(format, plane, format.plane[plane].log2Y > 0 ? size.height : visible.height);
}

// Samples of a channel that `pixels` pixels share by 1 << log2, of which `stored` exist.
int sharedSamples(int pixels, int log2, int stored) { return std::min((pixels + (1 << log2) - 1) >> log2, stored); }

} // namespace

std::string sizeName(ZorSize size) { return std::to_string(size.width) + "x" + std::to_string(size.height); }

ZorSize wholeBlocks(ZorSize size, int log2X, int log2Y)
{
    return {roundUp(size.width, log2X), roundUp(size.height, log2Y)};
}

void checkRowBytes(const Format& format, ZorSize size)
{
    for (int p = 0; p < format.planes; ++p)
        if (interface::rowBytes(format, p, size.width) > INT_MAX)
            throw Cause(sizeName(size) + " pixels: rows are longer than 2 GiB");
}

void checkPixels(ZorSize size)
{
    if (static_cast<std::int64_t>(size.width) * size.height > maxPixels)
        throw Cause(sizeName(size) + " pixels are more than the " + std::to_string(maxPixels) +
                    " that --max-pixels allows");
}

Picture::Picture(const Format& format, ZorSize size, ZorSize visible, Contents contents)
    : pixelFormat(&format), whole(size), shown(visible), memory(nullptr, Release{0})
{
    checkRowBytes(format, size); // and so no product below reaches 2^62
    interface::setContiguousSteps(format, size.width, planes);
    std::size_t offset[interface::maxPlanes] = {}, bytes = 0;
    for (int p = 0; p < format.planes; ++p) {
        offset[p] = bytes;
        bytes += aligned(interface::rowBytes(format, p, size.width) * interface::rows(format, p, size.height));
    }
    std::size_t space = bytes + alignment;
    memory = {contents == Contents::any ? pool.take(space) : nullptr, Release{space}};
    // calloc, because its zeros cost nothing before they are touched: a damaged file may promise any size.
    if (!memory && bytes <= PTRDIFF_MAX - alignment) memory.reset(std::calloc(space, 1));
    if (!memory) throw Cause(sizeName(size) + " pixels: not enough memory");
    void* first = memory.get();
    std::align(alignment, bytes, first, space);
    for (int p = 0; p < format.planes; ++p) planes.plane[p] = static_cast<std::uint8_t*>(first) + offset[p];
}

void Picture::Release::operator()(void* block) const
{
    if (!pool.give(block, bytes)) std::free(block);
}

Picture Picture::takenFor(const Format& format) &&
{
    Picture same = std::move(*this);
    same.pixelFormat = &format;
    return same;
}

Picture Picture::takenFor(Colour colour) &&
{
    Picture same = std::move(*this);
    same.colourOfSamples = std::move(colour);
    return same;
}

std::size_t Picture::visibleRowBytes(int plane) const { return rowBytesInFile(*pixelFormat, plane, whole, shown); }

int Picture::visibleRows(int plane) const { return rowsInFile(*pixelFormat, plane, whole, shown); }

std::uint64_t bytesInFile(const Format& format, ZorSize size, ZorSize visible)
{
    std::uint64_t bytes = 0;
    for (int p = 0; p < format.planes; ++p)
        bytes +=
            static_cast<std::uint64_t>(rowBytesInFile(format, p, size, visible)) * rowsInFile(format, p, size, visible);
    return bytes;
}

Channel channelOf(const Picture& picture, char letter, ZorSize extent)
{
    const Format& format = picture.format();
    const std::size_t index = format.channels.find(letter);
    const int bytes = interface::sampleBytes(format.sample);
    int plane = 0;
    std::size_t position = index; // of the first sample in a row, in samples
    if (format.layout == Layout::planar) plane = static_cast<int>(index), position = 0;
    if (format.layout == Layout::semiPlanar && index > 0) plane = 1, position = index - 1;

    const interface::PlaneShape& shape = format.plane[plane];
    int stride = shape.samples * bytes, width = extent.width;
    if (format.layout == Layout::packed422) {
        const std::size_t second = format.channels.find(letter, index + 1);
        const int distance = second == std::string_view::npos ? 4 : static_cast<int>(second - index);
        stride = distance * bytes;
        if (distance == 4) { // an odd last pixel has the samples of its own two bytes
            const std::int64_t stored = (2ll * picture.size().width - static_cast<int>(position) + 3) / 4;
            width = sharedSamples(extent.width, 1, static_cast<int>(stored));
        }
    } else if (shape.log2X > 0) {
        width = sharedSamples(extent.width, shape.log2X,
                              interface::sharedSamples(format, picture.size().width, shape.log2X));
    }
    const int height = shape.log2Y > 0
                           ? sharedSamples(extent.height, shape.log2Y,
                                           interface::sharedSamples(format, picture.size().height, shape.log2Y))
                           : extent.height;
    return {picture.row(plane, 0) + position * bytes, picture.image().step[plane], stride, width, height};
}

} // namespace zorcc::tool
