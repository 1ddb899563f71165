// SPDX-License-Identifier: MIT
// What the arrays of a picture look like.
#pragma once

#include <pybind11/numpy.h>
#include <pybind11/stl.h>

#include <string>
#include <vector>

#include "interface/formats.h"
#include "zorconvert.h"

namespace zorcc::python {

namespace py = pybind11;

// An array (rows, columns, samples), or (rows, columns) where a pixel has one sample.
struct PlaneShape {
    py::ssize_t rows, columns, samples;

    py::ssize_t rowSamples() const { return columns * samples; }
    py::ssize_t size() const { return rows * rowSamples(); }
    std::vector<py::ssize_t> shape() const;
};

struct Shape {
    int count;
    PlaneShape plane[interface::maxPlanes];

    py::ssize_t size() const; // samples of all planes
    bool isEven() const;      // all planes have as many rows and columns
};

// A format of zorPictureLayout, where what does not fill a block of pixels that share chroma has chroma of its own, or
// that of a function, where it mostly has none.
class Format {
public:
    explicit Format(const std::string& name);
    explicit Format(const interface::Format& ofFunction) : format(&ofFunction), name(ofFunction.name) {}

    const std::string& text() const { return name; }
    interface::Sample sample() const;
    int planes() const { return format ? format->planes : layout.planes; }
    bool isOfFunction() const { return format; }

    // Of a plan, zorcc.Error for a size that it cannot have.
    Shape at(ZorSize size) const;

    // "nv12 of 640x480 pixels is (480, 640), (240, 320, 2) of uint8".
    std::string describe(ZorSize size) const;

private:
    const interface::Format* format = nullptr;
    std::string name;
    ZorLayout layout{}; // of 16x16 pixels
};

py::dtype dtypeOf(interface::Sample sample);
std::string nameOf(interface::Sample sample);
std::string textOf(const std::vector<py::ssize_t>& shape); // "(480, 640)"

// Sides that are too large for an int count as the largest one, which no picture has.
ZorSize sizeOf(py::ssize_t width, py::ssize_t height);

} // namespace zorcc::python
