// SPDX-License-Identifier: MIT
// The extension module _zorcc. What users see of it, and its documentation, is in the package.
#include <pybind11/pybind11.h>

#include "error.h"
#include "functions.h"
#include "plans.h"
#include "words.h"
#include "zorcore.h"

namespace py = pybind11;
using namespace zorcc::python;

namespace {

// Of a word of options.
template <class T, std::size_t n> T choice(const char* option, const Word (&words)[n], py::handle given)
{
    try {
        return static_cast<T>(numberOf(words, given));
    } catch (const py::value_error& error) {
        throw py::value_error(std::string(option) + " must be " + error.what());
    }
}

using OptionalText = std::optional<std::string>;

Settings settingsOf(const std::string& fromFormat, const std::string& toFormat, const OptionalText& matrix,
                    const OptionalText& fromMatrix, const OptionalText& toMatrix, py::handle range,
                    py::handle fromRange, py::handle toRange, py::handle alpha, py::handle depth, bool dither,
                    py::handle grey, int threads)
{
    Settings s{{fromFormat, fromMatrix, choice<ZorRange>("from_range", ranges, fromRange)},
               {toFormat, toMatrix, choice<ZorRange>("to_range", ranges, toRange)},
               matrix,
               choice<ZorRange>("range", ranges, range),
               {}};
    s.options.structBytes = sizeof s.options;
    s.options.threads = threads;
    s.options.alpha = choice<ZorAlpha>("alpha", alphas, alpha);
    s.options.depth = choice<ZorDepth>("depth", depths, depth);
    s.options.fields = dither ? zorFieldsDither : zorFieldsTruncate;
    if (py::isinstance<py::str>(grey)) {
        s.options.grey = choice<ZorGrey>("grey", greys, grey);
    } else {
        const auto weights = grey.cast<std::array<float, 3>>();
        s.options.grey = zorGreyWeights;
        std::copy(weights.begin(), weights.end(), s.options.greyWeights);
    }
    return s;
}

std::vector<std::string> formats()
{
    std::vector<std::string> all;
    for (int i = 0; const char* name = zorFormatAt(i); ++i) all.emplace_back(name);
    return all;
}

// Letters of the channels, type of the samples, shapes of the planes.
py::tuple layout(const std::string& name, std::pair<py::ssize_t, py::ssize_t> size)
{
    const Format format(name);
    const Shape shape = format.at(sizeOf(size.first, size.second));
    const ZorPicture picture = {name.c_str(), nullptr, zorRangeDefault, {16, 16}};
    ZorLayout found;
    zorPictureLayout(&picture, &found); // as the format did
    py::tuple shapes(shape.count);
    for (int p = 0; p < shape.count; ++p) shapes[p] = py::tuple(py::cast(shape.plane[p].shape()));
    return py::make_tuple(found.name, found.channels, dtypeOf(format.sample()), shapes);
}

void setThreads(int count)
{
    if (const ZorStatus status = zorSetNumThreads(count); status != zorStatusOk)
        failWithStatus(std::to_string(count) + " threads", status);
}

} // namespace

PYBIND11_MODULE(_zorcc, m)
{
    py::class_<Settings>(m, "Settings").def(py::init(&settingsOf));

    py::class_<Plan>(m, "Plan")
        .def(py::init([](const Settings& settings, std::pair<py::ssize_t, py::ssize_t> size) {
            return std::make_unique<Plan>(settings, sizeOf(size.first, size.second));
        }))
        .def_property_readonly("text", &Plan::description)
        .def_property_readonly("losses", &Plan::losses)
        .def_property_readonly("steps", &Plan::steps)
        .def_property_readonly("size", &Plan::extent)
        .def("run", &Plan::run);

    py::class_<Conversion>(m, "Conversion").def(py::init<Settings>()).def("run", &Conversion::run);

    py::class_<Function>(m, "Function")
        .def_property_readonly("name", &Function::name)
        .def_property_readonly("family", &Function::family)
        .def_property_readonly("in_place", &Function::inPlace)
        .def_property_readonly("arguments", &Function::arguments)
        .def_property_readonly("source", [](const Function& f) { return f.source().text(); })
        .def_property_readonly("destination", [](const Function& f) { return f.destination().text(); })
        .def("shapes",
             [](const Function& f, bool ofDestination, std::pair<py::ssize_t, py::ssize_t> size) {
                 const Format& format = ofDestination ? f.destination() : f.source();
                 const Shape shape = format.at(sizeOf(size.first, size.second));
                 std::vector<std::vector<py::ssize_t>> all;
                 for (int p = 0; p < shape.count; ++p) all.push_back(shape.plane[p].shape());
                 return std::pair(nameOf(format.sample()), all);
             })
        .def("run", &Function::run);

    m.def("functions", &functions);
    m.def("formats", &formats);
    m.def("layout", &layout);
    m.def("threads", &ownGetNumThreads);
    m.def("set_threads", &setThreads);
    m.attr("__version__") = ZORCC_VERSION;
}
