// SPDX-License-Identifier: MIT
#include "pairs.h"

#include <atomic>
#include <memory>

namespace zorcc::gstreamer {

namespace {

constexpr int kinds = formatCount * Kind::colourCount;

int placeOf(const Kind& kind) { return kind.format * Kind::colourCount + kind.colour; }

using Plan = std::unique_ptr<ZorPlan, decltype(&zorPlanFree)>;

Plan planOf(const Kind& from, const Kind& to)
{
    constexpr ZorSize size = {16, 16}; // whether there is one depends on none
    const ZorPicture ends[2] = {from.picture(size), to.picture(size)};
    ZorPlanOptions options = {};
    options.structBytes = sizeof options;
    options.threads = 1;
    return Plan(zorPlanCreate(&ends[0], &ends[1], &options), zorPlanFree);
}

} // namespace

bool connects(const Kind& from, const Kind& to)
{
    enum Answer : char { unknown, yes, no };
    static std::atomic<Answer> answers[kinds][kinds]; // threads that ask at a time find the same
    std::atomic<Answer>& answer = answers[placeOf(from)][placeOf(to)];
    if (answer == unknown) answer = zorPlanStatus(planOf(from, to).get()) == zorStatusOk ? yes : no;
    return answer == yes;
}

bool isConvertible(const Kind& kind)
{
    if (!GST_VIDEO_FORMAT_INFO_IS_YUV(kind.info())) return true;
    // Planes of 4:2:0 are what every matrix with functions has.
    const Kind planes = {indexOf(GST_VIDEO_FORMAT_I420), kind.colour}, rgb = {indexOf(GST_VIDEO_FORMAT_RGB), 0};
    return connects(planes, rgb) || connects(rgb, planes);
}

std::string whyNot(const Kind& from, const Kind& to) { return zorPlanDescribe(planOf(from, to).get()); }

} // namespace zorcc::gstreamer
