// SPDX-License-Identifier: MIT
#include "conversion.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "error.h"
#include "formats.h"
#include "function_run.h"
#include "messages.h"

namespace zorcc::tool {

namespace {

ZorPicture pictureOf(const PictureKind& kind, ZorSize size)
{
    const Colour& colour = kind.colour;
    return {kind.format->name.data(), colour.matrix.empty() ? nullptr : colour.matrix.c_str(), colour.range, size};
}

// A sample beyond the source repeats its last one.
void copy(const Channel& from, const Channel& to, int bytes)
{
    for (int y = 0; y < to.height; ++y) {
        const std::uint8_t* const source = from.first + from.step * std::min(y, from.height - 1);
        std::uint8_t* const destination = to.first + to.step * y;
        for (int x = 0; x < to.width; ++x)
            std::memcpy(destination + to.stride * x, source + from.stride * std::min(x, from.width - 1), bytes);
    }
}

void fill(const Channel& to, const void* sample, int bytes)
{
    for (int y = 0; y < to.height; ++y)
        for (int x = 0; x < to.width; ++x) std::memcpy(to.first + to.step * y + to.stride * x, sample, bytes);
}

// All channels of packed bits are one.
Channel channelAt(const Picture& picture, std::size_t index, ZorSize extent)
{
    if (picture.format().fieldBits == 0) return channelOf(picture, picture.format().channels[index], extent);
    return {picture.row(0, 0), picture.image().step[0], 2, extent.width, extent.height};
}

} // namespace

Conversion::Conversion(const PictureKind& from, const PictureKind& to, ZorSize size, const ZorPlanOptions& options,
                       std::nothrow_t)
    : source(from.format), destination(to.format)
{
    const ZorPicture ends[2] = {pictureOf(from, size), pictureOf(to, size)};
    plan.reset(zorPlanCreate(&ends[0], &ends[1], &options));
    if (zorPlanStatus(plan.get()) == zorStatusNoMemory) throw Cause("not enough memory");
    if (ZorColour found; isYuv(*to.format) && zorPictureColour(&ends[1], &found) == zorStatusOk)
        colour = {found.matrix, found.range};
}

Conversion::Conversion(const PictureKind& from, const PictureKind& to, ZorSize size, const ZorPlanOptions& options)
    : Conversion(from, to, size, options, std::nothrow)
{
    if (!exists()) throw Cause(words());
}

Picture Conversion::keepingColour(Picture picture) const
{
    const Colour before = picture.colour();
    return (*this)(std::move(picture)).takenFor(before);
}

bool Conversion::isIdentity() const
{
    return source == destination && *zorPlanStepFunction(plan.get(), 0) == 0 && !zorPlanStepFunction(plan.get(), 1);
}

Picture Conversion::operator()(Picture picture) const
{
    double seconds = 0;
    return timed(std::move(picture), 1, seconds);
}

Picture Conversion::timed(Picture picture, int repeat, double& seconds) const
{
    const ZorSize visible = picture.visible(), before = wholeBlocks(visible, *source);
    if (!(picture.size() == before)) picture = resized(std::move(picture), *source, before);
    seconds = 0;
    if (isIdentity()) return std::move(picture).takenFor(*destination).takenFor(colour);
    const ZorSize after = wholeBlocks(visible, *destination);
    Picture result(*destination, after, visible, after == visible ? Contents::any : Contents::zeros);
    seconds = fastestRun(repeat, [&] {
        const ZorStatus status = zorPlanRun(plan.get(), picture.image().plane, picture.image().step,
                                            result.image().plane, result.image().step);
        if (status == zorStatusNoMemory) throw Cause("not enough memory");
        if (status != zorStatusOk) throw Cause("the conversion returned " + std::to_string(status));
    });
    return std::move(result).takenFor(colour);
}

std::string Conversion::functions() const
{
    std::string names;
    for (int i = 0; const char* const name = zorPlanStepFunction(plan.get(), i); ++i)
        if (*name != 0) names += (names.empty() ? "" : ", ") + std::string(name);
    return !names.empty() ? names : isIdentity() ? "samples stay where they are" : "samples change places";
}

std::string Conversion::words() const
{
    const std::string lines = zorPlanDescribe(plan.get());
    return exists() && isIdentity() ? lines.substr(0, lines.find('\n') + 1) + functions() : lines;
}

std::string Conversion::losses() const { return zorPlanLosses(plan.get()); }

bool Conversion::keepsColours() const
{
    const auto isRgb = [](interface::Model m) { return m == interface::Model::rgb || m == interface::Model::grey; };
    for (int i = 0; const char* const name = zorPlanStepFunction(plan.get(), i); ++i) {
        const interface::Function* const f = interface::findFunction(name);
        if (f && f->source->model != f->destination->model &&
            !(isRgb(f->source->model) && isRgb(f->destination->model)))
            return false;
    }
    return true;
}

std::optional<Conversion> findRearrangement(const Format& from, const Format& to, ZorSize size)
{
    if (from.log2X() != to.log2X() || from.log2Y() != to.log2Y()) return {};
    ZorPlanOptions options = Conversion::usual;
    options.grey = zorGreyRefuse;
    Conversion conversion({&layerFormat(from)}, {&layerFormat(to)}, size, options, std::nothrow);
    if (!conversion.exists() || !conversion.keepsColours()) return {};
    return conversion;
}

Picture rearranged(Picture picture, const Format& to, const std::string& file)
{
    if (areSame(picture.format(), to) && picture.size() == wholeBlocks(picture.visible(), to))
        return std::move(picture).takenFor(to);
    const auto conversion = findRearrangement(picture.format(), to, picture.visible());
    if (!conversion)
        throw Cause("samples of " + std::string(picture.format().name) + " are none of " + std::string(to.name));
    if (!file.empty()) warnOfLosses(file, conversion->losses());
    return conversion->keepingColour(std::move(picture));
}

Picture resized(Picture picture, const Format& to, ZorSize size)
{
    const ZorSize visible = picture.visible();
    if (picture.size() == size && visible == size && picture.format().roundsUp == to.roundsUp)
        return std::move(picture).takenFor(to);
    const ZorSize shown = {std::min(visible.width, size.width), std::min(visible.height, size.height)};
    Picture result(to, size, shown);
    for (std::size_t i = 0; i < (to.fieldBits != 0 ? 1 : to.channels.size()); ++i) {
        const Channel from = channelAt(picture, i, visible), into = channelAt(result, i, size);
        const int bytes = interface::sampleBytes(to.sample);
        // Chroma, of bytes, of a picture that is too small to have any is neutral.
        constexpr std::uint8_t neutral = 128;
        if (from.width == 0 || from.height == 0)
            fill(into, &neutral, 1);
        else
            copy(from, into, bytes);
    }
    return std::move(result).takenFor(picture.colour());
}

std::optional<Picture> asSource(Picture picture, const Format& source)
{
    const ZorSize size = picture.visible();
    const bool isMosaic =
        isGrey(picture.format()) && hasChannel(source, 'M') && picture.format().sample == source.sample;
    if (!isMosaic && !areSame(picture.format(), source)) {
        const auto conversion = findRearrangement(picture.format(), source, size);
        if (!conversion) return {};
        picture = conversion->keepingColour(std::move(picture));
    }
    return resized(std::move(picture), source, size);
}

void copyAlpha(const Picture& from, const Picture& to)
{
    copy(channelOf(from, 'A', from.visible()), channelOf(to, 'A', to.visible()),
         interface::sampleBytes(to.format().sample));
}

void setOpaque(const Picture& picture)
{
    if (!hasAlpha(picture.format())) return;
    const Channel alpha = channelOf(picture, 'A', picture.size());
    const auto set = [&](auto value) { fill(alpha, &value, sizeof value); };
    switch (picture.format().sample) {
    case Sample::u8:
        return set(std::uint8_t{255});
    case Sample::s8:
        return set(std::int8_t{127});
    case Sample::u16:
        return set(std::uint16_t{65535});
    case Sample::s16:
        return set(std::int16_t{32767});
    case Sample::s32:
        return set(std::numeric_limits<std::int32_t>::max());
    case Sample::f32:
        return set(1.0f);
    }
}

} // namespace zorcc::tool
