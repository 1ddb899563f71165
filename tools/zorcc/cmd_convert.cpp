// SPDX-License-Identifier: MIT
#include <deque>
#include <mutex>
#include <vector>

#include "commands.h"
#include "conversion.h"
#include "error.h"
#include "messages.h"
#include "names.h"
#include "pipeline.h"
#include "srgb.h"

namespace zorcc::tool {

namespace {

using interface::Model;

// The samples of RGB that a picture is usually made from: of signed YCoCg, which has a bit more, half as many bits.
Sample usualSample(const Format& format)
{
    if (!isYCoCg(format)) return format.sample;
    return format.sample == Sample::s32 ? Sample::u16 : Sample::u8;
}

// The format of a file where the user gives none: one that it can hold, without a conversion where possible.
const Format& usualFormat(const OutputPath& out, const Format& from)
{
    switch (fileKindToWrite(out)) {
    case FileKind::raw:
        throw UsageError(out.path + ": a .raw file needs --to FORMAT");
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

// What RGB becomes first where it is to be dithered, which the library does from luma and chroma.
const Format& ditheredSource() { return withModel(interface::formats::yuv444p, Model::bt601); }

// A format by a matrix, where it leaves that open and there is such a one.
const Format& by(Matrix matrix, const Format& format)
{
    if (!matrix || !isYuv(format) || ownMatrix(format)) return format;
    const Format* const found = twin(format, *matrix);
    return found ? *found : format;
}

// The conversion by a matrix. Its failure names the matrices that would do.
Conversion findBy(Matrix matrix, const Format& from, const Format& to, bool dither)
{
    const auto find = [&](Matrix m) { return findConversion(by(m, from), by(m, to), m, dither); };
    try {
        return find(matrix);
    } catch (const Cause& cause) {
        std::vector<std::string> others;
        for (const Model other : {Model::bt601, Model::bt709, Model::bt709full, Model::yuv}) {
            if (isYuv(from) == isYuv(to) || ownMatrix(from) || ownMatrix(to) || matrix == other) continue;
            try {
                find(other);
                others.emplace_back(interface::propertiesOf(other).matrix);
            } catch (const Cause&) {
            }
        }
        throw Cause(cause.what() + (others.empty() ? "" : "; --matrix " + joined(others, " or ") + " has one"));
    }
}

// What is done with all pictures of one format and one side of the line between the usual matrices.
class Plan {
public:
    Plan(const ConvertOptions& options, const Picture& picture, const VideoTags& tags)
        : format(&picture.format()), matrixOfSize(usualMatrix(picture.visible()))
    {
        const Format* from = format;
        const bool ofModel = formatOfModel(options.to, *from);
        const Format& to = ofModel              ? *formatOfModel(options.to, *from)
                           : options.to.empty() ? usualFormat(options.out, *from)
                                                : formatNamed(options.to);
        const auto add = [&](const Conversion& step) { from = steps.emplace_back(step).target; };
        if (options.deinterlace) add(findDeinterlacing(*from, to));
        if (options.dither && isRgb(*from)) add(findConversion(*from, ditheredSource()));

        const auto sourceMatrix = [&](Matrix named) { return matrixOf(picture, tags, named); };
        const Matrix wanted = ownMatrix(to) ? ownMatrix(to) : options.matrix;
        if (isYuv(*from) && isYuv(to) && wanted && sourceMatrix(options.fromMatrix) != *wanted) {
            add(findBy(sourceMatrix(options.fromMatrix), *from, interface::formats::rgb24, false));
            add(findBy(wanted, *from, to, options.dither));
        } else if (isYuv(*from) && isYuv(to)) {
            // Samples change places alone, so the matrix need not be known; if it is, the result says its range.
            const bool isKnown = wanted || options.fromMatrix || ownMatrix(*from) || tags.range != "FULL";
            const Matrix matrix = isKnown ? Matrix(sourceMatrix(options.fromMatrix)) : std::nullopt;
            add(findConversion(by(matrix, *from), by(matrix, to), matrix, options.dither));
        } else if (isYuv(*from)) {
            const bool isDithered = isRgb(*format); // of a matrix that its format names
            add(findBy(isDithered ? ownMatrix(*from)
                                  : sourceMatrix(options.fromMatrix ? options.fromMatrix : options.matrix),
                       *from, to, options.dither));
        } else {
            add(findBy(isYuv(to) ? wanted.value_or(matrixOfSize) : Matrix(), *from, to, options.dither));
        }
    }

    bool suits(const Picture& picture) const
    {
        return format == &picture.format() && matrixOfSize == usualMatrix(picture.visible());
    }

    const Format& target() const { return *steps.back().target; }

    Picture operator()(Picture picture, std::deque<Stats>& stats) const
    {
        for (std::size_t i = 0; i < steps.size(); ++i) picture = steps[i](std::move(picture), stats[i]);
        return picture;
    }

    static constexpr int maxSteps = 4;

private:
    const Format* format;
    Model matrixOfSize;
    std::vector<Conversion> steps;
};

} // namespace

void convert(const ConvertOptions& options)
{
    fileKindToWrite(options.out); // reports bad names before any work
    if (!options.to.empty() && !formatOfModel(options.to, interface::formats::rgb24)) formatNamed(options.to);
    const auto reader = openInput(options.in, nullptr, OddSizes::roundUp);
    VideoTags tags = reader->tags();
    if (options.deinterlace) tags.interlacing = "p";
    const auto writer = openWriter(options.out, tags);

    std::deque<Stats> stats;
    for (int i = 0; i < Plan::maxSteps; ++i) stats.emplace_back(options.timing.repeat);
    std::mutex mutex;
    std::shared_ptr<const Plan> latest;
    const auto planFor = [&](const Picture& picture) {
        const std::lock_guard lock(mutex);
        if (!latest || !latest->suits(picture)) latest = std::make_shared<Plan>(options, picture, reader->tags());
        return latest;
    };
    writeAll(
        *reader, *writer,
        [&](Picture picture) {
            const auto plan = planFor(picture);
            const Format& from = picture.format();
            warnOfLostBits(reader->path(), from, plan->target());
            if (options.linear && isRgb(from)) picture = linearFromSrgb(std::move(picture));
            picture = (*plan)(std::move(picture), stats);
            return options.linear && isRgb(plan->target()) ? srgbFromLinear(std::move(picture)) : std::move(picture);
        },
        options.timing.isWanted());
    if (!options.timing.stats) return;
    std::string lines;
    for (const Stats& step : stats)
        if (!step.isEmpty()) lines += step.line();
    printStats(lines.empty() ? "rearranged without a function of the library\n" : lines, {options.out.path});
}

} // namespace zorcc::tool
