// SPDX-License-Identifier: MIT
#include "formats.h"

#include <algorithm>
#include <deque>
#include <memory>
#include <mutex>

#include "error.h"
#include "names.h"

namespace zorcc::tool {

using interface::Layout;

namespace {

// A format, and the layer's description, whose names it refers to.
struct Entry {
    ZorLayout layout;
    Format format;
};

Layout layoutOf(const ZorLayout& layout, std::string_view channels)
{
    if (layout.fieldBits[0] != 0) return Layout::packedBits;
    if (layout.planes == 1) return layout.log2ChromaX > 0 ? Layout::packed422 : Layout::interleaved;
    return static_cast<std::size_t>(layout.planes) < channels.size() ? Layout::semiPlanar : Layout::planar;
}

void describe(Entry& entry)
{
    const ZorLayout& from = entry.layout;
    const std::string_view channels = from.channels;
    Format& to = entry.format;
    to = {from.name, channels, {}, static_cast<Sample>(from.sample), layoutOf(from, channels), from.planes, {}};
    to.fieldBits = 100 * from.fieldBits[0] + 10 * from.fieldBits[1] + from.fieldBits[2];
    const bool isSplit = from.planes > 1, isPairs = to.layout == Layout::packed422;
    to.plane[0].samples = isSplit || to.fieldBits != 0 ? 1 : isPairs ? 2 : static_cast<int>(channels.size());
    for (int p = 1; p < from.planes; ++p) to.plane[p].samples = to.layout == Layout::semiPlanar ? 2 : 1;
    for (int p = 1; p < std::min(from.planes, 3); ++p) {
        to.plane[p].log2X = from.log2ChromaX;
        to.plane[p].log2Y = from.log2ChromaY;
    }
}

// Null for a name that the layer does not know.
const Format* findFormat(const std::string& name)
{
    static std::deque<Entry> known; // whose elements never move
    static std::mutex mutex;
    const ZorPicture picture = {name.c_str(), nullptr, zorRangeDefault, {1, 1}};
    ZorLayout layout;
    if (zorPictureLayout(&picture, &layout) != zorStatusOk) return nullptr;
    const std::lock_guard lock(mutex);
    for (const Entry& entry : known)
        if (entry.format.name == layout.name) return &entry.format;
    Entry& entry = known.emplace_back();
    entry.layout = layout;
    describe(entry);
    return &entry.format;
}

// The layer's message about a picture that cannot exist.
std::string complaintAbout(const ZorPicture& picture)
{
    const std::unique_ptr<ZorPlan, void (*)(ZorPlan*)> plan(zorPlanCreate(&picture, &picture, nullptr), zorPlanFree);
    return zorPlanDescribe(plan.get());
}

std::string printable(const std::string& name)
{
    const std::string text = quoted(name);
    return text.substr(1, std::min<std::size_t>(text.size() - 2, 100));
}

} // namespace

std::vector<std::string> formatNames()
{
    std::vector<std::string> names;
    for (int i = 0; const char* const name = zorFormatAt(i); ++i) names.emplace_back(name);
    std::sort(names.begin(), names.end());
    return names;
}

PictureKind formatNamed(const std::string& name)
{
    const Format* const format = findFormat(name);
    const ZorPicture picture = {name.c_str(), nullptr, zorRangeDefault, {1, 1}};
    if (!format) {
        const std::string shown = printable(name);
        throw UsageError(complaintAbout({shown.c_str(), nullptr, zorRangeDefault, {1, 1}}) +
                         " (zorcc list --formats shows all)");
    }
    ZorColour colour;
    if (zorPictureColour(&picture, &colour) != zorStatusOk || colour.isSaid == 0) return {format};
    return {format, {colour.matrix, colour.range}};
}

const Format& layerFormat(const Format& format)
{
    // Names of functions' formats may end with a matrix.
    return *findFormat(std::string(format.name.substr(0, format.name.find('_'))));
}

const Format* formatOfModel(const std::string& name, const Format& from)
{
    const char* const suffix = from.sample == Sample::f32   ? "f32"
                               : from.sample == Sample::u8  ? "24"
                               : from.sample == Sample::s16 ? "48s"
                                                            : "48";
    if (findFormat(name)) return nullptr; // hlsa is a format
    for (const std::string& candidate : {name + suffix, name + "48"})
        if (const Format* const format = findFormat(candidate); format && !isRgb(*format) && !isYuv(*format))
            return format;
    return nullptr;
}

void checkMatrix(const std::string& name)
{
    const std::string shown = printable(name);
    const ZorPicture picture = {"yuv444p", shown.c_str(), zorRangeDefault, {1, 1}};
    if (ZorColour colour; zorPictureColour(&picture, &colour) != zorStatusOk) throw UsageError(complaintAbout(picture));
}

Colour colourOf(interface::Model model)
{
    const std::string matrix(interface::propertiesOf(model).matrix);
    const ZorPicture picture = {"yuv444p", matrix.c_str(), zorRangeDefault, {1, 1}};
    ZorColour colour;
    if (matrix.empty() || zorPictureColour(&picture, &colour) != zorStatusOk) return {};
    return {colour.matrix, colour.range};
}

const Format& pictureFormat(bool grey, bool alpha, Sample sample)
{
    const int depth = sample == Sample::f32 ? 2 : sample == Sample::u8 || sample == Sample::s8 ? 0 : 1;
    constexpr const char* names[3][3] = {
        {"grey8", "grey16", "greyf32"}, {"rgb24", "rgb48", "rgbf32"}, {"rgba", "rgba64", "rgbaf32"}};
    return *findFormat(names[grey ? 0 : alpha ? 2 : 1][depth]);
}

const Format& y4mFormat(const Format& format)
{
    return *findFormat(format.log2Y() > 0   ? "yuv420p"
                       : format.log2X() > 1 ? "yuv411p"
                       : format.log2X() > 0 ? "yuv422p"
                                            : "yuv444p");
}

} // namespace zorcc::tool
