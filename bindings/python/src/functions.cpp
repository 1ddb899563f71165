// SPDX-License-Identifier: MIT
#include "functions.h"

#include <algorithm>

#include "error.h"
#include "words.h"

namespace zorcc::python {

using interface::Extra;
using interface::Sample;

namespace {

// White, or opaque.
py::object whiteOf(Sample sample)
{
    switch (sample) {
    case Sample::u8:
        return py::int_(255);
    case Sample::s8:
        return py::int_(127);
    case Sample::u16:
        return py::int_(65535);
    case Sample::s16:
        return py::int_(32767);
    case Sample::s32:
        return py::int_(INT32_MAX);
    default:
        return py::float_(1.0);
    }
}

std::string textOf(py::handle value) { return py::str(value).cast<std::string>(); }

} // namespace

// ---- arguments ------------------------------------------------------------------------------------------------------

Function::Function(const interface::Function& rowGiven) : row(rowGiven), from(*row.source), to(*row.destination)
{
    const Extra defaults;
    for (std::string_view rest = row.arguments; !rest.empty();) {
        const std::string name(rest.substr(0, rest.find(',')));
        rest.remove_prefix(std::min(rest.size(), name.size() + 2));
        py::object value = py::ellipsis();
        if (name == "scratch" || name == "scratchStep") continue; // this module's own
        if (name == "alpha") value = whiteOf(to.sample());
        if (name == "slice") value = py::int_(defaults.slice);
        if (name == "noise") value = py::int_(defaults.noise);
        if (name == "method") value = py::str(wordOf(ditherMethods, defaults.method));
        if (name == "grid") value = py::str(wordOf(bayerGrids, defaults.grid));
        if (name == "interpolation") value = py::int_(defaults.interpolation);
        if (name == "vMin") value = py::float_(static_cast<double>(defaults.vMin));
        if (name == "vMax") value = py::float_(static_cast<double>(defaults.vMax));
        if (name == "weights") value = py::none();
        taken.emplace_back(name, value);
    }
    if (row.source->model == interface::Model::mosaic) taken.emplace_back("region", py::none());
}

void Function::set(const std::string& name, py::handle value, Extra& extra, Values& values) const
{
    const auto numbers = [&](float* first, const std::vector<py::ssize_t>& shape) {
        const auto array = py::array_t<float, py::array::c_style | py::array::forcecast>::ensure(value);
        if (!array || std::vector<py::ssize_t>(array.shape(), array.shape() + array.ndim()) != shape)
            throw py::value_error("numbers of the shape " + python::textOf(shape));
        std::copy_n(array.data(), array.size(), first);
    };
    if (name == "alpha") extra.alpha = value.cast<int>();
    if (name == "slice") extra.slice = value.cast<int>();
    if (name == "noise") extra.noise = value.cast<int>();
    if (name == "levels") extra.levels = value.cast<int>();
    if (name == "method") extra.method = static_cast<ZorDitherMethod>(numberOf(ditherMethods, value));
    if (name == "grid") extra.grid = numberOf(bayerGrids, value);
    if (name == "interpolation") extra.interpolation = value.cast<int>();
    if (name == "vMin") extra.vMin = value.cast<float>();
    if (name == "vMax") extra.vMax = value.cast<float>();
    if (name == "twist") {
        numbers(values.twist[0], {row.alpha == interface::Alpha::converted ? 4 : 3, 4});
        extra.twist = values.twist;
    }
    if (name == "weights" && !value.is_none()) {
        numbers(values.weights, {3});
        extra.weights = values.weights;
    }
    if (name == "region" && !value.is_none()) {
        const auto [x, y, width, height] = value.cast<std::tuple<int, int, int, int>>();
        extra.region = ZorRect{x, y, width, height};
    }
}

void Function::read(const py::dict& given, Extra& extra, Values& values) const
{
    py::dict rest(given);
    for (const auto& [argument, byDefault] : taken) {
        py::object value = byDefault;
        if (rest.contains(argument)) value = rest.attr("pop")(argument);
        if (py::isinstance<py::ellipsis>(value)) throw py::type_error(name() + " takes the argument " + argument);
        try {
            set(argument, value, extra, values);
        } catch (const py::cast_error&) {
            throw py::type_error(name() + ": " + argument + " cannot be " + textOf(value));
        } catch (const py::value_error& error) {
            throw py::value_error(name() + ": " + argument + " must be " + error.what());
        }
    }
    if (!rest.empty()) throw py::type_error(name() + " takes no argument " + textOf(rest.begin()->first));
    // These reach above their image, which no array says that there is more of.
    if (row.takesSlice && (extra.slice == 4 || extra.slice == 16))
        fail(zorStatusBadArgument, name() + ": a slice below another one writes above its array; give whole frames");
}

// ---- calls ----------------------------------------------------------------------------------------------------------

// The size of the result.
ZorSize Function::checkRegion(const Extra& extra, ZorSize size) const
{
    if (!extra.region) return size;
    const ZorRect& r = *extra.region;
    if (r.x < 0 || r.y < 0 || r.width < 1 || r.height < 1 || r.width > size.width - r.x || r.height > size.height - r.y)
        fail(zorStatusBadArgument, name() + ": the region is not in the image of " + std::to_string(size.width) + "x" +
                                       std::to_string(size.height) + " pixels");
    return {r.width, r.height};
}

void Function::checkSteps(const Memory& memory, bool isArray, bool stepsOfEach) const
{
    if (!row.signature.steps && memory.hasGaps())
        fail(zorStatusBadStep, name() + " takes images without gaps between rows");
    if (row.signature.steps && isArray && !stepsOfEach && !memory.hasOneStep())
        fail(zorStatusBadStep, name() + " has one step for all planes: their strides differ");
}

py::object Function::run(py::object source, py::object out, py::object sizeGiven, const py::dict& arguments) const
{
    Extra extra;
    Values values;
    read(arguments, extra, values);
    const interface::Signature& signature = row.signature;
    const Arrays arrays(source, signature.inPlace ? "image" : "source");
    ZorSize size;
    if (sizeGiven.is_none()) {
        size = arrays.size(from);
    } else {
        const auto [width, height] = sizeGiven.cast<std::pair<py::ssize_t, py::ssize_t>>();
        size = sizeOf(width, height);
    }
    const Memory given = arrays.memory(from, size, signature.inPlace);
    checkSteps(given, signature.sourceArray, signature.sourceSteps);

    Memory result = given;
    if (signature.inPlace) {
        out = source;
    } else {
        const ZorSize resultSize = checkRegion(extra, size);
        if (out.is_none()) {
            out = zeroArrays(to, resultSize);
            if (row.alpha == interface::Alpha::keep) // which is opaque in a new array
                out[py::make_tuple(py::ellipsis(), py::int_(3))] = whiteOf(to.sample());
        }
        result = Arrays(out, "out").memory(to, resultSize, true);
        checkSteps(result, signature.destinationArray, signature.destinationSteps);
        if (given.overlaps(result) && !given.isSame(result))
            fail(zorStatusBadArgument, name() + ": source and out overlap and are not the same image");
    }
    ZorStatus status;
    {
        const py::gil_scoped_release release;
        status = row(given.image, result.image, size, extra);
    }
    if (status < 0) failWithStatus(name(), status);
    if (status > 0) warnOfStatus(name(), status);
    return out;
}

std::vector<Function> functions()
{
    std::vector<Function> all;
    for (const interface::Function& row : interface::functions()) all.emplace_back(row);
    return all;
}

} // namespace zorcc::python
