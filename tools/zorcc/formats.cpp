// SPDX-License-Identifier: MIT
#include "formats.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "error.h"
#include "names.h"

namespace zorcc::tool {

using interface::Layout;

namespace {

template <class T> constexpr double fullScale = 1;
template <> constexpr double fullScale<std::uint8_t> = 255;
template <> constexpr double fullScale<std::int8_t> = 255;
template <> constexpr double fullScale<std::uint16_t> = 65535;
template <> constexpr double fullScale<std::int16_t> = 65535;

// What stands for 0.
template <class T> constexpr double zeroOf = 0;
template <> constexpr double zeroOf<std::int8_t> = -128;
template <> constexpr double zeroOf<std::int16_t> = -32768;

// No value of an integer type lies halfway between two of another (255 and 65535 / 255 are odd): no tie to break.
template <class To, class From> To converted(From value)
{
    if constexpr (std::is_same_v<To, From>) return value;
    const double unit = std::clamp((value - zeroOf<From>) / fullScale<From>, 0.0, 1.0);
    if constexpr (std::is_floating_point_v<To>) return static_cast<To>(unit);
    return static_cast<To>(std::isnan(unit) ? 0 : std::lround(unit * fullScale<To> + zeroOf<To>));
}

template <class T> T load(const std::uint8_t* from)
{
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

template <class T> void fill(const Channel& to, T value)
{
    for (int y = 0; y < to.height; ++y)
        for (int x = 0; x < to.width; ++x) std::memcpy(to.first + to.step * y + to.stride * x, &value, sizeof value);
}

// A sample beyond the source repeats its last one.
template <class From, class To> void copy(const Channel& from, const Channel& to)
{
    for (int y = 0; y < to.height; ++y) {
        const std::uint8_t* const source = from.first + from.step * std::min(y, from.height - 1);
        std::uint8_t* const destination = to.first + to.step * y;
        if (std::is_same_v<From, To> && from.stride == sizeof(From) && to.stride == sizeof(To) &&
            from.width >= to.width) {
            std::memcpy(destination, source, sizeof(To) * to.width);
            continue;
        }
        for (int x = 0; x < to.width; ++x) {
            const To value = converted<To>(load<From>(source + from.stride * std::min(x, from.width - 1)));
            std::memcpy(destination + to.stride * x, &value, sizeof value);
        }
    }
}

// Pixels of interleaved bytes in another order of channels: alpha that does not exist is opaque.
template <int from, int to> void reorder(const Picture& source, const Picture& destination, const int (&index)[4])
{
    const int width = source.size().width;
    for (int y = 0; y < source.size().height; ++y) {
        const std::uint8_t* in = source.row(0, y);
        std::uint8_t* out = destination.row(0, y);
        for (int x = 0; x < width; ++x, in += from, out += to)
            for (int c = 0; c < to; ++c) out[c] = index[c] < from ? in[index[c]] : 255;
    }
}

bool isInterleavedBytes(const Format& format)
{
    return format.layout == Layout::interleaved && format.sample == Sample::u8 && format.channels.size() >= 3;
}

// Whether one has red first and the other blue, and nothing else differs: bgr24 and rgb24.
bool areMirrored(const Format& from, const Format& to)
{
    return from.layout == Layout::interleaved && to.layout == Layout::interleaved && from.sample == Sample::u8 &&
           to.sample == Sample::u8 && from.channels.size() == 3 && to.channels.size() == 3 &&
           std::equal(from.channels.begin(), from.channels.end(), to.channels.rbegin());
}

// The library's matrix exchanges the outer channels in place, exactly, and faster than a loop over bytes.
void mirror(const Picture& picture)
{
    static constexpr float exchange[3][4] = {{0, 0, 1, 0}, {0, 1, 0, 0}, {1, 0, 0, 0}};
    zoriColorTwist32f_8u_C3IR(static_cast<std::uint8_t*>(picture.image().plane[0]), picture.image().step[0],
                              picture.size(), exchange);
}

// What rearranged() does with most pictures of colours.
void reorder(const Picture& from, const Picture& to)
{
    const std::string_view before = from.format().channels, after = to.format().channels;
    int index[4] = {};
    for (std::size_t c = 0; c < after.size(); ++c)
        index[c] = static_cast<int>(std::min(before.find(after[c]), before.size()));
    const bool fromFour = before.size() == 4, toFour = after.size() == 4;
    if (fromFour)
        toFour ? reorder<4, 4>(from, to, index) : reorder<4, 3>(from, to, index);
    else
        toFour ? reorder<3, 4>(from, to, index) : reorder<3, 3>(from, to, index);
}

// Whether samples of one type are those of another times the ratio of their ranges. L*u*v* in floats is not in 0..1,
// the a* and b* of words are 255 times those of bytes, and YCoCg has a range for each type of RGB.
bool isScalable(const Format& from, const Format& to)
{
    const auto either = [&](Sample sample) { return from.sample == sample || to.sample == sample; };
    return !either(Sample::s32) && from.model != interface::Model::lab && !isYCoCg(from) &&
           !(from.model == interface::Model::luv && either(Sample::f32));
}

// Calls visit(T{}) with the C++ type of a sample.
template <class Visit> void withType(Sample sample, Visit visit)
{
    if (sample == Sample::u8)
        visit(std::uint8_t{});
    else if (sample == Sample::s8)
        visit(std::int8_t{});
    else if (sample == Sample::f32)
        visit(float{});
    else if (sample == Sample::s16)
        visit(std::int16_t{});
    else
        visit(std::uint16_t{});
}

void copyChannel(const Picture& from, const Channel& source, const Picture& to, const Channel& destination)
{
    withType(from.format().sample, [&]<class From>(From) {
        withType(to.format().sample, [&]<class To>(To) {
            // Chroma of a picture that is too small to have any is neutral.
            if (source.width == 0 || source.height == 0)
                fill(destination, converted<To>(std::uint8_t{128}));
            else
                copy<From, To>(source, destination);
        });
    });
}

void setOpaque(const Picture& picture, const Channel& channel)
{
    withType(picture.format().sample, [&]<class T>(T) { fill(channel, converted<T>(std::uint8_t{255})); });
}

// Fields of a word of 16 bits, the first channel lowest, and the top bits of bytes.
struct Fields {
    int bits[3];

    explicit Fields(const Format& format)
        : bits{format.fieldBits / 100, format.fieldBits / 10 % 10, format.fieldBits % 10}
    {
    }

    std::uint16_t pack(const std::uint8_t* bytes) const
    {
        unsigned word = 0;
        for (int c = 2; c >= 0; --c) word = word << bits[c] | bytes[c] >> (8 - bits[c]);
        return static_cast<std::uint16_t>(word);
    }

    void unpack(unsigned word, std::uint8_t* bytes) const
    {
        for (int c = 0; c < 3; word >>= bits[c++]) bytes[c] = static_cast<std::uint8_t>(word << (8 - bits[c]));
    }
};

// Visits the words of a picture with packed bits and the three bytes of each pixel of another.
template <class Visit> void eachWord(const Picture& packed, const Picture& bytes, Visit visit)
{
    for (int y = 0; y < packed.size().height; ++y)
        for (std::ptrdiff_t x = 0; x < packed.size().width; ++x)
            visit(packed.row(0, y) + 2 * x, bytes.row(0, y) + 3 * x);
}

// The three channels in the order of the fields.
const Format& bytesOf(const Format& packed)
{
    return packed.channels == "RGB" ? interface::formats::rgb24 : interface::formats::bgr24;
}

Picture unpacked(const Picture& picture)
{
    Picture bytes(bytesOf(picture.format()), picture.size(), picture.visible());
    const Fields fields(picture.format());
    eachWord(picture, bytes,
             [&](const std::uint8_t* word, std::uint8_t* pixel) { fields.unpack(load<std::uint16_t>(word), pixel); });
    return bytes;
}

void pack(const Picture& bytes, const Picture& to)
{
    const Fields fields(to.format());
    eachWord(to, bytes, [&](std::uint8_t* word, const std::uint8_t* pixel) {
        const std::uint16_t packed = fields.pack(pixel);
        std::memcpy(word, &packed, sizeof packed);
    });
}

} // namespace

const std::vector<const Format*>& namedFormats()
{
    static const std::vector<const Format*> all = [] {
        std::vector<const Format*> found;
        for (const interface::Function& function : interface::functions())
            for (const Format* format : {function.source, function.destination})
                if (std::none_of(found.begin(), found.end(), [&](const Format* f) { return f->name == format->name; }))
                    found.push_back(format);
        std::sort(found.begin(), found.end(), [](const Format* f, const Format* g) { return f->name < g->name; });
        return found;
    }();
    return all;
}

const Format& formatNamed(const std::string& name)
{
    static constexpr std::pair<std::string_view, std::string_view> aliases[] = {
        // Elsewhere the channel in the highest bits is named first.
        {"rgb565le", "bgr565"}, {"bgr565le", "rgb565"},   {"rgb555le", "bgr555"}, {"bgr555le", "rgb555"},
        {"rgb444le", "bgr444"}, {"bgr444le", "rgb444"},   {"yuyv422", "yuy2"},    {"uyvy422", "uyvy"},
        {"yvyu422", "yvyu"},    {"iyuv", "i420"},         {"gray", "grey8"},      {"gray8", "grey8"},
        {"gray16le", "grey16"}, {"grayf32le", "greyf32"}, {"rgb48le", "rgb48"},   {"rgba64le", "rgba64"}};
    std::string known = inSmallLetters(name);
    for (const auto& [alias, format] : aliases)
        if (known == alias) known = format;
    std::vector<std::string> names;
    for (const Format* format : namedFormats()) {
        if (format->name == known) return *format;
        names.emplace_back(format->name);
    }
    for (const auto& [alias, format] : aliases) names.emplace_back(alias);
    throw UsageError("unknown format " + quoted(name) + nearest(name, names) + " (zorcc list --formats shows all)");
}

const Format* formatOfModel(const std::string& name, const Format& from)
{
    const Format* deep = nullptr;
    for (const interface::Function& function : interface::functions()) {
        const Format& format = *function.destination;
        if (isRgb(format) || isYuv(format) || interface::propertiesOf(format.model).name != inSmallLetters(name) ||
            format.layout != Layout::interleaved || format.channels.size() != 3)
            continue;
        if (format.sample == from.sample) return &format;
        if (format.sample == Sample::u16) deep = &format;
    }
    return deep;
}

const Format& pictureFormat(bool grey, bool alpha, Sample sample)
{
    using namespace interface::formats;
    if (sample == Sample::f32) return grey ? greyf32 : rgbf32;
    if (sample == Sample::u16 || sample == Sample::s16) return grey ? grey16 : alpha ? rgba64 : rgb48;
    return grey ? grey8 : alpha ? rgba : rgb24;
}

const Format* twin(const Format& format, interface::Model model)
{
    using namespace interface::formats;
    // What files hold although no function has it.
    static constexpr const Format* others[] = {&planar<interface::Model::bt709, 3, 1>,
                                               &planar<interface::Model::bt709full, 3>,
                                               &planar<interface::Model::bt709full, 3, 1>};
    const auto isTwin = [&](const Format& f) { return f.model == model && haveSameMemory(f, format); };
    if (isTwin(format)) return &format;
    for (const interface::Function& function : interface::functions())
        for (const Format* f : {function.source, function.destination})
            if (isTwin(*f)) return f;
    for (const Format* f : others)
        if (isTwin(*f)) return f;
    return nullptr;
}

const Format& withModel(const Format& format, interface::Model model)
{
    if (const Format* const found = twin(format, model)) return *found;
    throw Cause(std::string(format.name) + " exists by another matrix only");
}

bool isSameModel(interface::Model a, interface::Model b)
{
    using interface::Model;
    if (a == Model::anyYcc || b == Model::anyYcc) return interface::isYcc(a) && interface::isYcc(b);
    const auto isRgb = [](Model model) { return model == Model::rgb || model == Model::grey; };
    return a == b || (isRgb(a) && isRgb(b));
}

const Format& planarYuv(const Format& format)
{
    using namespace interface::formats;
    const Format& yuv = format.log2X() > 1 && format.log2Y() == 0 ? i411
                        : format.log2Y() > 0                      ? yuv420p
                        : format.log2X() > 0                      ? yuv422p
                                                                  : yuv444p;
    return withModel(yuv, format.model);
}

std::optional<int> rearrangementCost(const Format& from, const Format& to)
{
    if (&from == &to || (haveSameMemory(from, to) && isSameModel(from.model, to.model))) return 0;
    if (isGrey(from) && to.model == interface::Model::mosaic && from.sample == to.sample) return 1;
    if (!isSameModel(from.model, to.model) || from.log2X() != to.log2X() || from.log2Y() != to.log2Y()) return {};
    int cost = 1;
    for (char letter : to.channels)
        if (from.channels.find(letter) == std::string_view::npos) {
            if (letter != 'A' && !isGrey(from)) return {};
            cost += 2;
        }
    for (char letter : from.channels) cost += 2 * (to.channels.find(letter) == std::string_view::npos);
    cost += 2 * (from.layout != to.layout);
    if (to.layout == Layout::packedBits) return cost + 32; // loses most of all
    if (from.sample != to.sample) {
        if (!isScalable(from, to)) return {};
        const int bytes = interface::sampleBytes(from.sample), bytesAfter = interface::sampleBytes(to.sample);
        cost += bytes > bytesAfter ? 16 : bytes < bytesAfter ? 8 : 4;
    }
    return cost;
}

Picture rearranged(Picture picture, const Format& to, ZorSize size)
{
    if (haveSameMemory(picture.format(), to) && picture.size() == size) return std::move(picture).takenFor(to);
    if (areMirrored(picture.format(), to) && picture.size() == size) {
        mirror(picture);
        return std::move(picture).takenFor(to);
    }
    const ZorSize visible = {std::min(picture.visible().width, size.width),
                             std::min(picture.visible().height, size.height)};
    const bool fillsAll = wholeBlocks(size, to) == size;
    Picture result(to, size, visible, fillsAll ? Contents::any : Contents::zeros);
    if (isInterleavedBytes(picture.format()) && isInterleavedBytes(to) && picture.size() == size && visible == size) {
        reorder(picture, result);
        return result;
    }
    if (&picture.format() == &to && to.layout == Layout::packedBits) { // one sample a pixel, whatever it means
        copy<std::uint16_t, std::uint16_t>(
            {picture.row(0, 0), picture.image().step[0], 2, picture.visible().width, picture.visible().height},
            {result.row(0, 0), result.image().step[0], 2, size.width, size.height});
        return result;
    }
    if (to.layout == Layout::packedBits) {
        pack(rearranged(std::move(picture), bytesOf(to), size), result);
        return result;
    }
    if (picture.format().layout == Layout::packedBits) return rearranged(unpacked(picture), to, size);
    const std::string_view letters = picture.format().channels;
    for (char letter : to.channels) {
        const Channel destination = channelOf(result, letter, size);
        const bool exists = letters.find(letter) != std::string_view::npos;
        if (!exists && letter == 'A')
            setOpaque(result, destination);
        else
            copyChannel(picture, channelOf(picture, exists ? letter : letters[0], picture.visible()), result,
                        destination);
    }
    return result;
}

void copyAlpha(const Picture& from, const Picture& to)
{
    copyChannel(from, channelOf(from, 'A', from.visible()), to, channelOf(to, 'A', to.visible()));
}

void setOpaque(const Picture& picture)
{
    if (hasAlpha(picture.format())) setOpaque(picture, channelOf(picture, 'A', picture.size()));
}

} // namespace zorcc::tool
