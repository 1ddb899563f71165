// SPDX-License-Identifier: MIT
#include "convert/moves.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <type_traits>

#include "convert/moves_rows.h"

namespace zorcc::conversion {

using interface::sampleBytes;

namespace {

constexpr char alpha = 'A';

bool isRgbOrGrey(const Format& f) { return f.model == Model::rgb || f.model == Model::grey; }

std::uint8_t* rowAt(const Image& image, int plane, int y)
{
    return static_cast<std::uint8_t*>(image.plane[plane]) + static_cast<std::ptrdiff_t>(image.step[plane]) * y;
}

// ---- sample types ---------------------------------------------------------------------------------------------------

// Whether samples of one type are those of another times the ratio of their ranges. L*u*v* in floats is not in 0..1,
// the a* and b* of words are 255 times those of bytes, and YCoCg has a range for each type of RGB.
bool isScalable(const Format& from, const Format& to)
{
    const auto either = [&](Sample sample) { return from.sample == sample || to.sample == sample; };
    return !either(Sample::s32) && from.model != Model::lab && from.model != Model::ycocg &&
           from.model != Model::ycocgRev && !(from.model == Model::luv && either(Sample::f32));
}

template <class T> constexpr int fullScale = sizeof(T) == 1 ? 255 : 65535;
template <class T> constexpr int zeroOf = std::is_unsigned_v<T> ? 0 : sizeof(T) == 1 ? -128 : -32768;

template <class T> constexpr bool isFloat = std::is_floating_point_v<T>;

// No value of an integer type lies halfway between two of another (255 and 257 are odd): no tie to break.
template <class To, class From, bool truncate> To scaled(From value)
{
    if constexpr (std::is_same_v<To, From>) {
        return value;
    } else if constexpr (isFloat<From>) {
        const double unit = value > 0 ? std::min(static_cast<double>(value), 1.0) : 0; // NaN is 0
        return static_cast<To>(static_cast<int>(unit * fullScale<To> + (truncate ? 0 : 0.5)) + zeroOf<To>);
    } else {
        const int code = value - zeroOf<From>;
        if constexpr (isFloat<To>)
            return static_cast<To>(static_cast<double>(code) / fullScale<From>);
        else if constexpr (sizeof(To) > sizeof(From))
            return static_cast<To>(code * 257 + zeroOf<To>);
        else if constexpr (sizeof(To) < sizeof(From))
            return static_cast<To>((truncate ? code >> 8 : (code + 128) / 257) + zeroOf<To>);
        else
            return static_cast<To>(code + zeroOf<To>);
    }
}

// Calls visit(T{}) with the C++ type of a sample.
template <class Visit> void withType(Sample sample, Visit visit)
{
    switch (sample) {
    case Sample::u8:
        return visit(std::uint8_t{});
    case Sample::s8:
        return visit(std::int8_t{});
    case Sample::u16:
        return visit(std::uint16_t{});
    case Sample::s16:
        return visit(std::int16_t{});
    case Sample::s32:
        return visit(std::int32_t{});
    case Sample::f32:
        return visit(float{});
    }
}

template <class T> T opaque()
{
    if constexpr (isFloat<T>) return 1;
    if constexpr (sizeof(T) < 4) return static_cast<T>(fullScale<T> + zeroOf<T>);
    return static_cast<T>(INT32_MAX);
}

// ---- channels -------------------------------------------------------------------------------------------------------

struct Samples {
    std::uint8_t* first;
    std::ptrdiff_t step, stride;
};

Samples samplesOf(const Format& format, const Image& image, char letter)
{
    const Place place = placeOf(format, letter);
    return {rowAt(image, place.plane, 0) + place.offset, image.step[place.plane], place.stride};
}

ZorSize extentOf(const Format& format, char letter, ZorSize size)
{
    const Place place = placeOf(format, letter);
    return {size.width >> place.log2X, size.height >> place.log2Y};
}

// Samples of every format stand at multiples of their size, by the library's own check.
template <class To, class From, bool truncate>
[[gnu::always_inline]] inline void scaleRow(const std::uint8_t* s, std::ptrdiff_t sStride, std::uint8_t* d,
                                            std::ptrdiff_t dStride, int count)
{
    for (std::ptrdiff_t x = 0; x < count; ++x) {
        From value;
        std::memcpy(&value, s + sStride * x, sizeof value);
        const To result = scaled<To, From, truncate>(value);
        std::memcpy(d + dStride * x, &result, sizeof result);
    }
}

template <bool truncate>
void moveChannel(Sample from, const Samples& source, Sample to, const Samples& destination, ZorSize extent)
{
    withType(from, [&]<class From>(From) {
        withType(to, [&]<class To>(To) {
            // 32-bit integers are not scaled.
            if constexpr (std::is_same_v<To, From> ||
                          !(std::is_same_v<To, std::int32_t> || std::is_same_v<From, std::int32_t>))
                for (int y = 0; y < extent.height; ++y) {
                    const std::uint8_t* const s = source.first + source.step * y;
                    std::uint8_t* const d = destination.first + destination.step * y;
                    if (source.stride == sizeof(From) && destination.stride == sizeof(To))
                        scaleRow<To, From, truncate>(s, sizeof(From), d, sizeof(To), extent.width); // vectors
                    else
                        scaleRow<To, From, truncate>(s, source.stride, d, destination.stride, extent.width);
                }
        });
    });
}

void moveChannel(Sample from, const Samples& source, Sample to, const Samples& destination, ZorSize extent,
                 bool truncate)
{
    if (from == to && source.stride == sampleBytes(from) && destination.stride == source.stride)
        copyRows(source.first, source.step, destination.first, destination.step,
                 static_cast<std::size_t>(extent.width) * sampleBytes(from), extent.height);
    else if (truncate)
        moveChannel<true>(from, source, to, destination, extent);
    else
        moveChannel<false>(from, source, to, destination, extent);
}

void makeOpaque(Sample sample, const Samples& to, ZorSize extent)
{
    withType(sample, [&]<class T>(T) {
        const T value = opaque<T>();
        for (int y = 0; y < extent.height; ++y)
            for (std::ptrdiff_t x = 0; x < extent.width; ++x)
                std::memcpy(to.first + to.step * y + to.stride * x, &value, sizeof value);
    });
}

// ---- whole pixels ---------------------------------------------------------------------------------------------------

const MoveRows::OfSample* rowsFor(Sample sample)
{
    const MoveRows& rows = moveRows();
    return sample == Sample::u8 ? &rows.bytes : sample == Sample::u16 ? &rows.words : nullptr;
}

// The planes of some channels, as drivers take them.
zorcc::Image planesOf(const Format& format, const Image& image, std::string_view letters)
{
    zorcc::Image planes = {};
    for (char letter : letters) {
        const int p = placeOf(format, letter).plane;
        planes.plane[planes.planes] = rowAt(image, p, 0);
        planes.step[planes.planes++] = image.step[p];
    }
    return planes;
}

zorcc::Image onePlane(const Image& image) { return {{rowAt(image, 0, 0)}, {image.step[0]}, 1, true}; }

// Pixels of three or four samples in the same or in reverse order.
bool movePixels(const Format& from, const Image& source, const Format& to, const Image& destination, ZorSize size)
{
    const std::string_view a = from.channels, b = to.channels;
    const MoveRows::OfSample* const rows = rowsFor(to.sample);
    if (!rows || from.sample != to.sample || from.layout != Layout::interleaved || to.layout != Layout::interleaved)
        return false;
    if (a.size() < 3 || b.size() < 3 || (a.size() == 4 && a[3] != alpha) || (b.size() == 4 && b[3] != alpha) ||
        a[1] != b[1])
        return false;
    const MoveRows::OfPixels& pixels = a[0] == b[0] ? rows->pixels : rows->reversed;
    pixels.of[a.size() == 4][b.size() == 4](onePlane(source), onePlane(destination), size);
    return true;
}

// The channels of a plane that has all but those with planes of their own.
std::string_view sharedPlane(const Format& f)
{
    std::string_view letters = f.channels;
    if (f.layout == Layout::semiPlanar)
        letters.remove_prefix(1);
    else if (f.layout != Layout::interleaved || letters.size() == 1)
        letters = {};
    return letters;
}

// Whether what shares a plane on one side has planes of its own on the other.
bool isDivided(const Format& shared, const Format& planes)
{
    const std::string_view letters = sharedPlane(shared);
    const bool pairs = letters.size() == 2;
    if (letters.empty() || (pairs ? shared.sample != Sample::u8 : !rowsFor(shared.sample)) ||
        shared.sample != planes.sample || planes.layout != Layout::planar)
        return false;
    for (char letter : letters)
        if (!hasChannel(planes, letter)) return false;
    return true;
}

// Moves those channels, either way.
void divide(bool merges, const Format& shared, const Image& sharedImage, const Format& planes, const Image& planarImage,
            ZorSize size)
{
    const std::string_view letters = sharedPlane(shared);
    const MoveRows& rows = moveRows();
    const bool four = letters.size() == 4;
    Driver* const move = letters.size() == 2 ? (merges ? rows.mergePairs : rows.splitPairs)
                         : merges            ? rowsFor(shared.sample)->merge[four]
                                             : rowsFor(shared.sample)->split[four];
    const zorcc::Image one = planesOf(shared, sharedImage, {letters.data(), 1}),
                       many = planesOf(planes, planarImage, letters);
    move(merges ? many : one, merges ? one : many, extentOf(shared, letters[0], size));
}

// Between packed bits and the bytes of their channels.
bool moveBits(const Format& from, const Image& source, const Format& to, const Image& destination, ZorSize size)
{
    for (const MoveRows::OfBits& bits : moveRows().bits) {
        if (bits.digits != from.fieldBits && bits.digits != to.fieldBits) continue;
        (isPackedBits(from) ? bits.unpack : bits.pack)(onePlane(source), onePlane(destination), size);
        return true;
    }
    return false;
}

// All channels of a pixel, where they are in the same order.
bool scalePixels(const Format& from, const Image& source, const Format& to, const Image& destination, ZorSize size,
                 bool truncate)
{
    if (from.layout != Layout::interleaved || to.layout != Layout::interleaved || from.channels != to.channels)
        return false;
    const int count = static_cast<int>(to.channels.size());
    if (size.width > INT_MAX / count) return false;
    moveChannel(from.sample, {rowAt(source, 0, 0), source.step[0], sampleBytes(from.sample)}, to.sample,
                {rowAt(destination, 0, 0), destination.step[0], sampleBytes(to.sample)},
                {size.width * count, size.height}, truncate);
    return true;
}

// The channel of the source that becomes this one; 0 for alpha that it does not have.
char sourceOf(const Format& from, char letter)
{
    if (hasChannel(from, letter)) return letter;
    return letter == alpha ? '\0' : from.channels[0]; // grey
}

} // namespace

bool canMove(const Format& from, const Format& to, bool truncate)
{
    if (isPackedBits(from) || isPackedBits(to)) {
        const Format &bits = isPackedBits(from) ? from : to, &bytes = isPackedBits(from) ? to : from;
        return !isPackedBits(bytes) && bytes.model == Model::rgb && bytes.sample == Sample::u8 &&
               bytes.layout == Layout::interleaved && bytes.channels == bits.channels;
    }
    const bool repeatsGrey = from.model == Model::grey && to.model == Model::rgb;
    if ((from.model != to.model && !repeatsGrey) || from.log2X() != to.log2X() || from.log2Y() != to.log2Y())
        return false;
    for (char letter : to.channels)
        if (!hasChannel(from, letter) && letter != alpha && !repeatsGrey) return false;
    if (from.sample == to.sample) return true;
    const bool becomesBytes = sampleBytes(to.sample) == 1 && sampleBytes(from.sample) > 1;
    return isScalable(from, to) && !(becomesBytes && isRgbOrGrey(from) && !truncate);
}

SamePlanes samePlanes(const Format& from, const Format& to)
{
    SamePlanes same;
    if (from.sample != to.sample || isPackedBits(from) || isPackedBits(to)) return same;
    const int bytes = sampleBytes(to.sample);
    bool all = true;
    int used = 0; // planes of the source
    for (char letter : to.channels) {
        const char other = sourceOf(from, letter);
        const Place b = placeOf(to, letter), a = other ? placeOf(from, other) : Place{};
        const bool isSame = other && a.stride == bytes && b.stride == bytes;
        if (isSame) same.of[b.plane] = a.plane;
        all &= isSame;
        used += isSame;
    }
    // Functions take one step for all planes of the same size, so that these belong to one image.
    const auto takesOneStep = [](const Format& f) { return f.layout == Layout::planar && !f.subsampled(); };
    if ((takesOneStep(to) && !all) || (takesOneStep(from) && used != from.planes)) return {};
    return same;
}

int movedBytes(const Format& from, const Format& to, const SamePlanes& same)
{
    if (isPackedBits(from) || isPackedBits(to)) return 16 * (2 + 3);
    int bytes = 0;
    for (char letter : to.channels) {
        const Place place = placeOf(to, letter);
        if (same.of[place.plane] < 0)
            bytes += 16 * (sampleBytes(from.sample) + sampleBytes(to.sample)) >> (place.log2X + place.log2Y);
    }
    return bytes;
}

void move(const Format& from, const Image& source, const Format& to, const Image& destination, ZorSize size,
          bool truncate)
{
    if (moveBits(from, source, to, destination, size) || movePixels(from, source, to, destination, size) ||
        scalePixels(from, source, to, destination, size, truncate))
        return;
    std::string_view divided;
    if (isDivided(from, to)) {
        divide(false, from, source, to, destination, size);
        divided = sharedPlane(from);
    } else if (isDivided(to, from)) {
        divide(true, to, destination, from, source, size);
        divided = sharedPlane(to);
    }
    for (char letter : to.channels) {
        if (divided.find(letter) != std::string_view::npos) continue;
        const Samples samples = samplesOf(to, destination, letter);
        const ZorSize extent = extentOf(to, letter, size);
        if (const char other = sourceOf(from, letter); !other)
            makeOpaque(to.sample, samples, extent);
        else if (const Samples s = samplesOf(from, source, other); s.first != samples.first)
            moveChannel(from.sample, s, to.sample, samples, extent, truncate);
    }
}

void moveAlpha(const Format& from, const Image* source, const Format& to, const Image& destination, ZorSize size,
               bool truncate)
{
    const Samples samples = samplesOf(to, destination, alpha);
    if (source)
        moveChannel(from.sample, samplesOf(from, *source, alpha), to.sample, samples, size, truncate);
    else
        makeOpaque(to.sample, samples, size);
}

void repeatEdges(const Format& format, const Image& image, ZorSize filled, ZorSize size)
{
    const auto repeat = [&](const Samples& samples, int bytes, ZorSize given, ZorSize all) {
        for (int y = 0; y < given.height; ++y) {
            std::uint8_t* const row = samples.first + samples.step * y;
            for (int x = given.width; x < all.width; ++x)
                std::memcpy(row + samples.stride * x, row + samples.stride * (given.width - 1), bytes);
        }
    };
    const auto up = [](int pixels, int log2) { return (pixels + (1 << log2) - 1) >> log2; };
    if (isPackedBits(format)) {
        repeat({rowAt(image, 0, 0), image.step[0], 2}, 2, filled, size);
    } else {
        for (char letter : format.channels) {
            const Place place = placeOf(format, letter);
            repeat(samplesOf(format, image, letter), sampleBytes(format.sample),
                   {up(filled.width, place.log2X), up(filled.height, place.log2Y)},
                   {size.width >> place.log2X, size.height >> place.log2Y});
        }
    }
    for (int p = 0; p < format.planes; ++p)
        for (int y = rowsOf(format, p, filled.height); y < rowsOf(format, p, size.height); ++y)
            std::memcpy(rowAt(image, p, y), rowAt(image, p, y - 1), bytesOfRow(format, p, size.width));
}

void copyRows(const void* from, std::ptrdiff_t fromStep, void* to, std::ptrdiff_t toStep, std::size_t bytes, int rows)
{
    for (std::ptrdiff_t y = 0; y < rows; ++y)
        std::memcpy(static_cast<std::uint8_t*>(to) + toStep * y, static_cast<const std::uint8_t*>(from) + fromStep * y,
                    bytes);
}

} // namespace zorcc::conversion
