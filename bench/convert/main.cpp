// SPDX-License-Identifier: MIT
// Plans of the conversion layer beside other libraries that take any format to any other.
#include <cmath>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include <CLI/CLI.hpp>

#include "bench/convert/peers.h"
#include "bench/race.h"
#include "bench/tiers.h"
#include "zorconvert.h"

namespace {

using namespace zorcc;
using namespace zorcc::bench;

struct Conversion {
    const char *from, *to;
};
// The last two are what the first and the third are without their chroma in pairs.
constexpr Conversion conversions[] = {{"nv12", "rgb24"},   {"yuyv", "bgra"},     {"rgb24", "nv12"},
                                      {"yuv420p", "rgba"}, {"yuv420p", "rgb24"}, {"rgb24", "yuv420p"}};

using Plan = std::unique_ptr<ZorPlan, void (*)(ZorPlan*)>;

Plan planOf(const Conversion& conversion, ZorSize size, int threads, int stripRows)
{
    ZorPlanOptions options{};
    options.structBytes = sizeof options;
    options.threads = threads;
    options.stripRows = stripRows;
    const ZorPicture from{conversion.from, "bt601", zorRangeDefault, size},
        to{conversion.to, "bt601", zorRangeDefault, size};
    const bool toRgb = conversion.to[0] == 'r' || conversion.to[0] == 'b';
    const ZorPicture rgb{toRgb ? conversion.to : conversion.from, nullptr, zorRangeDefault, size};
    Plan plan(toRgb ? zorPlanCreate(&from, &rgb, &options) : zorPlanCreate(&rgb, &to, &options), zorPlanFree);
    if (zorPlanStatus(plan.get()) != zorStatusOk) throw std::runtime_error(zorPlanDescribe(plan.get()));
    return plan;
}

void measure(const Conversion& conversion, ZorSize size, int stripRows, double seconds)
{
    const Frame source(conversion.from, size), destination(conversion.to, size);
    std::vector<Plan> plans;
    std::vector<Runner> runners;
    for (const int threads : {1, 2}) {
        plans.push_back(planOf(conversion, size, threads, stripRows));
        for (const auto& [name, tier] : tiersHere())
            runners.push_back({name + (threads == 1 ? "" : ", two threads"), [t = tier] { setActiveTier(t); },
                               [&, plan = plans.back().get()] {
                                   if (zorPlanRun(plan, source.plane, source.step, destination.plane,
                                                  destination.step) != zorStatusOk)
                                       throw std::runtime_error("a plan fails");
                               }});
    }
    const std::size_t ours = runners.size();
    for (Peer& peer : peersOf(conversion.from, conversion.to, source, destination))
        runners.push_back({std::move(peer.name), {}, std::move(peer.work)});
    race(runners, seconds);

    std::printf("%s -> %s, %dx%d\n", conversion.from, conversion.to, size.width, size.height);
    const double megapixels = 1e-6 * size.width * size.height;
    for (std::size_t i = 0; i < runners.size(); ++i) {
        std::printf("  %-34s %7.0f MP/s", runners[i].name.c_str(), megapixels / runners[i].seconds);
        if (i >= ours)
            for (std::size_t k = 0; k < ours / 2; ++k)
                std::printf("   %s %5.2fx", runners[k].name.c_str(), runners[i].seconds / runners[k].seconds);
        else if (i >= ours / 2)
            std::printf("   %5.2fx one", runners[i - ours / 2].seconds / runners[i].seconds);
        std::printf("\n");
    }
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("The conversion layer beside libswscale, libyuv and zimg");
    double seconds = 2;
    int stripRows = 0;
    std::string filter;
    app.add_option("--seconds", seconds, "time for each conversion and size");
    app.add_option("--strip-rows", stripRows, "rows of a strip; 0: as the plan wants");
    app.add_option("--filter", filter, "conversions with this text, such as 'nv12 -> '");
    CLI11_PARSE(app, argc, argv);
    for (const Conversion& conversion : conversions) {
        const std::string name = std::string(conversion.from) + " -> " + conversion.to;
        if (name.find(filter) == std::string::npos) continue;
        for (const ZorSize size : {ZorSize{1920, 1080}, ZorSize{3840, 2160}})
            measure(conversion, size, stripRows, seconds);
    }
    return 0;
}
