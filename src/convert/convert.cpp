// SPDX-License-Identifier: MIT
// The exported functions: arguments, options, and the words of a plan.
#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <new>

#include "convert/chain.h"
#include "convert/moves.h"
#include "frame/team_size.h"
#include "zorcore.h"

using namespace zorcc::conversion;
using zorcc::interface::Alpha;

struct ZorPlan {
    ZorStatus status = zorStatusOk;
    Text words, losses;
    Chain chain;
    std::uint8_t* memory = nullptr; // of all threads' strips
};

namespace {

// ---- what pictures are ----------------------------------------------------------------------------------------------

ZorStatus fail(Text& words, ZorStatus status, const auto&... parts)
{
    words.clear();
    words.add(parts...);
    return status;
}

ZorStatus checkSize(const Format& format, ZorSize size)
{
    if (size.width < 1 || size.height < 1) return zorStatusBadSize;
    // Filled up to blocks of four, and with the steps between strips' rows.
    constexpr int most = INT_MAX - 4096;
    if (size.height > most || size.width > most) return zorStatusBadSize;
    for (int p = 0; p < format.planes; ++p)
        if (bytesOfRow(format, p, size.width + 3) > most) return zorStatusBadSize;
    return zorStatusOk;
}

// Matrix and range of luma and chroma.
ZorStatus findColour(const ZorPicture& given, const NamedFormat& named, Colour& colour, Text& words)
{
    NamedMatrix matrix = named.matrix;
    if (given.matrix) {
        const Name name = lowerCase(given.matrix);
        matrix = matrixNamed(name);
        if (!matrix.matrix)
            return fail(words, zorStatusBadArgument, "unknown matrix ", given.matrix, "; the nearest is ",
                        nearestMatrix(name));
        if (named.matrix.matrix && named.matrix.matrix != matrix.matrix && named.range == matrix.range)
            return fail(words, zorStatusBadArgument, given.format, " is by the matrix ", named.matrix.matrix->name,
                        " and not ", matrix.matrix->name);
    }
    colour.matrix = matrix.matrix ? matrix.matrix : &usualMatrix(given.size.height);
    const ZorRange said = named.range != zorRangeDefault ? named.range : matrix.range;
    if (said != zorRangeDefault && given.range != zorRangeDefault && said != given.range)
        return fail(words, zorStatusBadArgument, given.format, " is of ", Colour{colour.matrix, said}.rangeName(),
                    " range");
    colour.range = given.range != zorRangeDefault ? given.range
                   : said != zorRangeDefault      ? said
                                                  : usualRange(*colour.matrix);
    if (colour.range == zorRangeLimited && usualRange(*colour.matrix) == zorRangeFull)
        return fail(words, zorStatusBadArgument, colour.matrix->name, " is of full range");
    return zorStatusOk;
}

std::string_view modelName(Model model)
{
    for (const zorcc::interface::ModelProperties& row : zorcc::interface::models)
        if (row.model == model && !row.name.empty()) return row.name;
    return "rgb";
}

// Other formats have no choice.
ZorStatus checkColour(const ZorPicture& given, const Format& format, Text& words)
{
    const std::string_view model = modelName(format.model);
    if (given.matrix) {
        const Name name = lowerCase(given.matrix);
        const bool isOther = format.model == Model::rgb && std::string_view(name) == "gbr";
        if (std::string_view(name) != model && !isOther)
            return fail(words, zorStatusBadArgument, given.format, " is ", model, " and has no matrix ", given.matrix);
    }
    if (given.range == zorRangeLimited) return fail(words, zorStatusBadArgument, given.format, " is of full range");
    return zorStatusOk;
}

ZorStatus findPicture(const ZorPicture* given, Picture& picture, Text& words)
{
    if (!given || !given->format) return fail(words, zorStatusNullPointer, "no picture, or no name of its format");
    if (given->range < zorRangeDefault || given->range > zorRangeFull)
        return fail(words, zorStatusBadArgument, "a range that there is not");
    const NamedFormat named = catalogue.find(given->format);
    if (named.index < 0)
        return fail(words, zorStatusUnknownFormat, "unknown format ", given->format, "; the nearest is ",
                    catalogue.nearest(given->format));
    picture.format = named.index;
    if (checkSize(picture.layout(), given->size) != zorStatusOk)
        return fail(words, zorStatusBadSize, given->size.width, "x", given->size.height,
                    " pixels: a side below 1, or rows above 2 GiB");
    return isYcc(picture.layout()) ? findColour(*given, named, picture.colour, words)
                                   : checkColour(*given, picture.layout(), words);
}

// ---- options --------------------------------------------------------------------------------------------------------

ZorStatus readOptions(const ZorPlanOptions* given, ZorPlanOptions& options, Text& words)
{
    options = {};
    if (!given) return zorStatusOk;
    if (given->structBytes < sizeof given->structBytes)
        return fail(words, zorStatusBadArgument, "options without their size");
    std::memcpy(&options, given, std::min(given->structBytes, sizeof options));
    const auto isOutside = [](int value, int last) { return value < 0 || value > last; };
    if (options.threads < 0 || options.stripRows < 0 || isOutside(options.alpha, zorAlphaOpaque) ||
        isOutside(options.depth, zorDepthTruncate) || isOutside(options.fields, zorFieldsDither) ||
        isOutside(options.grey, zorGreyRefuse))
        return fail(words, zorStatusBadArgument, "options: a negative number, or a value that there is not");
    return zorStatusOk;
}

// ---- words ----------------------------------------------------------------------------------------------------------

void addPicture(Text& words, const Picture& picture)
{
    words.add(picture.layout().name);
    if (isYcc(picture.layout()))
        words.add(" (", picture.colour.matrix->name, ", ", picture.colour.rangeName(), " range)");
}

bool isForeign(const Picture& picture) { return isYcc(picture.layout()) && picture.colour.model() == Model::anyYcc; }

// The colour with functions that is most like this one.
Colour nearestColour(const Colour& colour, int height)
{
    for (const ZorRange range : {zorRangeLimited, zorRangeFull})
        if (const Colour other{colour.matrix, range}; other.model() != Model::anyYcc) return other;
    return {&usualMatrix(height), zorRangeLimited};
}

ZorStatus sayThatNoneLeads(const Picture& from, const Picture& to, const Route& route, int height, Text& words)
{
    words.clear();
    for (const bool source : {true, false}) {
        const Picture& end = source ? from : to;
        if (!isForeign(end)) continue;
        const Colour near = nearestColour(end.colour, height);
        words.add("no conversion ", source ? "comes from " : "leads to ", end.colour.matrix->name, " of ",
                  end.colour.rangeName(), " range; the nearest that there is: ", near.matrix->name, " of ",
                  near.rangeName(), " range");
        return zorStatusNoConversion;
    }
    words.add("no conversion leads from ");
    addPicture(words, from);
    words.add(" to ");
    addPicture(words, to);
    if (route.nearest.format == from.format && route.nearest.colour == from.colour) return zorStatusNoConversion;
    words.add("; the nearest that there is: ");
    addPicture(words, route.nearest);
    return zorStatusNoConversion;
}

bool isLinear(Model model) { return model == Model::xyz || model == Model::luv || model == Model::lab; }

// What 16 bits of YCoCg are made of need not have more than 8.
bool isYCoCg(Model model) { return model == Model::ycocg || model == Model::ycocgRev; }

void addLosses(const Chain& chain, const Picture& to, Text& losses)
{
    constexpr const char* methods[] = {"to the nearest value", "with the errors diffused (Floyd-Steinberg)",
                                       "with the errors diffused (Jarvis-Judice-Ninke)",
                                       "with the errors diffused (Stucki)", "by ordered dithering"};
    const Format &source = chain.from.layout(), &destination = to.layout();
    for (int i = 0; i + 1 < chain.route.count; ++i)
        if (const Format& between = chain.route.steps[i].result.layout(); isPoorer(between, source, destination))
            losses.add(between.name, " on the way has less than both ends: there is no other way\n");
    if (bitsOf(source) > bitsOf(destination) && !isYCoCg(source.model)) {
        losses.add(bitsOf(source), " bits become ", bitsOf(destination));
        if (bitsOf(source) > 8 && bitsOf(destination) <= 8)
            losses.add(" ", chain.truncates ? "by cutting them off" : methods[chain.method]);
        losses.add("\n");
    }
    if (source.model != Model::grey && destination.model == Model::grey)
        losses.add("colours become grey, by the weights ", chain.weighsGrey ? "given" : "of luma", "\n");
    if (hasAlpha(source) && !hasAlpha(destination)) losses.add("alpha is dropped\n");
}

void describe(ZorPlan& plan, const Picture& to, Text& words)
{
    const Chain& chain = plan.chain;
    const Picture& from = chain.from;
    words.add("from ");
    addPicture(words, from);
    words.add(" to ");
    addPicture(words, to);
    words.add(", ", chain.size.width, "x", chain.size.height, "\n");
    bool linear = false;
    for (int i = 0; i < chain.route.count; ++i) {
        const Step& step = chain.route.steps[i];
        const int before = i == 0 ? from.format : chain.route.steps[i - 1].result.format;
        words.add(i + 1, ". ",
                  step.function                  ? step.function->name
                  : before == step.result.format ? "samples are copied"
                                                 : "samples change places",
                  ": ");
        addPicture(words, step.result);
        if (!step.function && chain.same[i].any()) words.add(", whole planes stay");
        words.add("\n");
        if (step.function)
            linear |= isLinear(step.function->source->model) || isLinear(step.function->destination->model);
    }
    addLosses(chain, to, plan.losses);
    words.add(plan.losses);
    const Format &source = from.layout(), &destination = to.layout();
    if (hasAlpha(destination))
        words.add(hasAlpha(source) && chain.alpha != AlphaStep::opaque ? "alpha is kept\n" : "alpha is opaque\n");
    if (linear) words.add("red, green and blue count as linear light\n");
    if (chain.isCut())
        words.add("in strips of ", chain.stripRows, " rows");
    else
        words.add("in one piece");
    words.add(", on at most ", chain.threads, chain.threads == 1 ? " thread" : " threads");
}

// ---- plans ----------------------------------------------------------------------------------------------------------

// What to do about alpha after the last step.
AlphaStep alphaStepOf(const Chain& chain, bool opaque)
{
    enum { lost, kept, filled } state = hasAlpha(chain.format(0)) ? kept : lost;
    for (int i = 0; i < chain.route.count; ++i) {
        const Function* const f = chain.route.steps[i].function;
        if (!hasAlpha(chain.format(i + 1)))
            state = lost;
        else if (!f)
            state = hasAlpha(chain.format(i)) ? state : filled;
        else
            state = f->alpha == Alpha::argument ? filled : f->alpha == Alpha::copy ? state : lost;
    }
    if (!hasAlpha(chain.format(chain.route.count))) return AlphaStep::none;
    if (hasAlpha(chain.format(0)) && !opaque) return state == kept ? AlphaStep::none : AlphaStep::copy;
    return state == filled ? AlphaStep::none : AlphaStep::opaque;
}

ZorStatus make(ZorPlan& plan, const ZorPicture* given[2], const ZorPlanOptions* givenOptions)
{
    Text& words = plan.words;
    Chain& chain = plan.chain;
    Picture& from = chain.from;
    Picture to;
    ZorPlanOptions options;
    if (const ZorStatus status = findPicture(given[0], from, words); status != zorStatusOk) return status;
    if (const ZorStatus status = findPicture(given[1], to, words); status != zorStatusOk) return status;
    if (const ZorStatus status = readOptions(givenOptions, options, words); status != zorStatusOk) return status;
    chain.size = given[0]->size;
    if (given[1]->size.width != chain.size.width || given[1]->size.height != chain.size.height)
        return fail(words, zorStatusBadSize, "nothing is scaled: ", chain.size.width, "x", chain.size.height, " and ",
                    given[1]->size.width, "x", given[1]->size.height);
    const bool fromYcc = isYcc(from.layout()), toYcc = isYcc(to.layout());
    if (!fromYcc) from.colour = toYcc ? to.colour : Colour{&matrices[0], zorRangeLimited};
    if (!toYcc) to.colour = from.colour;

    if (options.alpha == zorAlphaRefuse && hasAlpha(from.layout()) && !hasAlpha(to.layout()))
        return fail(words, zorStatusRefused, given[1]->format, " has no alpha, and it is not to be dropped");
    if (options.grey == zorGreyRefuse && from.layout().model != Model::grey && to.layout().model == Model::grey)
        return fail(words, zorStatusRefused, given[1]->format, " has no colours, and they are not to be dropped");

    chain.truncates = options.depth == zorDepthTruncate;
    chain.method = chain.truncates ? zorDitherMethodNone : static_cast<ZorDitherMethod>(options.depth);
    chain.weighsGrey = options.grey == zorGreyWeights;
    std::copy(std::begin(options.greyWeights), std::end(options.greyWeights), chain.greyWeights);
    const Choice choice{chain.truncates, options.fields == zorFieldsDither, chain.weighsGrey};
    if (from.format == to.format && from.colour == to.colour) {
        chain.route.exists = true;
        chain.route.count = 1;
        chain.route.steps[0].result = to;
    } else {
        chain.route = findRoute(from, to, choice);
    }
    if (!chain.route.exists) return sayThatNoneLeads(from, to, chain.route, chain.size.height, words);

    for (int i = 0; i < chain.images(); ++i)
        if (checkSize(chain.format(i), chain.size) != zorStatusOk)
            return fail(words, zorStatusBadSize, "rows of ", chain.format(i).name, " are above 2 GiB");
    chain.threads = zorcc::teamSize(options.threads > 0 ? options.threads : ownGetNumThreads());
    chain.alpha = alphaStepOf(chain, options.alpha == zorAlphaOpaque);
    chain.layOut(options.stripRows);
    describe(plan, to, words);
    plan.memory =
        static_cast<std::uint8_t*>(std::aligned_alloc(64, (chain.bytesOfStrip * chain.threads + 63) / 64 * 64));
    return plan.memory ? zorStatusOk : fail(words, zorStatusNoMemory, "not enough memory");
}

} // namespace

ZorStatus zorPictureLayout(const ZorPicture* picture, ZorLayout* layout)
{
    if (!picture || !picture->format || !layout) return zorStatusNullPointer;
    const NamedFormat named = catalogue.find(picture->format);
    if (named.index < 0) return zorStatusUnknownFormat;
    const Format& format = catalogue[named.index];
    if (const ZorStatus status = checkSize(format, picture->size); status != zorStatusOk) return status;
    *layout = {};
    std::memcpy(layout->name, format.name.data(), std::min(format.name.size(), sizeof layout->name - 1));
    std::memcpy(layout->channels, format.channels.data(), format.channels.size());
    layout->planes = format.planes;
    for (int p = 0; p < format.planes; ++p) {
        layout->rowBytes[p] = static_cast<int>(bytesOfRow(format, p, picture->size.width));
        layout->rows[p] = rowsOf(format, p, picture->size.height);
    }
    layout->sampleBytes = zorcc::interface::sampleBytes(format.sample);
    layout->sample = static_cast<ZorSample>(format.sample);
    const int digits[3] = {format.fieldBits / 100, format.fieldBits / 10 % 10, format.fieldBits % 10};
    std::copy(std::begin(digits), std::end(digits), layout->fieldBits);
    layout->log2ChromaX = format.log2X();
    layout->log2ChromaY = format.log2Y();
    return zorStatusOk;
}

ZorStatus zorPictureColour(const ZorPicture* given, ZorColour* colour)
{
    Picture picture;
    Text words;
    if (!colour) return zorStatusNullPointer;
    if (const ZorStatus status = findPicture(given, picture, words); status != zorStatusOk) return status;
    *colour = {};
    colour->range = zorRangeFull;
    if (!isYcc(picture.layout())) return zorStatusOk;
    const std::string_view name = picture.colour.matrix->name;
    std::memcpy(colour->matrix, name.data(), std::min(name.size(), sizeof colour->matrix - 1));
    colour->range = picture.colour.range;
    colour->isSaid = given->matrix || catalogue.find(given->format).matrix.matrix;
    return zorStatusOk;
}

const char* zorFormatAt(int index) { return index >= 0 && index < catalogue.count() ? catalogue.name(index) : nullptr; }

ZorPlan* zorPlanCreate(const ZorPicture* from, const ZorPicture* to, const ZorPlanOptions* options)
{
    void* const memory = std::malloc(sizeof(ZorPlan));
    if (!memory) return nullptr;
    ZorPlan* const plan = new (memory) ZorPlan;
    const ZorPicture* pictures[2] = {from, to};
    plan->status = make(*plan, pictures, options);
    return plan;
}

void zorPlanFree(ZorPlan* plan)
{
    if (!plan) return;
    std::free(plan->memory);
    std::free(plan);
}

ZorStatus zorPlanStatus(const ZorPlan* plan) { return plan ? plan->status : zorStatusNoMemory; }

const char* zorPlanDescribe(const ZorPlan* plan) { return plan ? plan->words.chars() : "not enough memory"; }

const char* zorPlanLosses(const ZorPlan* plan) { return plan ? plan->losses.chars() : ""; }

const char* zorPlanStepFunction(const ZorPlan* plan, int step)
{
    if (zorPlanStatus(plan) != zorStatusOk || step < 0 || step >= plan->chain.route.count) return nullptr;
    const Function* const function = plan->chain.route.steps[step].function;
    return function ? function->name.data() : ""; // names are literals
}

const char* zorPlanStepFormat(const ZorPlan* plan, int step)
{
    if (zorPlanStatus(plan) != zorStatusOk || step < 0 || step >= plan->chain.route.count) return nullptr;
    return catalogue.name(plan->chain.route.steps[step].result.format);
}

ZorStatus zorPlanRun(ZorPlan* plan, const void* const source[], const int sourceSteps[], void* const destination[],
                     const int destinationSteps[])
{
    if (!plan) return zorStatusNullPointer;
    if (plan->status != zorStatusOk) return plan->status;
    if (!source || !sourceSteps || !destination || !destinationSteps) return zorStatusNullPointer;
    const CallersImages images{source, sourceSteps, destination, destinationSteps};
    const ZorStatus status = plan->chain.check(images);
    return status == zorStatusOk ? plan->chain.run(images, plan->memory) : status;
}
