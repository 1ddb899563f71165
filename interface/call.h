// SPDX-License-Identifier: MIT
// Calls any exported conversion in one way. Its parameters are
//
//     images, size, arguments                                      most functions
//     image, size, arguments                                       those in place
//     source, region, size, step, destination, step, arguments     those that convert a region
//
// An image is a pointer and a step, both again for a second plane, or an array of planes and a step for all or an array
// of steps; there are no steps where all images are without gaps. The table names the arguments.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

#include "interface/names.h"
#include "zorcc.h"

namespace zorcc::interface {

// Plane pointers and steps in bytes of one image; a single pointer or step argument takes entry 0.
struct Image {
    void* plane[maxPlanes] = {};
    int step[maxPlanes] = {};
};

// Arguments beside images and size.
struct Extra {
    int alpha = 0;  // of any type of samples
    int slice = 21; // of a deinterlacing conversion: the whole frame
    int noise = 0;  // of a bit-depth reduction
    int levels = 16;
    ZorDitherMethod method = zorDitherMethodNone;
    int grid = zorBayerRGGB; // as a number, which may be one that the type does not name
    int interpolation = 0;
    std::optional<ZorRect> region = std::nullopt; // of the source; all of it if there is none
    void* scratch = nullptr;
    int scratchStep = 0;
    const float (*twist)[4] = identity; // rows
    const float* weights = nullptr;     // of the channels in a grey; null: those of luma
    float vMin = 0, vMax = 1;           // of a curve on floats

    static constexpr float identity[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
};

// The names of arguments, as the table has them.
namespace arguments {
inline constexpr auto alpha = &Extra::alpha;
inline constexpr auto slice = &Extra::slice;
inline constexpr auto noise = &Extra::noise;
inline constexpr auto levels = &Extra::levels;
inline constexpr auto method = &Extra::method;
inline constexpr auto grid = &Extra::grid;
inline constexpr auto interpolation = &Extra::interpolation;
inline constexpr auto scratch = &Extra::scratch;
inline constexpr auto scratchStep = &Extra::scratchStep;
inline constexpr auto twist = &Extra::twist;
inline constexpr auto weights = &Extra::weights;
inline constexpr auto vMin = &Extra::vMin;
inline constexpr auto vMax = &Extra::vMax;
} // namespace arguments

struct Call {
    Image source, destination;
    ZorSize size;
    Extra extra;
    bool nullArrays[2] = {}; // pass a null array of planes for the source, the destination
};

// What a signature says about its images.
struct Signature {
    bool inPlace;                       // one image is source and destination
    bool steps;                         // takes steps at all; otherwise rows follow each other without gaps
    bool sourceArray, destinationArray; // takes an array of plane pointers
    bool sourceSteps, destinationSteps; // takes a step for every plane; otherwise one step serves all
    Sample source, destination;

    constexpr bool operator==(const Signature&) const = default;
};

// What the name of a function says of its signature.
constexpr Signature signatureOf(const Name& name)
{
    const auto array = [](const Name::Side& side) { return isPlanar(side) && side.layout != "P2"; };
    const auto stepOfEachPlane = [&](const Name::Side& side) {
        return name.steps && isPlanar(side) && shapeOf(name, side).log2X > 0;
    };
    return {name.inPlace,
            name.steps,
            array(name.source),
            array(name.destination),
            stepOfEachPlane(name.source),
            stepOfEachPlane(name.destination),
            sampleOf(name.source),
            sampleOf(name.destination)};
}

// ---- parameters -----------------------------------------------------------------------------------------------------

enum class Takes { plane, planes, step, steps, region, size };

// A parameter before the arguments.
struct Parameter {
    Takes takes;
    bool ofDestination = false; // of an image's
    int number = 0;             // of the plane
};

template <class T> constexpr Takes takenBy()
{
    if (std::is_same_v<T, ZorRect>) return Takes::region;
    if (std::is_same_v<T, ZorSize>) return Takes::size;
    if (std::is_same_v<T, int>) return Takes::step;
    if (std::is_same_v<T, const int*>) return Takes::steps;
    return std::is_pointer_v<std::remove_pointer_t<T>> ? Takes::planes : Takes::plane;
}

// What a pointer or an array of pointers leads to.
template <class T> struct Pointed {
    using Type = T;
};
template <class T> struct Pointed<T*> : Pointed<T> {
};
template <class T> struct Pointed<T* const> : Pointed<T> {
};
template <class T> using SampleOf = typename Pointed<T>::Type;

template <class T> constexpr Sample sampleOfType()
{
    using S = std::remove_const_t<T>;
    if (std::is_same_v<S, std::uint8_t>) return Sample::u8;
    if (std::is_same_v<S, std::int8_t>) return Sample::s8;
    if (std::is_same_v<S, std::uint16_t>) return Sample::u16;
    if (std::is_same_v<S, std::int16_t>) return Sample::s16;
    return std::is_same_v<S, float> ? Sample::f32 : Sample::s32;
}

template <class... T> constexpr std::array<Parameter, sizeof...(T)> parametersOf()
{
    std::array<Parameter, sizeof...(T)> all{
        Parameter{takenBy<T>(), std::is_pointer_v<T> && !std::is_const_v<SampleOf<T>>}...};
    int plane = -1;
    bool ofDestination = false;
    for (Parameter& p : all) {
        if (p.takes == Takes::plane || p.takes == Takes::planes) {
            plane = p.ofDestination == ofDestination ? plane + 1 : 0;
            ofDestination = p.ofDestination;
        }
        p = {p.takes, ofDestination, plane};
    }
    return all;
}

// ---- values of parameters -------------------------------------------------------------------------------------------

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

template <class T, Parameter p> auto valueOf(const Call& call)
{
    const Image& image = p.ofDestination ? call.destination : call.source;
    if constexpr (p.takes == Takes::plane) return static_cast<T>(image.plane[p.number]);
    if constexpr (p.takes == Takes::planes) return PlaneArray<T>(image, call.nullArrays[p.ofDestination]);
    if constexpr (p.takes == Takes::step) return image.step[p.number];
    if constexpr (p.takes == Takes::steps) return static_cast<T>(image.step);
    if constexpr (p.takes == Takes::region)
        return call.extra.region.value_or(ZorRect{0, 0, call.size.width, call.size.height});
    if constexpr (p.takes == Takes::size) return call.size;
}

// An argument is of the parameter's type, but for enumerators and samples as numbers and scratch memory of any type.
template <class T, class Member> T argumentOf(const Member& value)
{
    constexpr bool isNumber = std::is_enum_v<T> || (std::is_integral_v<T> && sizeof(T) < sizeof(int));
    static_assert(std::is_same_v<T, Member> || (isNumber && std::is_same_v<Member, int>) ||
                  (std::is_pointer_v<T> && std::is_same_v<Member, void*>));
    return static_cast<T>(value);
}

// ---- functions ------------------------------------------------------------------------------------------------------

template <auto function, auto... arguments> struct Bound;

template <class... T, ZorStatus (*function)(T...), auto... arguments> struct Bound<function, arguments...> {
    static constexpr auto parameters = parametersOf<T...>();
    static constexpr std::size_t firstArgument = sizeof...(T) - sizeof...(arguments);

    // Every parameter after the images and the size is an argument.
    static_assert(parameters[firstArgument - 1].takes == Takes::size ||
                  (firstArgument == 6 && parameters[1].takes == Takes::region));

    static ZorStatus call(const Call& call)
    {
        return callWith(call, std::make_index_sequence<firstArgument>{},
                        std::make_index_sequence<sizeof...(arguments)>{});
    }

    static constexpr Signature signature()
    {
        constexpr Sample samples[] = {sampleOfType<SampleOf<T>>()...};
        Signature s{};
        s.inPlace = parameters[0].ofDestination;
        for (std::size_t i = 0; i < firstArgument; ++i) {
            const Parameter& p = parameters[i];
            s.steps |= p.takes == Takes::step || p.takes == Takes::steps;
            (p.ofDestination ? s.destinationArray : s.sourceArray) |= p.takes == Takes::planes;
            (p.ofDestination ? s.destinationSteps : s.sourceSteps) |=
                p.takes == Takes::steps || (p.takes == Takes::plane && p.number > 0);
            if (p.takes == Takes::plane || p.takes == Takes::planes)
                (p.ofDestination ? s.destination : s.source) = samples[i];
        }
        if (s.inPlace) {
            s.sourceArray = s.destinationArray;
            s.source = s.destination;
        }
        return s;
    }

    template <class Member> static constexpr bool takes([[maybe_unused]] Member argument)
    {
        return (takesArgument(argument, arguments) || ...);
    }

private:
    template <std::size_t i> using TypeAt = std::tuple_element_t<i, std::tuple<T...>>;

    template <std::size_t... i, std::size_t... k>
    static ZorStatus callWith(const Call& call, std::index_sequence<i...>, std::index_sequence<k...>)
    {
        return function(valueOf<TypeAt<i>, parameters[i]>(call)...,
                        argumentOf<TypeAt<firstArgument + k>>(call.extra.*arguments)...);
    }

    template <class A, class B> static constexpr bool takesArgument(A a, B b)
    {
        if constexpr (std::is_same_v<A, B>) return a == b;
        return false;
    }
};

} // namespace zorcc::interface
