// SPDX-License-Identifier: MIT
// Calls any exported conversion through one signature. What each of its parameters takes is told by the parameters'
// types and their order, when this is compiled:
//
//     images, size, extras                                      most functions
//     source, region, size, step, destination, step, extras     those that convert a region
//
// An image is a pointer and a step, both again for a second plane, or an array of planes and a step for all or an array
// of steps; there are no steps where all images are without gaps.
#pragma once

#include <array>
#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>

#include "interface/extra.h"
#include "interface/formats.h"
#include "zorcc.h"

namespace zorcc::interface {

// Plane pointers and steps in bytes of one image; a single pointer or step argument takes entry 0.
struct Image {
    void* plane[maxPlanes] = {};
    int step[maxPlanes] = {};
};

// The arguments of a call.
struct Call {
    Image source, destination;
    ZorSize size;
    Extra extra;
    bool nullArrays[2] = {}; // pass a null array of planes for the source, the destination
};

// What a signature says about its images.
struct Signature {
    bool steps;                         // takes steps at all; otherwise rows follow each other without gaps
    bool sourceArray, destinationArray; // takes an array of plane pointers
    bool sourceSteps, destinationSteps; // takes a step for every plane; otherwise one step serves all
    bool slice;                         // takes the position of the image in a frame
    bool scratch;                       // takes scratch memory
};

// ---- parameters -----------------------------------------------------------------------------------------------------

enum class Takes { plane, planes, step, steps, region, size, extra };

struct Parameter {
    Takes takes;
    bool ofDestination = false; // of an image's
    int number = 0;             // of the plane, of the extra
};

template <class T> constexpr Takes takenBy()
{
    if (std::is_same_v<T, ZorRect>) return Takes::region;
    if (std::is_same_v<T, ZorSize>) return Takes::size;
    if (std::is_same_v<T, int>) return Takes::step;
    if (std::is_same_v<T, const int*>) return Takes::steps;
    if (!std::is_pointer_v<T>) return Takes::extra;
    return std::is_pointer_v<std::remove_pointer_t<T>> ? Takes::planes : Takes::plane;
}

// Of samples that may be written.
template <class T> inline constexpr bool pointsToDestination = !std::is_const_v<std::remove_pointer_t<T>>;
template <class T> inline constexpr bool pointsToDestination<T* const*> = !std::is_const_v<T>;

// How many parameters stand before the extras.
template <class... T> constexpr int imagesAndSize()
{
    if ((std::is_same_v<T, ZorRect> || ...)) return 6;
    constexpr Takes takes[] = {takenBy<T>()...};
    int size = 0;
    while (takes[size] != Takes::size) ++size;
    return size + 1;
}

template <class... T> constexpr std::array<Parameter, sizeof...(T)> parametersOf()
{
    constexpr int count = sizeof...(T), firstExtra = imagesAndSize<T...>();
    constexpr bool toDestination[] = {pointsToDestination<T>...};
    std::array<Parameter, count> all{Parameter{takenBy<T>()}...};
    bool ofDestination = false;
    int plane = -1;
    for (int i = 0; i < firstExtra; ++i) {
        if (all[i].takes == Takes::plane || all[i].takes == Takes::planes) {
            plane = toDestination[i] == ofDestination ? plane + 1 : 0;
            ofDestination = toDestination[i];
        }
        all[i] = {all[i].takes, ofDestination, plane};
    }
    for (int i = firstExtra; i < count; ++i) all[i] = {Takes::extra, false, i - firstExtra};
    return all;
}

// Arrays of planes live in the argument.
template <class T> struct PlaneArray {
    std::remove_const_t<std::remove_pointer_t<T>> plane[maxPlanes];
    bool null;

    PlaneArray(const Image& image, bool isNull) : null(isNull)
    {
        for (int p = 0; p < maxPlanes; ++p) plane[p] = static_cast<decltype(+plane[0])>(image.plane[p]);
    }
    operator T() const { return null ? nullptr : plane; }
};

template <class T, Parameter p, class Extras> auto argument(const Call& call)
{
    const Image& image = p.ofDestination ? call.destination : call.source;
    if constexpr (p.takes == Takes::plane) return static_cast<T>(image.plane[p.number]);
    if constexpr (p.takes == Takes::planes) return PlaneArray<T>(image, call.nullArrays[p.ofDestination]);
    if constexpr (p.takes == Takes::step) return image.step[p.number];
    if constexpr (p.takes == Takes::steps) return static_cast<T>(image.step);
    if constexpr (p.takes == Takes::region)
        return call.extra.region.value_or(ZorRect{0, 0, call.size.width, call.size.height});
    if constexpr (p.takes == Takes::size) return call.size;
    if constexpr (p.takes == Takes::extra) return call.extra.*std::get<p.number>(membersOf(Extras{}));
}

// ---- functions ------------------------------------------------------------------------------------------------------

template <auto function> struct Bound;

template <class... T, ZorStatus (*function)(T...)> struct Bound<function> {
    static ZorStatus call(const Call& call) { return bind(call)(); }

    // The call, to be made as often as wanted without converting arguments again. It outlives what this gives.
    static std::function<ZorStatus()> prepare(const Call& call) { return bind(call); }

    static constexpr Signature signature()
    {
        Signature s{};
        for (const Parameter& p : parameters) {
            s.steps |= p.takes == Takes::step || p.takes == Takes::steps;
            (p.ofDestination ? s.destinationArray : s.sourceArray) |= p.takes == Takes::planes;
            (p.ofDestination ? s.destinationSteps : s.sourceSteps) |=
                p.takes == Takes::steps || (p.takes == Takes::plane && p.number > 0);
        }
        s.slice = holds<&Extra::slice>(Taken{});
        s.scratch = holds<&Extra::scratch>(Taken{});
        return s;
    }

private:
    static constexpr auto parameters = parametersOf<T...>();

    static constexpr std::size_t firstExtra = imagesAndSize<T...>();

    template <std::size_t... k> static auto typesBehindSize(std::index_sequence<k...>)
    {
        return Types<std::tuple_element_t<firstExtra + k, std::tuple<T...>>...>{};
    }

    using Taken = decltype(extrasOf(typesBehindSize(std::make_index_sequence<sizeof...(T) - firstExtra>{})));

    static auto bind(const Call& call)
    {
        return [&]<std::size_t... i>(std::index_sequence<i...>)
        {
            return [arguments = std::tuple{argument<T, parameters[i], Taken>(call)...}] {
                return std::apply([](const auto&... argument) { return function(static_cast<T>(argument)...); },
                                  arguments);
            };
        }
        (std::index_sequence_for<T...>{});
    }
};

} // namespace zorcc::interface
