// SPDX-License-Identifier: MIT
#include "tests/harness/argument_checks.h"

#include <algorithm>
#include <climits>
#include <vector>

#include "tests/harness/contents.h"

namespace zorcc::test {

using interface::Function;

namespace {

constexpr ZorSize goodSize{40, 16}; // whole blocks of every function

// One faulty argument. The faults of a function stand in the order of its checks.
struct Fault {
    enum Kind { nullImage, badSize, badStep, nullPlane, badGrid } kind;
    bool ofDestination = false;
    int plane = 0;

    ZorStatus status() const
    {
        return kind == badSize   ? zorStatusBadSize
               : kind == badStep ? zorStatusBadStep
               : kind == badGrid ? zorStatusBadArgument
                                 : zorStatusNullPointer;
    }
};

std::vector<Fault> faultsOf(const reference::Case& c, const Function& function)
{
    std::vector<Fault> faults;
    // The first plane of separate pointers stands for the image.
    const auto addPlanes = [&](bool ofDestination) {
        const bool array = ofDestination ? function.signature.destinationArray : function.signature.sourceArray;
        for (int p = !array; p < (ofDestination ? function.destination : function.source)->planes; ++p)
            faults.push_back({Fault::nullPlane, ofDestination, p});
    };
    faults.push_back({Fault::nullImage, false});
    if (c.checks == reference::Checks::stepsFirst) {
        addPlanes(false);
        faults.push_back({Fault::nullImage, true});
        addPlanes(true);
        faults.insert(faults.end(), {{Fault::badStep, false}, {Fault::badStep, true}, {Fault::badSize}});
    } else {
        faults.push_back({Fault::nullImage, true});
        if (c.checks == reference::Checks::sizeFirst) faults.push_back({Fault::badSize});
        addPlanes(false);
        addPlanes(true);
        if (c.checks == reference::Checks::pointersFirst) faults.push_back({Fault::badSize});
        if (c.demosaic) faults.push_back({Fault::badGrid});
    }
    return faults;
}

struct Images {
    TestImage source, destination;

    explicit Images(const Function& function)
    {
        source.arrange(*function.source, goodSize, goodSize, {}, sourceSteps(function.signature));
        fill(source, Contents::random, 1);
        source.copyToShadow();
        destination.arrange(*function.destination, goodSize, goodSize, {}, destinationSteps(function.signature));
        destination.fillPattern(2);
        destination.copyToShadow();
    }
};

// Calls with the faults whose bits are set.
ZorStatus call(const Function& function, const Images& images, const std::vector<Fault>& faults, unsigned chosen,
               ZorSize badSize)
{
    interface::Call arguments {
        images.source.image(), images.destination.image(), goodSize, function.withScratch({}, goodSize)
    };
    for (std::size_t i = 0; i < faults.size(); ++i) {
        if ((chosen >> i & 1) == 0) continue;
        const Fault& fault = faults[i];
        interface::Image& image = fault.ofDestination ? arguments.destination : arguments.source;
        const bool array = fault.ofDestination ? function.signature.destinationArray : function.signature.sourceArray;
        if (fault.kind == Fault::badSize)
            arguments.size = badSize;
        else if (fault.kind == Fault::badStep)
            image.step[0] = std::min(badSize.width, badSize.height);
        else if (fault.kind == Fault::badGrid)
            arguments.extra.grid = badSize.width < 0 ? -1 : 4;
        else if (fault.kind == Fault::nullImage && array)
            arguments.nullArrays[fault.ofDestination] = true;
        else
            image.plane[fault.plane] = nullptr;
    }
    return function.bound(arguments);
}

} // namespace

testing::AssertionResult checkFaultyArguments(const reference::Case& c, const Function& function)
{
    const Images images(function);
    const std::vector<Fault> faults = faultsOf(c, function);
    const ZorSize badSizes[] = {{0, 4},
                                {40, 0},
                                {-1, 4},
                                {40, -1},
                                {0, 0},
                                {INT_MIN, 4},
                                {40, INT_MIN},
                                {c.minimum.width - 1, 16},
                                {40, c.minimum.height - 1}};
    for (unsigned chosen = 1; chosen < 1u << faults.size(); ++chosen)
        for (const ZorSize badSize : badSizes) {
            const Fault& first = faults[static_cast<std::size_t>(__builtin_ctz(chosen))];
            const ZorStatus status = call(function, images, faults, chosen, badSize);
            auto failure = testing::AssertionFailure()
                           << function.name << ", faults (bits, in the order of checks) " << chosen << ", bad size "
                           << badSize.width << "x" << badSize.height << ": ";
            if (status != first.status()) return failure << "status " << status << ", not " << first.status();
            if (const auto d = images.destination.difference())
                return failure << "written in spite of the error: " << describe(*d);
            if (const auto d = images.source.difference()) return failure << "source changed: " << describe(*d);
        }
    return testing::AssertionSuccess();
}

testing::AssertionResult checkOddSizes(const reference::Case& c, const Function& function)
{
    const Images images(function);
    for (int width : {40, 39, 38, 36, 4, 3, 2, 1})
        for (int height : {16, 15, 12, 9, 8, 7, 6, 4, 3, 2, 1}) {
            const ZorStatus status = function(images.source.image(), images.destination.image(), {width, height});
            if (status != reference::statusOf(c, {width, height}))
                return testing::AssertionFailure()
                       << function.name << ", " << width << "x" << height << ": status " << status;
        }
    return testing::AssertionSuccess();
}

} // namespace zorcc::test
