// SPDX-License-Identifier: MIT
// Arrays as pictures, without copies.
#pragma once

#include <vector>

#include "format.h"
#include "interface/call.h"

namespace zorcc::python {

// A picture in memory: pointers and steps of its planes, and what they reach.
struct Memory {
    interface::Image image;
    int planes = 0;
    int rowBytes[interface::maxPlanes] = {};
    py::ssize_t rows[interface::maxPlanes] = {};

    bool isSame(const Memory& other) const;   // the same rows of the same samples
    bool overlaps(const Memory& other) const; // shares a byte
    bool hasGaps() const;                     // between rows, or rows that go upwards
    bool hasOneStep() const;
};

// What a caller gave as a picture: a tuple or list of planes, or one array. Whatever has the buffer protocol or DLPack
// is an array, too.
class Arrays {
public:
    Arrays(py::handle given, const char* role);

    // As the shapes say it. zorcc.Error where they do not; `size` is then to be given.
    ZorSize size(const Format& format) const;

    // Checks types, shapes and strides; zorcc.Error.
    Memory memory(const Format& format, ZorSize size, bool written) const;

private:
    std::vector<py::array> arrays;
    bool arePlanes;
    const char* role;

    std::string text() const;
    [[noreturn]] void failToMatch(const Format& format, ZorSize size) const;
    void check(const py::array& array, const Format& format, bool written) const;
    void addPlane(Memory& memory, const Format& format, const PlaneShape& shape, const char* first, py::ssize_t step,
                  py::ssize_t itemSize) const;
    bool addSeparate(Memory& memory, const Format& format, const Shape& shape) const;
    bool addJoined(Memory& memory, const Format& format, const Shape& shape) const;
};

// New arrays: an array, or of more than one plane a tuple; `joined`: planes in one array, one below the other.
py::object newArrays(const Format& format, ZorSize size, bool joined);

// Cleared.
py::object zeroArrays(const Format& format, ZorSize size);

} // namespace zorcc::python
