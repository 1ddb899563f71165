// SPDX-License-Identifier: MIT
#include "arguments.h"

#include "error.h"

namespace zorcc::tool {

namespace {

// "noise, method" names noise and method.
bool takes(const Function& function, const std::string& name)
{
    return (", " + std::string(function.arguments) + ",").find(", " + name + ",") != std::string::npos;
}

} // namespace

Arguments::Arguments(const Function& function, const std::map<std::string, std::string>& texts)
{
    for (const auto& [name, text] : texts) {
        const bool isRegion = name == "region" && function.source->model == interface::Model::mosaic;
        if (!takes(function, name) && !isRegion)
            throw UsageError("--" + name + ": " + std::string(function.name) + " takes " +
                             (function.arguments.empty() ? "no arguments" : std::string(function.arguments)));
        set(name, text);
    }
    const std::size_t channels = function.source->channels.size() < 4 ? 3 : 4;
    if (!weights.empty() && weights.size() != 3 && weights.size() != channels)
        throw UsageError("--weights: give three numbers, one for each of red, green and blue");
    if (takes(function, "weights") && !weights.empty()) extra.weights = weights.data();
}

void Arguments::set(const std::string& name, const std::string& text)
{
    const std::string option = "--" + name;
    if (name == "alpha") extra.alpha = number<int>(option, text);
    if (name == "slice") extra.slice = number<int>(option, text);
    if (name == "noise") extra.noise = number<int>(option, text);
    if (name == "levels") extra.levels = number<int>(option, text);
    if (name == "interpolation") extra.interpolation = number<int>(option, text);
    if (name == "vMin") extra.vMin = number<float>(option, text);
    if (name == "vMax") extra.vMax = number<float>(option, text);
    if (name == "method") extra.method = static_cast<ZorDitherMethod>(choiceOf(option, text, ditherMethods));
    if (name == "grid") extra.grid = choiceOf(option, text, bayerGrids);
    if (name == "weights") weights = numbers<float>(option, text);
    if (name == "twist") {
        twist = parseTwist(option, text);
        extra.twist = twist.rows;
    }
    if (name == "region") {
        const std::vector<int> sides = numbers<int>(option, text);
        if (sides.size() != 4) throw UsageError(option + ": " + quoted(text) + " is not x,y,width,height");
        extra.region = ZorRect{sides[0], sides[1], sides[2], sides[3]};
    }
}

interface::Extra Arguments::forPicture(ZorSize size) const
{
    if (extra.region) {
        const ZorRect& r = *extra.region;
        if (r.x < 0 || r.y < 0 || r.width < 1 || r.height < 1 || r.width > size.width - r.x ||
            r.height > size.height - r.y)
            throw Cause("the region is not in the picture of " + sizeName(size));
    }
    return extra;
}

} // namespace zorcc::tool
