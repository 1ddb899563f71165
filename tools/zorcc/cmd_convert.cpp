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

// The type of the RGB samples that a picture is usually made of: half as wide for signed YCoCg, which has a bit more.
Sample usualSample(const Format& format)
{
    if (!isYCoCg(format)) return format.sample;
    return format.sample == Sample::s32 ? Sample::u16 : Sample::u8;
}

// The format of the result where the user gives none: one that its file can hold, the source's where possible.
const Format& usualFormat(const OutputPath& out, const Format& from)
{
    const auto planar420 = [] { return formatNamed("yuv420p").format; };
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

PictureKind targetKind(const ConvertOptions& options, const Format& from)
{
    if (const Format* const ofModel = formatOfModel(options.to, from)) return {ofModel};
    if (options.to.empty()) return {&usualFormat(options.out, from)};
    return formatNamed(options.to);
}

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

// The kind that the source is taken for: the matrix in a format's name overrides the options, which override the label
// in the file.
PictureKind sourceKind(const ConvertOptions& options, const Picture& picture, const PictureKind& target)
{
    PictureKind kind = picture.kind();
    const bool matrixIsOfSource = options.fromMatrix.empty() && !isYuv(*target.format);
    const std::string& said = matrixIsOfSource ? options.matrix : options.fromMatrix;
    if (isYuv(*kind.format) && kind.colour.matrix.empty() && !said.empty()) kind.colour = {said};
    return kind;
}

// Converts pictures of one kind and size, on one thread at a time.
class Worker {
public:
    Worker(const ConvertOptions& options, const Picture& picture) : kind(picture.kind()), size(picture.visible())
    {
        target = targetKind(options, *kind.format);
        PictureKind from = sourceKind(options, picture, target);
        if (isYuv(*target.format) && target.colour.matrix.empty()) {
            if (!options.matrix.empty())
                target.colour = {options.matrix};
            else if (isYuv(*from.format))
                target.colour = from.colour;
        }
        ZorPlanOptions choice = Conversion::usual;
        if (options.deinterlace) {
            const Function& function = deinterlacingFunction(*from.format, *target.format);
            steps.push_back({{from, {&layerFormat(*function.source), from.colour}, size}, &function});
            from.format = &layerFormat(*function.destination);
        }
        if (options.dither) {
            if (target.format->fieldBits == 0) throw Cause("--dither is for pixels of 16 bits: rgb565, bgr555, ...");
            choice.fields = zorFieldsDither; // by functions from luma and chroma of some matrices
            if (!leads(from, target, choice)) {
                const PictureKind between = {formatNamed("yuv444p").format, {"bt601"}};
                steps.push_back({{from, between, size}});
                from = between;
            }
        }
        try {
            steps.push_back({{from, target, size, choice}});
        } catch (const Cause& cause) {
            if (from.colour.range != zorRangeFull || !from.colour.matrix.empty()) throw;
            throw Cause(std::string(cause.what()) + "; --from-matrix says what to take it for");
        }
    }

    bool suits(const Picture& picture) const { return kind == picture.kind() && size == picture.visible(); }
    const Format& format() const { return *target.format; } // of the result

    Picture operator()(Picture picture, Stats& stats) const
    {
        double seconds = 0;
        std::string names;
        const auto name = [&](const std::string& functions) { names += (names.empty() ? "" : ", ") + functions; };
        for (const Step& step : steps) {
            double time = 0;
            picture = step.conversion.timed(std::move(picture), stats.repeat, time);
            seconds += time;
            if (!step.conversion.isIdentity() || steps.size() == 1) name(step.conversion.functions());
            if (!step.then) continue;
            // The function looks at neighbouring rows, those of whole blocks, too.
            const ZorSize blocks = picture.size();
            const Picture whole = resized(std::move(picture), *step.then->source, blocks);
            picture = run(*step.then, whole, stats.repeat, seconds);
            picture = std::move(picture).takenFor(layerFormat(picture.format()));
            name(std::string(step.then->name));
        }
        stats.add(names, size, seconds);
        return picture;
    }

    std::string losses() const
    {
        std::string lines;
        for (const Step& step : steps) lines += step.conversion.losses();
        return lines;
    }

    std::string words() const
    {
        std::string lines;
        for (const Step& step : steps) {
            lines += step.conversion.words() + "\n";
            if (step.then) lines += "then " + std::string(step.then->name) + "\n";
        }
        return lines;
    }

private:
    struct Step {
        Conversion conversion;
        const Function* then = nullptr;
    };

    bool leads(const PictureKind& from, const PictureKind& to, const ZorPlanOptions& choice) const
    {
        try {
            const Conversion conversion(from, to, size, choice);
            return true;
        } catch (const Cause&) {
            return false;
        }
    }

    PictureKind kind, target = {};
    ZorSize size;
    std::vector<Step> steps;
};

// Idle workers, of which threads take one for each picture: a plan may run on one thread at a time.
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
    if (!options.to.empty()) targetKind(options, *formatNamed("rgb24").format);
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
            if (options.linear && isRgb(worker->format())) picture = srgbFromLinear(std::move(picture));
            workers.giveBack(std::move(worker));
            return picture;
        },
        options.timing.isWanted());
    if (options.timing.stats) printStats(workers.lastWords() + stats.line(), {options.out.path});
}

} // namespace zorcc::tool
