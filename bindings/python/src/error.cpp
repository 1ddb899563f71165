// SPDX-License-Identifier: MIT
#include "error.h"

#include <pybind11/pybind11.h>

namespace py = pybind11;

namespace zorcc::python {

namespace {

py::object named(const char* name) { return py::module_::import("zorcc._status").attr(name); }

[[noreturn]] void raise(const py::object& error)
{
    PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(error.ptr())), error.ptr());
    throw py::error_already_set();
}

} // namespace

void fail(ZorStatus status, const std::string& text) { raise(named("Error")(text, status)); }

void failWithStatus(const std::string& what, ZorStatus status)
{
    fail(status, what + ": " + named("text_of")(status).cast<std::string>());
}

void warnOfStatus(const std::string& what, ZorStatus status)
{
    const std::string text = what + ": " + named("text_of")(status).cast<std::string>();
    if (PyErr_WarnEx(named("StatusWarning").ptr(), text.c_str(), 2) != 0) throw py::error_already_set();
}

} // namespace zorcc::python
