// SPDX-License-Identifier: MIT
#include "negotiation.h"

#include <algorithm>
#include <bitset>
#include <climits>
#include <optional>

#include "formats.h"
#include "pairs.h"

namespace zorcc::gstreamer {

namespace {

using Formats = std::bitset<formatCount>;

bool isInSystemMemory(const GstCaps* caps, guint index)
{
    const GstCapsFeatures* const features = gst_caps_get_features(caps, index);
    return !features || gst_caps_features_is_equal(features, GST_CAPS_FEATURES_MEMORY_SYSTEM_MEMORY);
}

// A field is one string or a list of them.
template <class Visit> void eachString(const GValue* value, Visit visit)
{
    if (!value) return;
    if (G_VALUE_HOLDS_STRING(value)) visit(g_value_get_string(value));
    if (!GST_VALUE_HOLDS_LIST(value)) return;
    for (guint i = 0; i < gst_value_list_get_size(value); ++i) eachString(gst_value_list_get_value(value, i), visit);
}

Formats formatsOf(const GstStructure* structure)
{
    Formats formats;
    if (!gst_structure_has_field(structure, "format")) return formats.set();
    eachString(gst_structure_get_value(structure, "format"), [&](const char* name) {
        if (const int index = indexOf(gst_video_format_from_string(name)); index >= 0) formats.set(index);
    });
    return formats;
}

// ---- what there is on the other side --------------------------------------------------------------------------------

template <class Visit> void eachConvertible(int format, Visit visit)
{
    const bool isYuv = GST_VIDEO_FORMAT_INFO_IS_YUV(infoOf(format));
    for (int colour = 0; colour < (isYuv ? Kind::colourCount : 1); ++colour)
        if (const Kind kind{format, colour}; isConvertible(kind)) visit(kind);
}

// Formats that a plan connects with a kind.
class Reach {
public:
    Reach(GstPadDirection itsDirection, bool itKeepsAlpha) : direction(itsDirection), keepsAlpha(itKeepsAlpha) {}

    Formats reached;

    // Computing colours, whichever the other side has.
    void convert(const Kind& given)
    {
        eachOther(given, [&](int format) { eachConvertible(format, [&](const Kind& other) { add(given, other); }); });
    }

    // Moving samples alone.
    void move(const Kind& given)
    {
        eachOther(given, [&](int format) {
            if (const Kind other{format, given.colour}; GST_VIDEO_FORMAT_INFO_IS_YUV(other.info())) add(given, other);
        });
    }

private:
    const GstPadDirection direction;
    const bool keepsAlpha;

    template <class Visit> void eachOther(const Kind& given, Visit visit)
    {
        for (int format = 0; format < formatCount; ++format) {
            if (reached[format]) continue;
            const GstVideoFormatInfo *one = given.info(), *other = infoOf(format);
            if (direction == GST_PAD_SRC) std::swap(one, other);
            if (!(keepsAlpha && dropsAlpha(*one, *other))) visit(format);
        }
    }

    void add(const Kind& given, const Kind& other)
    {
        if (!reached[other.format] && (direction == GST_PAD_SRC ? connects(other, given) : connects(given, other)))
            reached.set(other.format);
    }
};

// The structure in other formats; with the colorimetry, or any where it is null.
void append(GstCaps* caps, const GstStructure* structure, const Formats& formats, const char* colorimetry)
{
    if (formats.none()) return;
    GValue names = G_VALUE_INIT;
    gst_value_list_init(&names, formatCount);
    for (int format = 0; format < formatCount; ++format) {
        if (!formats[format]) continue;
        GValue name = G_VALUE_INIT;
        g_value_init(&name, G_TYPE_STRING);
        g_value_set_static_string(&name, gst_video_format_to_string(knownFormats[format].format));
        gst_value_list_append_and_take_value(&names, &name);
    }
    GstStructure* const converted = gst_structure_copy(structure);
    gst_structure_remove_fields(converted, "colorimetry", "chroma-site", nullptr);
    gst_structure_take_value(converted, "format", &names);
    if (colorimetry) gst_structure_set(converted, "colorimetry", G_TYPE_STRING, colorimetry, nullptr);
    gst_caps_append_structure(caps, converted);
}

// ---- what is chosen -------------------------------------------------------------------------------------------------

bool isAlike(const GstVideoFormatInfo* a, const GstVideoFormatInfo* b)
{
    constexpr int models = GST_VIDEO_FORMAT_FLAG_YUV | GST_VIDEO_FORMAT_FLAG_RGB | GST_VIDEO_FORMAT_FLAG_GRAY;
    return (a->flags & models) == (b->flags & models);
}

bool sharesChroma(const GstVideoFormatInfo* info) { return GST_VIDEO_FORMAT_INFO_W_SUB(info, 1) > 0; }

bool sharesAlike(const GstVideoFormatInfo* a, const GstVideoFormatInfo* b)
{
    return GST_VIDEO_FORMAT_INFO_W_SUB(a, 1) == GST_VIDEO_FORMAT_INFO_W_SUB(b, 1) &&
           GST_VIDEO_FORMAT_INFO_H_SUB(a, 1) == GST_VIDEO_FORMAT_INFO_H_SUB(b, 1);
}

// What is lost from one format to another, the worst first, and last what is only done in vain.
int lossOf(const GstVideoFormatInfo* from, const GstVideoFormatInfo* to)
{
    const auto bits = [](const GstVideoFormatInfo* info) { return static_cast<int>(GST_VIDEO_FORMAT_INFO_BITS(info)); };
    const int columns = GST_VIDEO_FORMAT_INFO_W_SUB(to, 1) - GST_VIDEO_FORMAT_INFO_W_SUB(from, 1);
    const int rows = GST_VIDEO_FORMAT_INFO_H_SUB(to, 1) - GST_VIDEO_FORMAT_INFO_H_SUB(from, 1);
    int loss = 0;
    if (GST_VIDEO_FORMAT_INFO_IS_GRAY(to) && !GST_VIDEO_FORMAT_INFO_IS_GRAY(from)) loss += 4096;
    if (dropsAlpha(*from, *to)) loss += 2048;
    if (bits(to) < std::min(bits(from), 8)) loss += 1024;
    loss += 128 * (std::max(rows, 0) + std::max(columns, 0));
    if (bits(to) < bits(from)) loss += 64;
    if (!isAlike(from, to)) loss += 32;
    loss += 4 * (std::max(-rows, 0) + std::max(-columns, 0));
    if (bits(to) > bits(from)) loss += 4;
    if (GST_VIDEO_FORMAT_INFO_HAS_ALPHA(to) && !GST_VIDEO_FORMAT_INFO_HAS_ALPHA(from)) loss += 2;
    return loss + (from != to);
}

// The colour of a format that has as much as possible of the input's. Curves and primaries are never converted.
GstVideoColorimetry naturalColour(const GstVideoInfo& input, GstVideoFormat format)
{
    GstVideoInfo output;
    gst_video_info_set_format(&output, format, input.width, input.height);
    if (isAlike(input.finfo, output.finfo)) return input.colorimetry;
    GstVideoColorimetry colour = output.colorimetry;
    colour.transfer = input.colorimetry.transfer;
    colour.primaries = input.colorimetry.primaries;
    if (GST_VIDEO_INFO_IS_GRAY(&output) && GST_VIDEO_INFO_IS_YUV(&input)) colour.matrix = input.colorimetry.matrix;
    return colour;
}

struct Colour {
    GstVideoColorimetry colorimetry;
    const char* text; // as the caps have it; null where they leave it open
};

// The colour nearest to the natural one that the structure permits and a plan gives.
std::optional<Colour> colourIn(const GstStructure* structure, int format, const GstVideoInfo& input, const Kind& from)
{
    const GstVideoColorimetry natural = naturalColour(input, knownFormats[format].format);
    const auto suits = [&](const GstVideoColorimetry& colour) {
        const std::optional<Kind> to = kindOf(format, colour, input.height);
        return to && connects(from, *to);
    };
    if (const GValue* const permitted = gst_structure_get_value(structure, "colorimetry")) {
        std::optional<Colour> found;
        eachString(permitted, [&](const char* text) {
            GstVideoColorimetry colour;
            if (!gst_video_colorimetry_from_string(&colour, text) || !suits(colour)) return;
            if (!found || gst_video_colorimetry_is_equal(&colour, &natural)) found = {colour, text};
        });
        return found;
    }
    if (suits(natural)) return Colour{natural, nullptr};
    Colour other{natural, nullptr};
    for (const auto& [matrix, name] : knownMatrices)
        for (const GstVideoColorRange range : {GST_VIDEO_COLOR_RANGE_16_235, GST_VIDEO_COLOR_RANGE_0_255}) {
            other.colorimetry.matrix = matrix, other.colorimetry.range = range;
            if (suits(other.colorimetry)) return other;
        }
    return {};
}

struct Choice {
    int loss = INT_MAX, format = -1;
    guint structure = 0;
    Colour colour = {};
};

Choice choose(const GstVideoInfo& input, const Kind& from, const GstCaps* caps, bool keepsAlpha)
{
    Choice best;
    for (guint i = 0; i < gst_caps_get_size(caps); ++i) {
        const GstStructure* const structure = gst_caps_get_structure(caps, i);
        const Formats formats = isInSystemMemory(caps, i) ? formatsOf(structure) : Formats{};
        for (int format = 0; format < formatCount; ++format) {
            const GstVideoFormatInfo* const to = infoOf(format);
            if (!formats[format] || (keepsAlpha && dropsAlpha(*input.finfo, *to))) continue;
            const auto colour = colourIn(structure, format, input, from);
            if (!colour) continue;
            const bool isSameColour = kindOf(format, colour->colorimetry, input.height)->colour == from.colour;
            const int loss = lossOf(input.finfo, to) + (isAlike(input.finfo, to) && !isSameColour ? 16 : 0);
            if (loss < best.loss) best = {loss, format, i, *colour};
        }
    }
    return best;
}

// Where chroma lies between the pixels that share it: it stays there, or is made as the mean of their chroma.
void fixateSite(GstStructure* structure, const GstVideoInfo& input, const GstVideoFormatInfo* to)
{
    if (gst_structure_has_field(structure, "chroma-site") || !sharesChroma(to)) return;
    GstVideoChromaSite site = GST_VIDEO_CHROMA_SITE_UNKNOWN;
    if (!GST_VIDEO_INFO_IS_YUV(&input)) site = GST_VIDEO_CHROMA_SITE_JPEG;
    if (sharesAlike(input.finfo, to)) site = input.chroma_site;
    if (site == GST_VIDEO_CHROMA_SITE_UNKNOWN) return;
    if (gchar* const name = gst_video_chroma_site_to_string(site)) {
        gst_structure_set(structure, "chroma-site", G_TYPE_STRING, name, nullptr);
        g_free(name);
    }
}

} // namespace

bool dropsAlpha(const GstVideoFormatInfo& from, const GstVideoFormatInfo& to)
{
    return GST_VIDEO_FORMAT_INFO_HAS_ALPHA(&from) && !GST_VIDEO_FORMAT_INFO_HAS_ALPHA(&to);
}

GstCaps* templateCaps()
{
    GstVideoFormat formats[formatCount];
    std::transform(std::begin(knownFormats), std::end(knownFormats), formats,
                   [](const KnownFormat& known) { return known.format; });
    GstCaps* const caps = gst_video_make_raw_caps(formats, formatCount);
    gst_caps_append(caps, gst_video_make_raw_caps_with_features(formats, formatCount, gst_caps_features_new_any()));
    return caps;
}

GstCaps* otherCaps(GstPadDirection direction, GstCaps* caps, bool keepsAlpha)
{
    GstCaps* const others = gst_caps_copy(caps); // as they are, first: then nothing is done
    for (guint i = 0; i < gst_caps_get_size(caps); ++i) {
        if (!isInSystemMemory(caps, i)) continue;
        const GstStructure* const structure = gst_caps_get_structure(caps, i);
        const Formats formats = formatsOf(structure);
        const auto eachFormat = [&](auto visit) {
            for (int format = 0; format < formatCount; ++format)
                if (formats[format]) visit(format);
        };
        Reach anyColour(direction, keepsAlpha);
        const GValue* const colorimetries = gst_structure_get_value(structure, "colorimetry");
        if (!colorimetries)
            eachFormat(
                [&](int format) { eachConvertible(format, [&](const Kind& kind) { anyColour.convert(kind); }); });
        eachString(colorimetries, [&](const char* text) {
            GstVideoColorimetry colour;
            if (!gst_video_colorimetry_from_string(&colour, text)) return;
            Reach thisColour(direction, keepsAlpha);
            eachFormat([&](int format) {
                const std::optional<Kind> kind = kindOf(format, colour, 0);
                if (!kind) return;
                if (isConvertible(*kind))
                    anyColour.convert(*kind);
                else
                    thisColour.move(*kind);
            });
            append(others, structure, thisColour.reached, text);
        });
        append(others, structure, anyColour.reached, nullptr);
    }
    return others;
}

std::string refusalOf(const GstCaps* from, const GstCaps* to)
{
    std::optional<Kind> ends[2];
    for (const bool isTarget : {false, true}) {
        const GstCaps* const caps = isTarget ? to : from;
        if (gst_caps_is_empty(caps)) return {};
        const GstStructure* const structure = gst_caps_get_structure(caps, 0);
        const Formats formats = formatsOf(structure);
        int format = 0;
        while (format < formatCount && !formats[format]) ++format;
        if (format == formatCount) return {};
        GstVideoColorimetry colour = {};
        const char* name = nullptr;
        eachString(gst_structure_get_value(structure, "colorimetry"), [&](const char* text) {
            if (!name && gst_video_colorimetry_from_string(&colour, text)) name = text;
        });
        int height = 0;
        gst_structure_get_int(structure, "height", &height);
        ends[isTarget] = kindOf(format, colour, height);
        if (!ends[isTarget])
            return std::string("no conversion ") + (isTarget ? "leads to " : "comes from ") +
                   GST_VIDEO_FORMAT_INFO_NAME(infoOf(format)) + " of colorimetry " + name;
    }
    return connects(*ends[0], *ends[1]) ? std::string() : whyNot(*ends[0], *ends[1]);
}

GstCaps* bestCaps(const GstVideoInfo& input, GstCaps* caps, bool keepsAlpha)
{
    const std::optional<Kind> from = kindOf(input);
    const Choice best = from ? choose(input, *from, caps, keepsAlpha) : Choice{};
    if (best.format < 0) return gst_caps_fixate(caps);
    GstStructure* const structure = gst_structure_copy(gst_caps_get_structure(caps, best.structure));
    const GstVideoFormatInfo* const to = infoOf(best.format);
    gst_structure_set(structure, "format", G_TYPE_STRING, GST_VIDEO_FORMAT_INFO_NAME(to), nullptr);
    gchar* const colour = gst_video_colorimetry_to_string(&best.colour.colorimetry);
    if (const char* const text = best.colour.text ? best.colour.text : colour)
        gst_structure_set(structure, "colorimetry", G_TYPE_STRING, text, nullptr);
    g_free(colour);
    fixateSite(structure, input, to);
    gst_caps_unref(caps);
    GstCaps* const chosen = gst_caps_new_full(structure, nullptr);
    return gst_caps_fixate(chosen);
}

} // namespace zorcc::gstreamer
