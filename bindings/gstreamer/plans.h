// SPDX-License-Identifier: MIT
// The plans of the conversion layer that a negotiated pair of caps takes, and frames run through them.
#pragma once

#include <memory>
#include <string>

#include "formats.h"

namespace zorcc::gstreamer {

// Properties of the element.
struct Settings {
    int threads = 1;
    ZorDepth dither = zorDepthNearest;
    ZorAlpha alpha = zorAlphaDrop;

    bool operator==(const Settings&) const = default;
};

class Plans {
public:
    Plans(const GstVideoInfo& input, const GstVideoInfo& output, const Settings& settings);

    bool areMade() const { return zorPlanStatus(whole.get()) == zorStatusOk; }
    // What is done, or why nothing can be.
    const std::string& description() const { return words; }
    bool areBy(const Settings& others) const { return settings == others; }

    ZorStatus run(const GstVideoFrame& input, const GstVideoFrame& output);

private:
    struct Freed {
        void operator()(ZorPlan* plan) const { zorPlanFree(plan); }
    };
    using Plan = std::unique_ptr<ZorPlan, Freed>;

    const Settings settings;
    std::optional<Kind> from, to;
    ZorPlanOptions options = {};
    ZorSize size;
    bool sharesRows; // chroma, at either end
    Plan whole, field[2];
    std::string words;

    Plan make(ZorSize sizeOfIt) const;
    bool isByFields(const GstVideoFrame& input, const GstVideoFrame& output) const;
};

} // namespace zorcc::gstreamer
