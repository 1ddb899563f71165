// SPDX-License-Identifier: MIT
#include "convert/route.h"

#include <algorithm>
#include <climits>

#include "convert/moves.h"

namespace zorcc::conversion {

using interface::functions;
using interface::sampleBytes;

namespace {

// Costs are for 16 pixels, in bytes moved; what weighs more outweighs any traffic.
constexpr int costOfPass = 300;           // a call for every strip, and what it costs to leave registers
constexpr int costOfColour = 100'000;     // a conversion of colours, which rounds
constexpr int costOfNarrowSamples = 1000; // a conversion of colours in samples narrower than an end's, for each byte
constexpr int costOfPoverty = 10'000'000; // a picture between that is poorer than both ends
constexpr int costOfRenamingPlanes = 10;  // nothing is moved
constexpr int costOfScatteredBytes = 2;   // moves are not as quick as functions

int bytesOf16Pixels(const Format& f)
{
    int samples = 0;
    for (int p = 0; p < f.planes; ++p) samples += 16 * f.plane[p].samples >> (f.plane[p].log2X + f.plane[p].log2Y);
    return samples * sampleBytes(f.sample);
}

// Fields, frames cut into slices, transfer curves, matrices of the caller's, mosaics whose grid is not given: what no
// picture format says of itself. Neither do statistics of a whole picture, nor does interpolation of chroma that has a
// twin which loses nothing (4:1:1 and 4:2:0).
bool isOnRequest(const Function& f)
{
    constexpr std::string_view others[] = {"zoriToneMapLinear_32f8u_C1R", "zoriToneMapMean_32f8u_C1R",
                                           "zoriYCbCr411To420_8u_P3R", "zoriYCbCr420To411_8u_P3R"};
    return f.variant == "Filter" || f.variant == "Interlace" || f.variant == "Gamma" || f.takesSlice || f.takesTwist ||
           f.takesRange || f.source->model == Model::mosaic ||
           std::find(std::begin(others), std::end(others), f.name) != std::end(others);
}

// Forms that do what another one does, and conversions of alpha by dithering.
bool isTwin(const Function& f)
{
    return f.signature.inPlace || !f.signature.steps || f.alpha == interface::Alpha::converted;
}

bool isEligible(const Function& f, const Choice& choice)
{
    if (isOnRequest(f) || isTwin(f)) return false;
    if (f.destination->fieldBits != 0 && f.dithers != choice.dithersFields) return false;
    if (f.destination->model == Model::grey && f.source->model == Model::rgb && f.takesWeights != choice.weighsGrey)
        return false;
    return !f.takesLevels || (reducesDepth(f) && !choice.truncates);
}

// Bytes of a sample of colours; YCoCg has more for the same colours, so that the other end decides.
int depthOf(const Format& f)
{
    return f.model == Model::ycocg || f.model == Model::ycocgRev ? 1 : sampleBytes(f.sample);
}

class Search {
public:
    Search(const Picture& source, const Picture& target, const Choice& options)
        : from(source), to(target), choice(options),
          hasTwoColours(isYcc(source.layout()) && isYcc(target.layout()) && source.colour != target.colour),
          first(nodeOf(source)), last(nodeOf(target))
    {
        for (Node& node : nodes) node = {};
        nodes[first].cost = 0;
    }

    Route run()
    {
        for (int node = cheapest(); node >= 0; node = cheapest()) {
            if (node == last) break;
            nodes[node].done = true;
            visitFunctions(node);
            visitMoves(node);
        }
        return result();
    }

private:
    static constexpr int maxNodes = 2 * Catalogue::maxFormats;

    struct Node {
        int cost = INT_MAX;
        int before = -1;
        const Function* function = nullptr;
        bool done = false;
    };

    const Picture &from, &to;
    const Choice& choice;
    const bool hasTwoColours;
    const int first, last;
    Node nodes[maxNodes];

    // Formats with luma and chroma are two nodes each, one by either end's colour; where there is only one colour the
    // second is not reached.
    int nodeOf(int format, bool byTarget) const { return format + (byTarget ? catalogue.count() : 0); }
    int nodeOf(const Picture& picture) const
    {
        return nodeOf(picture.format, hasTwoColours && isYcc(picture.layout()) && picture.colour != from.colour);
    }
    int formatOf(int node) const { return node % catalogue.count(); }
    bool isByTarget(int node) const { return node >= catalogue.count(); }
    const Colour& colourOf(int node) const
    {
        return isByTarget(node) || !isYcc(from.layout()) ? to.colour : from.colour;
    }

    int cheapest() const
    {
        int found = -1;
        for (int i = 0; i < 2 * catalogue.count(); ++i)
            if (!nodes[i].done && nodes[i].cost < (found < 0 ? INT_MAX : nodes[found].cost)) found = i;
        return found;
    }

    // Colours of neither end only add losses, but for red, green and blue between them.
    bool isOnTheWay(const Format& f) const
    {
        return f.model == from.layout().model || f.model == to.layout().model || f.model == Model::rgb;
    }

    void reach(int node, int before, const Function* function, int cost)
    {
        const Format& format = catalogue[formatOf(node)];
        if (node != last) {
            if (!isOnTheWay(format)) return;
            if (isPoorer(format, from.layout(), to.layout())) cost += costOfPoverty;
        }
        const int total = nodes[before].cost + cost;
        if (!nodes[node].done && total < nodes[node].cost) nodes[node] = {total, before, function, false};
    }

    void visitFunctions(int node)
    {
        const int format = formatOf(node);
        const auto all = functions();
        for (std::size_t i = 0; i < all.size(); ++i)
            if (catalogue.source(i) == format && catalogue.destination(i) >= 0 && isEligible(all[i], choice))
                visit(node, all[i], catalogue.destination(i));
    }

    void visit(int node, const Function& f, int destination)
    {
        const int widest = std::max(depthOf(from.layout()), depthOf(to.layout()));
        const bool fromYcc = isYcc(catalogue[formatOf(node)]), toYcc = isYcc(catalogue[destination]);
        int cost = costOfPass + bytesOf16Pixels(*f.source) + bytesOf16Pixels(*f.destination);
        if (fromYcc && f.source->model != Model::anyYcc && colourOf(node).model() != f.source->model) return;
        if (f.source->model != f.destination->model)
            cost += costOfColour + costOfNarrowSamples * std::max(0, widest - sampleBytes(f.source->sample));
        if (fromYcc || !toYcc) {
            reach(nodeOf(destination, toYcc && isByTarget(node)), node, &f, cost);
            return;
        }
        for (const bool byTarget : {false, true}) { // to luma and chroma
            const int next = nodeOf(destination, byTarget);
            if (byTarget <= hasTwoColours && colourOf(next).model() == f.destination->model)
                reach(next, node, &f, cost);
        }
    }

    void visitMoves(int node)
    {
        const Format& source = catalogue[formatOf(node)];
        // Two moves of channels are one; the bits of packed pixels take one more.
        const bool wasMoved = nodes[node].before >= 0 && !nodes[node].function;
        const bool movesBits =
            isPackedBits(source) || (wasMoved && isPackedBits(catalogue[formatOf(nodes[node].before)]));
        for (int i = 0; i < catalogue.count(); ++i) {
            const Format& format = catalogue[i];
            if (i == formatOf(node) || !canMove(source, format, choice.truncates)) continue;
            if (wasMoved && !movesBits && !isPackedBits(format)) continue;
            if (isPackedBits(format) && choice.dithersFields) continue;
            const int next = nodeOf(i, isYcc(format) && isByTarget(node));
            // Both images are the caller's: nothing stays where it is.
            const SamePlanes same = node == first && next == last ? SamePlanes{} : samePlanes(source, format);
            const int bytes = movedBytes(source, format, same);
            reach(next, node, nullptr, bytes == 0 ? costOfRenamingPlanes : costOfPass + costOfScatteredBytes * bytes);
        }
    }

    Picture pictureOf(int node) const { return {formatOf(node), colourOf(node)}; }

    // How unlike the target a picture is that can be reached.
    int unlikeness(int node) const
    {
        const Format &f = catalogue[formatOf(node)], &wanted = to.layout();
        return 64 * (f.model != wanted.model) + 32 * (isYcc(f) && colourOf(node) != to.colour) +
               16 * (std::abs(f.log2X() - wanted.log2X()) + std::abs(f.log2Y() - wanted.log2Y())) +
               8 * (f.sample != wanted.sample) + 4 * (f.fieldBits != wanted.fieldBits) +
               2 * (f.layout != wanted.layout) + (f.channels != wanted.channels);
    }

    Route result() const
    {
        Route route;
        int node = last;
        route.exists = nodes[last].cost != INT_MAX;
        if (!route.exists) {
            node = first;
            for (int i = 0; i < 2 * catalogue.count(); ++i)
                if (nodes[i].done && unlikeness(i) < unlikeness(node)) node = i;
            route.nearest = pictureOf(node);
            return route;
        }
        for (int n = node; n != first; n = nodes[n].before) ++route.count;
        route.exists = route.count <= Route::maxSteps;
        if (!route.exists) return route;
        for (int i = route.count; i-- > 0; node = nodes[node].before)
            route.steps[i] = {nodes[node].function, pictureOf(node)};
        return route;
    }
};

} // namespace

Route findRoute(const Picture& from, const Picture& to, const Choice& choice) { return Search(from, to, choice).run(); }

bool isPoorer(const Format& format, const Format& from, const Format& to)
{
    return bitsOf(format) < std::min(bitsOf(from), bitsOf(to)) || format.log2X() > std::max(from.log2X(), to.log2X()) ||
           format.log2Y() > std::max(from.log2Y(), to.log2Y());
}

bool mixesRows(const Function& function) { return function.name == "zoriYCbCr1620To420_8u_P3R"; }

bool reducesDepth(const Function& f)
{
    return f.takesLevels && f.destination->sample == Sample::u8 && f.source->sample != Sample::u8;
}

} // namespace zorcc::conversion
