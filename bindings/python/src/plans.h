// SPDX-License-Identifier: MIT
// Plans of libzorconvert on arrays.
#pragma once

#include <array>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "arrays.h"

namespace zorcc::python {

// One end of a conversion. `matrix` and `range` of both ends count where a format has luma and chroma and its own say
// nothing.
struct End {
    std::string format;
    std::optional<std::string> matrix;
    ZorRange range = zorRangeDefault;
};

struct Settings {
    End from, to;
    std::optional<std::string> matrix;
    ZorRange range = zorRangeDefault;
    ZorPlanOptions options{};
};

// A plan, which one thread at a time runs.
class Plan {
public:
    Plan(const Settings& settings, ZorSize size); // zorcc.Error where there is none

    std::string description() const { return zorPlanDescribe(plan.get()); }
    std::string losses() const { return zorPlanLosses(plan.get()); }
    std::vector<std::pair<std::string, std::string>> steps() const; // function, format that it gives
    std::pair<int, int> extent() const { return {size.width, size.height}; }

    py::object run(py::handle source, py::object out, bool joined);
    py::object runOn(const Arrays& source, py::object out, bool joined);

    const ZorSize size;
    const int threads; // that the process was set to when this was made

private:
    struct Free {
        void operator()(ZorPlan* p) const { zorPlanFree(p); }
    };
    const Format from, to;
    std::unique_ptr<ZorPlan, Free> plan;
    std::mutex running;
};

// Plans for pictures of any size. Those of the last sizes are kept while nobody runs them.
class Conversion {
public:
    explicit Conversion(Settings s) : settings(std::move(s)), from(settings.from.format) {}

    py::object run(py::handle source, std::optional<std::pair<py::ssize_t, py::ssize_t>> size, py::object out,
                   bool joined);

private:
    static constexpr std::size_t mostIdle = 4;

    const Settings settings;
    const Format from;
    std::vector<std::unique_ptr<Plan>> idle; // the interpreter's lock guards it; the last one used at the end

    std::unique_ptr<Plan> take(ZorSize size);
    void putBack(std::unique_ptr<Plan> plan);
};

} // namespace zorcc::python
