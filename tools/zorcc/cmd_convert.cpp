// SPDX-License-Identifier: MIT
#include <algorithm>
#include <mutex>
#include <vector>

#include "commands.h"
#include "conversion.h"
#include "error.h"
#include "formats.h"
#include "function_run.h"
#include "messages.h"
#include "pipeline.h"
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
const Format& usualFormat(const OutputPath& out, const Format& from)
{
    const auto planar420 = [] { return &formatNamed("yuv420p").format; };
    switch (fileKindToWrite(out)) {
    case FileKind::raw:
        throw UsageError(out.path + ": a .raw file needs --to FORMAT");
    case FileKind::y4m:
        return isYuv(from) ? y4mFormat(from) : *planar420();
    case FileKind::yuv:
        return isYuv(from) ? from : *planar420();
    default:
        return isYuv(from) || from.fieldBits != 0 ? pictureFormat(false, false, Sample::u8)
               : isRgb(from)                      ? from
                                                  : pictureFormat(false, hasAlpha(from), usualSample(from));
    }
}

NamedFormat targetFormat(const ConvertOptions& options, const Format& from)
{
    if (const Format* const ofModel = formatOfModel(options.to, from)) return {*ofModel, {}};
    if (options.to.empty()) return {usualFormat(options.out, from), {}};
    return formatNamed(options.to);
}

const std::string& lastOf(const std::string& first, const std::string& last) { return last.empty() ? first : last; }

// The function that smooths 4:2:0 vertically: to 4:2:2 where the result has as many rows of chroma, or to 4:2:0.
const Function& deinterlacingFunction(const Format& from, const Format& to)
{
    if (!isYuv(from) || from.log2X() != 1 || from.log2Y() != 1)
        throw Cause("deinterlacing takes 4:2:0, and the picture is " + std::string(from.name));
    const bool fullHeight = isYuv(to) && to.log2X() == 1 && to.log2Y() == 0;
    for (const Function& function : interface::functions())
        if (function.takesSlice && (function.destination->log2Y() == 0) == fullHeight) return function;
    throw Cause("no function deinterlaces");
}

// What one thread does with pictures of one format, colour and size.
class Worker {
public:
    Worker(const ConvertOptions& options, const Picture& picture)
        : format(&picture.format()), colour(picture.colour()), size(picture.visible())
    {
        NamedFormat to = targetFormat(options, *format);
        Description from = {format, colour};
        // Names of formats say more than options, and those more than the label of a file.
        const std::string& said = isYuv(to.format) ? options.fromMatrix : lastOf(options.matrix, options.fromMatrix);
        if (isYuv(*format) && colour.matrix.empty() && !said.empty()) from.colour = {said, zorRangeDefault};
        if (isYuv(to.format) && to.colour.matrix.empty()) {
            if (!options.matrix.empty())
                to.colour = {options.matrix, zorRangeDefault};
            else if (isYuv(*format))
                to.colour = from.colour;
        }

        ZorPlanOptions choice = Conversion::usual;
        if (options.deinterlace) {
            deinterlacing = &deinterlacingFunction(*format, to.format);
            add(from, {&layerFormat(*deinterlacing->source), from.colour});
            from.format = &layerFormat(*deinterlacing->destination);
        }
        if (options.dither) {
            if (to.format.fieldBits == 0) throw Cause("--dither is for pixels of 16 bits: rgb565, bgr555, ...");
            choice.fields = zorFieldsDither; // by functions from luma and chroma alone
            if (isRgb(*format)) {
                const Description between = {&formatNamed("yuv444p").format, {"bt601", zorRangeDefault}};
                add(from, between);
                from = between;
            }
        }
        try {
            add(from, {&to.format, to.colour}, choice);
        } catch (const Cause& cause) {
            const bool isByLabel = isYuv(*format) && from.colour.matrix.empty() && from.colour.range == zorRangeFull;
            throw isByLabel ? Cause(std::string(cause.what()) + "; --from-matrix says what to take it for") : cause;
        }
    }

    bool suits(const Picture& picture) const
    {
        return format == &picture.format() && colour == picture.colour() && size == picture.visible();
    }

    Picture operator()(Picture picture, Stats& stats) const
    {
        double seconds = 0;
        std::string names;
        for (const Conversion& step : steps) {
            double time = 0;
            picture = step.timed(std::move(picture), stats.repeat, time);
            seconds += time;
            if (!step.isIdentity() || steps.size() == 1) names += (names.empty() ? "" : ", ") + step.functions();
            if (deinterlacing && &step == &steps.front()) {
                // The last rows' neighbours must be as they are.
                const ZorSize blocks = picture.size();
                const Picture whole = resized(std::move(picture), *deinterlacing->source, blocks);
                picture = run(*deinterlacing, whole, stats.repeat, seconds);
                picture = std::move(picture).takenFor(layerFormat(picture.format()));
                names += (names.empty() ? "" : ", ") + std::string(deinterlacing->name);
            }
        }
        stats.add(names, size, seconds);
        return picture;
    }

    std::string losses() const
    {
        std::string lines;
        for (const Conversion& step : steps) lines += step.losses();
        return lines;
    }

    std::string words() const
    {
        std::string lines;
        for (const Conversion& step : steps) {
            lines += step.words() + "\n";
            if (deinterlacing && &step == &steps.front()) lines += "then " + std::string(deinterlacing->name) + "\n";
        }
        return lines;
    }

    bool givesRgb() const { return givesRgbPictures; }

private:
    void add(const Description& from, const Description& to, const ZorPlanOptions& options = Conversion::usual)
    {
        steps.emplace_back(from, to, size, options);
        givesRgbPictures = isRgb(*to.format);
    }

    const Format* format;
    Colour colour;
    ZorSize size;
    std::vector<Conversion> steps;
    const Function* deinterlacing = nullptr; // after the first step
    bool givesRgbPictures = false;
};

// Those who have nothing to do. A plan is for one thread at a time.
class Workers {
public:
    explicit Workers(const ConvertOptions& given) : options(given) {}

    std::unique_ptr<Worker> take(const Picture& picture)
    {
        {
            const std::lock_guard lock(mutex);
            while (!idle.empty()) {
                std::unique_ptr<Worker> worker = std::move(idle.back());
                idle.pop_back();
                if (worker->suits(picture)) return worker;
            }
        }
        return std::make_unique<Worker>(options, picture);
    }

    void giveBack(std::unique_ptr<Worker> worker)
    {
        const std::lock_guard lock(mutex);
        words = worker->words();
        idle.push_back(std::move(worker));
    }

    const std::string& lastWords() const { return words; }

private:
    const ConvertOptions& options;
    std::mutex mutex;
    std::vector<std::unique_ptr<Worker>> idle;
    std::string words;
};

} // namespace

void convert(const ConvertOptions& options)
{
    fileKindToWrite(options.out); // reports bad names before any work
    if (!options.to.empty()) targetFormat(options, formatNamed("rgb24").format);
    const auto reader = openInput(options.in, nullptr, OddSizes::roundUp);
    VideoTags tags = reader->tags();
    if (options.deinterlace) tags.interlacing = "p";
    const auto writer = openWriter(options.out, tags);

    Stats stats(options.timing.repeat);
    Workers workers(options);
    writeAll(
        *reader, *writer,
        [&](Picture picture) {
            std::unique_ptr<Worker> worker = workers.take(picture);
            warnOfLosses(reader->path(), worker->losses());
            if (options.linear && isRgb(picture.format())) picture = linearFromSrgb(std::move(picture));
            picture = (*worker)(std::move(picture), stats);
            if (options.linear && worker->givesRgb()) picture = srgbFromLinear(std::move(picture));
            workers.giveBack(std::move(worker));
            return picture;
        },
        options.timing.isWanted());
    if (options.timing.stats) printStats(workers.lastWords() + stats.line(), {options.out.path});
}

} // namespace zorcc::tool
