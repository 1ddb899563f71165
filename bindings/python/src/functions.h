// SPDX-License-Identifier: MIT
// The exported functions on arrays, by the table of the interface.
#pragma once

#include <string>
#include <vector>

#include "arrays.h"
#include "interface/functions.h"

namespace zorcc::python {

class Function {
public:
    explicit Function(const interface::Function& row);

    std::string name() const { return std::string(row.name); }
    std::string family() const { return std::string(row.family); }
    bool inPlace() const { return row.signature.inPlace; }
    const Format& source() const { return from; }
    const Format& destination() const { return to; }

    // Beside images: name and default, which is Ellipsis for those that must be given.
    const std::vector<std::pair<std::string, py::object>>& arguments() const { return taken; }

    // Gives `out`, or new arrays. `arguments` are by name. A function in place has no `out` and gives the source.
    py::object run(py::object source, py::object out, py::object size, const py::dict& arguments) const;

private:
    const interface::Function& row;
    Format from, to;
    std::vector<std::pair<std::string, py::object>> taken;

    // What arguments point to.
    struct Values {
        float twist[4][4], weights[4];
    };
    void read(const py::dict& arguments, interface::Extra& extra, Values& values) const;
    void set(const std::string& argument, py::handle value, interface::Extra& extra, Values& values) const;
    ZorSize checkRegion(const interface::Extra& extra, ZorSize size) const;
    void checkSteps(const Memory& memory, bool isArray, bool stepsOfEach) const;
};

std::vector<Function> functions();

} // namespace zorcc::python
