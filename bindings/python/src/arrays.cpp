// SPDX-License-Identifier: MIT
#include "arrays.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "error.h"

namespace zorcc::python {

namespace {

constexpr ZorSize nominal = {16, 16}; // whole blocks of every format

py::array asArray(py::handle given)
{
    if (py::isinstance<py::array>(given)) return py::reinterpret_borrow<py::array>(given);
    const py::module_ numpy = py::module_::import("numpy");
    if (PyObject_CheckBuffer(given.ptr())) // as bytes would otherwise be one text
        return numpy.attr("asarray")(py::memoryview(py::reinterpret_borrow<py::object>(given)));
    if (py::hasattr(given, "__dlpack__")) return numpy.attr("from_dlpack")(given);
    return numpy.attr("asarray")(given);
}

std::vector<py::ssize_t> shapeOf(const py::array& array) { return {array.shape(), array.shape() + array.ndim()}; }

// Whether the axes from this one on lie in memory without gaps, in their order.
bool isDense(const py::array& array, py::ssize_t axis)
{
    py::ssize_t step = array.itemsize();
    for (py::ssize_t i = array.ndim() - 1; i >= axis; --i) {
        if (array.shape(i) > 1 && array.strides(i) != step) return false;
        step *= array.shape(i);
    }
    return true;
}

py::ssize_t samplesFrom(const py::array& array, py::ssize_t axis)
{
    py::ssize_t count = 1;
    for (py::ssize_t i = axis; i < array.ndim(); ++i) count *= array.shape(i);
    return count;
}

// First and last byte of a plane's rows.
struct Extent {
    std::uintptr_t begin, end;
};
Extent extentOf(const Memory& memory, int p)
{
    const auto first = reinterpret_cast<std::uintptr_t>(memory.image.plane[p]);
    const std::uintptr_t last = first + static_cast<std::uintptr_t>(memory.image.step[p] * (memory.rows[p] - 1));
    return {std::min(first, last), std::max(first, last) + static_cast<std::uintptr_t>(memory.rowBytes[p])};
}

bool planesOverlap(const Memory& a, int p, const Memory& b, int q)
{
    if (a.rows[p] < 1 || b.rows[q] < 1 || a.rowBytes[p] < 1 || b.rowBytes[q] < 1) return false;
    const Extent one = extentOf(a, p), other = extentOf(b, q);
    if (one.end <= other.begin || other.end <= one.begin) return false;
    // Parts of one array, side by side: rows at the same distance that fit into each other's gaps.
    const auto step = static_cast<std::uintptr_t>(std::abs(a.image.step[p]));
    if (static_cast<std::uintptr_t>(std::abs(b.image.step[q])) != step) return true;
    const std::uintptr_t offset = (other.begin + step - one.begin % step) % step;
    return offset < static_cast<std::uintptr_t>(a.rowBytes[p]) ||
           offset + static_cast<std::uintptr_t>(b.rowBytes[q]) > step;
}

} // namespace

// ---- memory ---------------------------------------------------------------------------------------------------------

bool Memory::isSame(const Memory& other) const
{
    if (planes != other.planes) return false;
    for (int p = 0; p < planes; ++p)
        if (image.plane[p] != other.image.plane[p] || image.step[p] != other.image.step[p] ||
            rowBytes[p] != other.rowBytes[p] || rows[p] != other.rows[p])
            return false;
    return true;
}

bool Memory::overlaps(const Memory& other) const
{
    for (int p = 0; p < planes; ++p)
        for (int q = 0; q < other.planes; ++q)
            if (planesOverlap(*this, p, other, q)) return true;
    return false;
}

bool Memory::hasGaps() const { return !std::equal(rowBytes, rowBytes + planes, image.step); }

bool Memory::hasOneStep() const
{
    return std::all_of(image.step, image.step + planes, [&](int step) { return step == image.step[0]; });
}

// ---- arrays ---------------------------------------------------------------------------------------------------------

Arrays::Arrays(py::handle given, const char* roleGiven)
    : arePlanes(py::isinstance<py::tuple>(given) || py::isinstance<py::list>(given)), role(roleGiven)
{
    if (arePlanes)
        for (py::handle plane : given) arrays.push_back(asArray(plane));
    else
        arrays.push_back(asArray(given));
}

std::string Arrays::text() const
{
    std::string shapes;
    for (const py::array& array : arrays)
        shapes += (shapes.empty() ? "" : ", ") + textOf(shapeOf(array)) + " of " + std::string(py::str(array.dtype()));
    return shapes.empty() ? "nothing" : shapes;
}

void Arrays::failToMatch(const Format& format, ZorSize size) const
{
    const Shape shape = format.at(size);
    std::string joined;
    if (shape.count > 1 && size.width > 0 && shape.size() % size.width == 0)
        joined = ", or in one array " + textOf({shape.size() / size.width, size.width});
    fail(zorStatusBadSize, format.describe(size) + joined + "; the " + role + " is " + text());
}

ZorSize Arrays::size(const Format& format) const
{
    const Shape shape = format.at(nominal);
    const int planesGiven = static_cast<int>(arrays.size());
    const bool hasAll = arePlanes ? planesGiven == shape.count : shape.count == 1;
    if (hasAll) {
        const py::array& first = arrays[0];
        const bool hasSamples = first.ndim() == 3 && first.shape(2) == shape.plane[0].samples;
        if (hasSamples || (first.ndim() == 2 && shape.plane[0].samples == 1))
            return sizeOf(first.shape(1), first.shape(0));
    } else if (!arePlanes) {
        const py::array& all = arrays[0];
        if (all.ndim() == 3 && shape.isEven() && all.shape(0) == shape.count) return sizeOf(all.shape(2), all.shape(1));
        const py::ssize_t pixels = nominal.width * nominal.height;
        if (all.ndim() == 2 && all.shape(0) * pixels % shape.size() == 0)
            return sizeOf(all.shape(1), all.shape(0) * pixels / shape.size());
    }
    failToMatch(format, nominal);
}

void Arrays::check(const py::array& array, const Format& format, bool written) const
{
    const py::dtype expected = dtypeOf(format.sample()), type = array.dtype();
    if (type.kind() != expected.kind() || type.itemsize() != expected.itemsize() || type.byteorder() == '>')
        fail(zorStatusBadArgument, format.text() + " is of " + nameOf(format.sample()) + "; the " + role + " is of " +
                                       std::string(py::str(array.dtype())));
    if (written && !array.writeable()) fail(zorStatusBadArgument, std::string("the ") + role + " is read-only");
}

void Arrays::addPlane(Memory& memory, const Format& format, const PlaneShape& shape, const char* first,
                      py::ssize_t step, py::ssize_t itemSize) const
{
    const int p = memory.planes++;
    const py::ssize_t bytes = shape.rowSamples() * itemSize;
    if (shape.rows < 2) step = bytes;
    const std::string what = format.text() + ": the rows of the " + role;
    if (bytes > INT_MAX || std::abs(step) > INT_MAX)
        fail(zorStatusBadSize, what + " are " + std::to_string(step) + " bytes apart");
    if (std::abs(step) < bytes)
        fail(zorStatusBadStep, what + " overlap: they are " + std::to_string(step) + " bytes apart");
    if (step % itemSize != 0 || reinterpret_cast<std::uintptr_t>(first) % static_cast<std::uintptr_t>(itemSize) != 0)
        fail(zorStatusBadStep, what + " are not aligned to their samples");
    memory.image.plane[p] = const_cast<char*>(first);
    memory.image.step[p] = static_cast<int>(step);
    memory.rowBytes[p] = static_cast<int>(bytes);
    memory.rows[p] = shape.rows;
}

// An array for each plane. Shared chroma that a function leaves out of account may be there.
bool Arrays::addSeparate(Memory& memory, const Format& format, const Shape& shape) const
{
    for (int p = 0; p < shape.count; ++p) {
        const py::array& array = arrays[p];
        PlaneShape plane = shape.plane[p];
        if (array.ndim() < 1) return false;
        const py::ssize_t rows = array.shape(0), rowSamples = samplesFrom(array, 1);
        const py::ssize_t moreRows = rows - plane.rows, more = rowSamples - plane.rowSamples();
        const py::ssize_t most = format.isOfFunction() && p > 0 ? 1 : 0;
        if (moreRows < 0 || moreRows > most || more < 0 || more > most * plane.samples) return false;
        if (!isDense(array, 1))
            fail(zorStatusBadStep, format.text() + ": the samples of a row of the " + role +
                                       " do not lie side by side; numpy.ascontiguousarray makes a copy where they do");
        addPlane(memory, format, plane, static_cast<const char*>(array.data()), array.strides(0), array.itemsize());
    }
    return true;
}

// One array for all planes: (planes, rows, columns), one plane below the other, or all samples in a row.
bool Arrays::addJoined(Memory& memory, const Format& format, const Shape& shape) const
{
    const py::array& array = arrays[0];
    const char* first = static_cast<const char*>(array.data());
    const py::ssize_t itemSize = array.itemsize();
    const PlaneShape& one = shape.plane[0];
    if (shapeOf(array) == std::vector<py::ssize_t>{shape.count, one.rows, one.columns} && shape.isEven()) {
        if (!isDense(array, 2)) fail(zorStatusBadStep, format.text() + ": the rows have gaps between samples");
        for (int p = 0; p < shape.count; ++p)
            addPlane(memory, format, shape.plane[p], first + p * array.strides(0), array.strides(1), itemSize);
        return true;
    }
    const bool hasRows = array.ndim() == 2 && array.shape(1) == one.columns;
    if (array.size() != shape.size() || !(hasRows || array.ndim() == 1)) return false;
    const bool rowsAreEqual = std::all_of(shape.plane, shape.plane + shape.count, [&](const PlaneShape& plane) {
        return plane.rowSamples() == one.rowSamples();
    });
    const bool rowsAreRows = hasRows && rowsAreEqual && isDense(array, 1);
    if (!rowsAreRows && !isDense(array, 0))
        fail(zorStatusBadStep, format.text() + ": the " + role + " holds all planes and has gaps between its rows");
    for (int p = 0; p < shape.count; ++p) {
        const PlaneShape& plane = shape.plane[p];
        const py::ssize_t step = rowsAreRows ? array.strides(0) : plane.rowSamples() * itemSize;
        addPlane(memory, format, plane, first, step, itemSize);
        first += plane.rows * step;
    }
    return true;
}

Memory Arrays::memory(const Format& format, ZorSize size, bool written) const
{
    for (const py::array& array : arrays) check(array, format, written);
    const Shape shape = format.at(size);
    Memory memory;
    const bool isOne = !arePlanes && (shape.count > 1 || arrays[0].ndim() == 1);
    const bool hasAll = isOne || static_cast<int>(arrays.size()) == shape.count;
    if (!hasAll || !(isOne ? addJoined(memory, format, shape) : addSeparate(memory, format, shape)))
        failToMatch(format, size);
    return memory;
}

// ---- new arrays -----------------------------------------------------------------------------------------------------

namespace {

template <class Make> py::object arraysOf(const Shape& shape, Make make)
{
    if (shape.count == 1) return make(shape.plane[0].shape());
    py::tuple all(shape.count);
    for (int p = 0; p < shape.count; ++p) all[p] = make(shape.plane[p].shape());
    return all;
}

} // namespace

py::object newArrays(const Format& format, ZorSize size, bool joined)
{
    const Shape shape = format.at(size);
    const py::dtype type = dtypeOf(format.sample());
    const auto make = [&](const std::vector<py::ssize_t>& sides) { return py::object(py::array(type, sides)); };
    if (!joined || shape.count == 1) return arraysOf(shape, make);
    const Shape blocks = format.at(nominal);
    const py::ssize_t rows = shape.size() / size.width, pixels = nominal.width * nominal.height;
    if (rows * size.width != shape.size() || rows * pixels != size.height * blocks.size())
        fail(zorStatusBadSize, format.describe(size) + ", which does not fill one array");
    return make({rows, size.width});
}

py::object zeroArrays(const Format& format, ZorSize size)
{
    const py::object zeros = py::module_::import("numpy").attr("zeros");
    const py::dtype type = dtypeOf(format.sample());
    return arraysOf(format.at(size),
                    [&](const std::vector<py::ssize_t>& sides) { return py::object(zeros(sides, type)); });
}

} // namespace zorcc::python
