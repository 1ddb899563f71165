// SPDX-License-Identifier: MIT
#include <iostream>

#include "commands.h"
#include "conversion.h"
#include "error.h"
#include "io/file_kind.h"
#include "io/writer.h"
#include "progress.h"
#include "srgb.h"

namespace zorcc::tool {

namespace {

// The samples of RGB that a picture is usually made from: of signed YCoCg, which has a bit more, half as many bits.
Sample usualSample(const Format& format)
{
    if (!isYCoCg(format)) return format.sample;
    return format.sample == Sample::s32 ? Sample::u16 : Sample::u8;
}

// The format of a file where the user gives none: one that it can hold, without a conversion where possible.
const Format& usualFormat(const std::string& out, const Format& from)
{
    switch (fileKindToWrite(out)) {
    case FileKind::raw:
        throw UsageError(out + ": a .raw file needs --to FORMAT");
    case FileKind::y4m:
        return isRgb(from) ? interface::formats::yuv420p : planarYuv(from);
    case FileKind::yuv:
        return isRgb(from) ? interface::formats::yuv420p : from;
    default:
        return from.fieldBits != 0 ? interface::formats::rgb24
               : isRgb(from)       ? from
               : isYuv(from)       ? interface::formats::rgb24
                                   : pictureFormat(false, hasAlpha(from), usualSample(from));
    }
}

// The matrix that the format implies.
Matrix ownMatrix(const Format& format)
{
    if (isRgb(format) || format.model == interface::Model::anyYcc) return {};
    return format.model;
}

// What RGB becomes first where it is to be dithered, which the library does from luma and chroma.
const Format& ditheredSource() { return withModel(interface::formats::yuv444p, interface::Model::bt601); }

} // namespace

void convert(const ConvertOptions& options)
{
    fileKindToWrite(options.out); // reports a bad name before any work
    // A format, or a model whose format depends on the samples of the input.
    const bool ofModel = formatOfModel(options.to, interface::formats::rgb24);
    const Format* const asked = options.to.empty() || ofModel ? nullptr : &formatNamed(options.to);
    const auto reader = openInput(options.in, nullptr, OddSizes::roundUp);
    const auto writer = openWriter(options.out, reader->tags());
    Stats stats{options.timing.repeat}, preparationStats{options.timing.repeat};
    std::optional<Conversion> conversion, preparation;
    const Format* from = nullptr;
    writeAll(*reader, *writer, [&](Picture picture) {
        if (!conversion || from != &picture.format()) {
            from = &picture.format();
            const Format& to = ofModel ? *formatOfModel(options.to, *from)
                               : asked ? *asked
                                       : usualFormat(options.out, *from);
            if (options.deinterlace) preparation = findDeinterlacing(*from, to);
            if (options.dither && isRgb(*from)) preparation = findConversion(*from, ditheredSource());
            const Matrix own = options.in.matrix ? options.in.matrix : ownMatrix(*from);
            conversion = findConversion(preparation ? *preparation->target : *from,
                                        byMatrix(to, own.value_or(interface::Model::yuv)), own, options.dither);
        }
        if (options.linear && isRgb(*from)) picture = linearFromSrgb(std::move(picture));
        if (preparation) picture = (*preparation)(std::move(picture), preparationStats);
        picture = (*conversion)(std::move(picture), stats);
        return options.linear && isRgb(*conversion->target) ? srgbFromLinear(std::move(picture)) : std::move(picture);
    });
    if (!options.timing.stats) return;
    if (preparation) std::cout << preparationStats.line();
    std::cout << (stats.function ? stats.line() : "rearranged without a function of the library\n");
}

} // namespace zorcc::tool
