// SPDX-License-Identifier: MIT
#include "arguments.h"

#include <charconv>

#include "error.h"
#include "names.h"

namespace zorcc::tool {

namespace {

template <class T> T number(const std::string& name, std::string_view text)
{
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        throw UsageError("--" + name + ": " + quoted(std::string(text)) + " is no number");
    return value;
}

template <class T> std::vector<T> numbers(const std::string& name, std::string_view text)
{
    std::vector<T> all;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(',', start), text.size());
        all.push_back(number<T>(name, text.substr(start, end - start)));
        start = end + 1;
    }
    return all;
}

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
    if (name == "alpha") extra.alpha = number<int>(name, text);
    if (name == "slice") extra.slice = number<int>(name, text);
    if (name == "noise") extra.noise = number<int>(name, text);
    if (name == "levels") extra.levels = number<int>(name, text);
    if (name == "interpolation") extra.interpolation = number<int>(name, text);
    if (name == "vMin") extra.vMin = number<float>(name, text);
    if (name == "vMax") extra.vMax = number<float>(name, text);
    if (name == "method") extra.method = static_cast<ZorDitherMethod>(choiceOf("--method", text, ditherMethods));
    if (name == "grid") extra.grid = choiceOf("--grid", text, bayerGrids);
    if (name == "weights") weights = numbers<float>(name, text);
    if (name == "twist") {
        twist = parseTwist(text);
        extra.twist = twist.rows;
    }
    if (name == "region") {
        const std::vector<int> sides = numbers<int>(name, text);
        if (sides.size() != 4) throw UsageError("--region: " + quoted(text) + " is not x,y,width,height");
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
