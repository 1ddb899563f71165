// SPDX-License-Identifier: MIT
#include "plans.h"

#include <algorithm>

#include "error.h"
#include "zorcore.h"

namespace zorcc::python {

namespace {

const char* orNull(const std::optional<std::string>& text) { return text ? text->c_str() : nullptr; }

// Whether pictures of this format have luma and chroma.
bool hasMatrix(const std::string& format)
{
    const ZorPicture picture = {format.c_str(), nullptr, zorRangeDefault, {16, 16}};
    ZorColour colour;
    return zorPictureColour(&picture, &colour) == zorStatusOk && colour.matrix[0] != '\0';
}

ZorPicture pictureOf(const Settings& settings, const End& end, ZorSize size)
{
    ZorPicture picture = {end.format.c_str(), orNull(end.matrix), end.range, size};
    if (!hasMatrix(end.format)) return picture;
    if (!picture.matrix) picture.matrix = orNull(settings.matrix);
    if (picture.range == zorRangeDefault) picture.range = settings.range;
    return picture;
}

ZorPlan* makePlan(const Settings& settings, ZorSize size)
{
    const ZorPicture from = pictureOf(settings, settings.from, size), to = pictureOf(settings, settings.to, size);
    return zorPlanCreate(&from, &to, &settings.options);
}

} // namespace

// ---- a plan ---------------------------------------------------------------------------------------------------------

Plan::Plan(const Settings& settings, ZorSize sizeGiven)
    : size(sizeGiven), threads(ownGetNumThreads()), from(settings.from.format), to(settings.to.format),
      plan(makePlan(settings, sizeGiven))
{
    const ZorStatus status = zorPlanStatus(plan.get());
    if (status != zorStatusOk) fail(status, plan ? zorPlanDescribe(plan.get()) : "not enough memory");
}

std::vector<std::pair<std::string, std::string>> Plan::steps() const
{
    std::vector<std::pair<std::string, std::string>> all;
    for (int i = 0; const char* function = zorPlanStepFunction(plan.get(), i); ++i)
        all.emplace_back(function, zorPlanStepFormat(plan.get(), i));
    return all;
}

py::object Plan::run(py::handle source, py::object out, bool joined)
{
    return runOn(Arrays(source, "source"), std::move(out), joined);
}

py::object Plan::runOn(const Arrays& source, py::object out, bool joined)
{
    const Memory given = source.memory(from, size, false);
    if (out.is_none()) out = newArrays(to, size, joined);
    const Arrays destination(out, "out");
    const Memory result = destination.memory(to, size, true);
    if (given.overlaps(result)) fail(zorStatusBadArgument, "source and out overlap");
    ZorStatus status;
    {
        const py::gil_scoped_release release; // before the lock: who holds it may wait for the interpreter
        const std::lock_guard lock(running);
        status = zorPlanRun(plan.get(), given.image.plane, given.image.step, result.image.plane, result.image.step);
    }
    if (status != zorStatusOk) failWithStatus(from.text() + " to " + to.text(), status);
    return out;
}

// ---- plans for any size ---------------------------------------------------------------------------------------------

std::unique_ptr<Plan> Conversion::take(ZorSize size)
{
    // The last one used first: of a plan for the same size, its memory is in the cache.
    const auto found = std::find_if(idle.rbegin(), idle.rend(), [&](const auto& plan) {
        return plan->size.width == size.width && plan->size.height == size.height &&
               plan->threads == ownGetNumThreads();
    });
    if (found == idle.rend()) return std::make_unique<Plan>(settings, size);
    std::unique_ptr<Plan> plan = std::move(*found);
    idle.erase(std::next(found).base());
    return plan;
}

void Conversion::putBack(std::unique_ptr<Plan> plan)
{
    if (idle.size() == mostIdle) idle.erase(idle.begin());
    idle.push_back(std::move(plan));
}

py::object Conversion::run(py::handle given, std::optional<std::pair<py::ssize_t, py::ssize_t>> size, py::object out,
                           bool joined)
{
    const Arrays source(given, "source");
    std::unique_ptr<Plan> plan = take(size ? sizeOf(size->first, size->second) : source.size(from));
    py::object result = plan->runOn(source, std::move(out), joined);
    putBack(std::move(plan));
    return result;
}

} // namespace zorcc::python
