// SPDX-License-Identifier: MIT
#include "format.h"

#include <algorithm>
#include <climits>

#include "error.h"

namespace zorcc::python {

using interface::Sample;

namespace {

constexpr const char* dtypeNames[] = {"uint8", "int8", "uint16", "int16", "int32", "float32"}; // by Sample

ZorLayout layoutOf(const std::string& name, ZorSize size)
{
    const ZorPicture picture = {name.c_str(), nullptr, zorRangeDefault, size};
    ZorLayout layout;
    if (const ZorStatus status = zorPictureLayout(&picture, &layout); status != zorStatusOk) {
        ZorPlan* const plan = zorPlanCreate(&picture, &picture, nullptr); // which says why there is none
        const std::string text = plan ? zorPlanDescribe(plan) : "not enough memory";
        zorPlanFree(plan);
        fail(status, name + ": " + text);
    }
    return layout;
}

// Samples that share a place in a row: a pixel, or a pair of chroma.
int samplesOf(const ZorLayout& layout, int plane)
{
    if (layout.planes == 1) return layout.rowBytes[0] / layout.sampleBytes / 16;
    return layout.planes == 2 && plane == 1 ? 2 : 1;
}

} // namespace

// ---- shapes ---------------------------------------------------------------------------------------------------------

std::vector<py::ssize_t> PlaneShape::shape() const
{
    std::vector<py::ssize_t> all{rows, columns};
    if (samples > 1) all.push_back(samples);
    return all;
}

py::ssize_t Shape::size() const
{
    py::ssize_t sum = 0;
    for (int p = 0; p < count; ++p) sum += plane[p].size();
    return sum;
}

bool Shape::isEven() const
{
    return std::all_of(plane, plane + count, [&](const PlaneShape& other) {
        return other.rows == plane[0].rows && other.columns == plane[0].columns && other.samples == plane[0].samples;
    });
}

// ---- formats --------------------------------------------------------------------------------------------------------

Format::Format(const std::string& nameGiven) : name(nameGiven), layout(layoutOf(nameGiven, {16, 16})) {}

Sample Format::sample() const { return format ? format->sample : static_cast<Sample>(layout.sample); }

Shape Format::at(ZorSize size) const
{
    Shape shape{planes(), {}};
    if (format) {
        for (int p = 0; p < shape.count; ++p) {
            const interface::PlaneShape& plane = format->plane[p];
            shape.plane[p] = {interface::rows(*format, p, size.height),
                              interface::sharedSamples(*format, size.width, plane.log2X), plane.samples};
        }
        return shape;
    }
    const ZorLayout actual = layoutOf(name, size);
    for (int p = 0; p < shape.count; ++p) {
        const int samples = samplesOf(layout, p);
        shape.plane[p] = {actual.rows[p], actual.rowBytes[p] / actual.sampleBytes / samples, samples};
    }
    return shape;
}

std::string Format::describe(ZorSize size) const
{
    const Shape shape = at(size);
    std::string text = name + " of " + std::to_string(size.width) + "x" + std::to_string(size.height) + " pixels is ";
    for (int p = 0; p < shape.count; ++p) text += (p ? ", " : "") + textOf(shape.plane[p].shape());
    return text + " of " + nameOf(sample());
}

// ---- types ----------------------------------------------------------------------------------------------------------

std::string nameOf(Sample sample) { return dtypeNames[static_cast<int>(sample)]; }

py::dtype dtypeOf(Sample sample)
{
    switch (sample) {
    case Sample::u8:
        return py::dtype::of<std::uint8_t>();
    case Sample::s8:
        return py::dtype::of<std::int8_t>();
    case Sample::u16:
        return py::dtype::of<std::uint16_t>();
    case Sample::s16:
        return py::dtype::of<std::int16_t>();
    case Sample::s32:
        return py::dtype::of<std::int32_t>();
    default:
        return py::dtype::of<float>();
    }
}

std::string textOf(const std::vector<py::ssize_t>& shape)
{
    std::string text;
    for (const py::ssize_t side : shape) text += (text.empty() ? "" : ", ") + std::to_string(side);
    return "(" + text + ")";
}

ZorSize sizeOf(py::ssize_t width, py::ssize_t height)
{
    constexpr py::ssize_t most = INT_MAX;
    return {static_cast<int>(std::clamp<py::ssize_t>(width, 0, most)),
            static_cast<int>(std::clamp<py::ssize_t>(height, 0, most))};
}

} // namespace zorcc::python
