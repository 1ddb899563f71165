// SPDX-License-Identifier: MIT
// The arguments of any function beside images and size, as texts of the command line.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "function_run.h"
#include "values.h"

namespace zorcc::tool {

class Arguments {
public:
    // Throws UsageError for a text that is no such value, and for an argument that the function does not take.
    Arguments(const Function& function, const std::map<std::string, std::string>& texts);

    // Of the source, where one is given: the result has its size.
    const std::optional<ZorRect>& region() const { return extra.region; }

    // The region, if there is one, must lie in the picture.
    interface::Extra forPicture(ZorSize size) const;

private:
    void set(const std::string& name, const std::string& text);

    interface::Extra extra = opaque;
    TwistMatrix twist;
    std::vector<float> weights;
};

} // namespace zorcc::tool
