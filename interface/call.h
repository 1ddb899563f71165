// SPDX-License-Identifier: MIT
// Calls any exported conversion through one signature, whatever the order and kinds of its arguments.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <tuple>
#include <type_traits>

#include "interface/formats.h"
#include "zorcc.h"

namespace zorcc::interface {

// Plane pointers and steps in bytes of one image; a single pointer or step argument takes entry 0.
struct Image {
    void* plane[maxPlanes] = {};
    int step[maxPlanes] = {};
};

// Arguments beside images and size; each function takes those that its signature asks for.
struct Extra {
    std::uint8_t alpha = 0;
    ZorBayerGrid grid = zorBayerRGGB;
    int slice = 21; // of a deinterlacing conversion: the whole frame
    int noise = 0;  // of a bit-depth reduction
    int levels = 16;
    ZorDitherMethod method = zorDitherMethodNone;
};

// What the binder consumes from: images in order, then the extras.
struct Call {
    const Image& source;
    const Image& destination;
    ZorSize size;
    const Extra& extra;
    const Image* image = nullptr; // the image whose pointer argument came last
    bool inDestination = false;   // which of the two that is; they may be one object
    int plane = 0;                // the plane of it that a single pointer argument named
    bool nullArrays[2] = {};      // pass a null array of planes for the source, the destination
    bool dithers = false;         // the integers behind the size are noise and levels
    int integers = -1;            // that have been passed behind the size; -1: the size itself has not been passed
    bool region = false;          // a region has been passed: the size that follows comes before the images' steps

    int nextSource() { return next(source, false); }
    int nextDestination() { return next(destination, true); }

private:
    int next(const Image& of, bool isDestination)
    {
        plane = image && inDestination == isDestination ? plane + 1 : 0;
        inDestination = isDestination;
        image = &of;
        return plane;
    }
};

// One argument of type T, converted from the call where its parameter stands. Arrays of planes live in it.
template <class T> struct Argument;

template <class T> struct Argument<const T*> { // pointer of a source image
    const T* value;
    explicit Argument(Call& call) : value(static_cast<const T*>(call.source.plane[call.nextSource()])) {}
    operator const T*() const { return value; }
};

template <class T> struct Argument<T*> { // pointer of a destination image
    T* value;
    explicit Argument(Call& call) : value(static_cast<T*>(call.destination.plane[call.nextDestination()])) {}
    operator T*() const { return value; }
};

template <class T> struct Argument<const T* const*> { // plane pointers of a source image
    const T* value[maxPlanes];
    bool null;
    explicit Argument(Call& call) : null(call.nullArrays[0])
    {
        call.nextSource();
        for (int p = 0; p < maxPlanes; ++p) value[p] = static_cast<const T*>(call.source.plane[p]);
    }
    operator const T* const*() const { return null ? nullptr : value; }
};

template <class T> struct Argument<T* const*> { // plane pointers of a destination image
    T* value[maxPlanes];
    bool null;
    explicit Argument(Call& call) : null(call.nullArrays[1])
    {
        call.nextDestination();
        for (int p = 0; p < maxPlanes; ++p) value[p] = static_cast<T*>(call.destination.plane[p]);
    }
    operator T* const*() const { return null ? nullptr : value; }
};

template <> struct Argument<int> { // step of the image, or of the plane, before it; behind the size an extra
    int value;
    explicit Argument(Call& call)
        : value(call.integers < 0     ? call.image->step[call.plane]
                : call.integers++ > 0 ? call.extra.levels
                : call.dithers        ? call.extra.noise
                                      : call.extra.slice)
    {
    }
    operator int() const { return value; }
};

template <> struct Argument<ZorDitherMethod> {
    ZorDitherMethod value;
    explicit Argument(Call& call) : value(call.extra.method) {}
    operator ZorDitherMethod() const { return value; }
};

template <> struct Argument<const int*> { // steps of the planes before it
    const int* value;
    explicit Argument(Call& call) : value(call.image->step) {}
    operator const int*() const { return value; }
};

template <> struct Argument<ZorSize> {
    ZorSize value;
    explicit Argument(Call& call) : value(call.size)
    {
        if (!call.region) call.integers = 0;
    }
    operator ZorSize() const { return value; }
};

template <> struct Argument<ZorRect> { // the whole image as the region
    ZorRect value;
    explicit Argument(Call& call) : value{0, 0, call.size.width, call.size.height} { call.region = true; }
    operator ZorRect() const { return value; }
};

template <> struct Argument<ZorBayerGrid> {
    ZorBayerGrid value;
    explicit Argument(Call& call) : value(call.extra.grid) {}
    operator ZorBayerGrid() const { return value; }
};

template <> struct Argument<std::uint8_t> {
    std::uint8_t value;
    explicit Argument(Call& call) : value(call.extra.alpha) {}
    operator std::uint8_t() const { return value; }
};

// What a signature says about its images.
struct Signature {
    bool steps;                         // takes steps at all; otherwise rows follow each other without gaps
    bool sourceArray, destinationArray; // takes an array of plane pointers
    bool sourceSteps, destinationSteps; // takes a step for every plane; otherwise one step serves all
    bool slice;                         // takes the position of the image in a frame
    bool scratch;                       // takes scratch memory as well, behind the destination of a region
};

template <class T> inline constexpr bool isSourceArray = false;
template <class T> inline constexpr bool isSourceArray<const T* const*> = true;
template <class T> inline constexpr bool isDestinationArray = false;
template <class T> inline constexpr bool isDestinationArray<T* const*> = !std::is_const_v<T>;
template <class T> inline constexpr bool isDestination = isDestinationArray<T>;
template <class T> inline constexpr bool isDestination<T*> = !std::is_const_v<T> || isDestinationArray<T*>;
template <class T>
inline constexpr bool isPlane =
    std::is_pointer_v<T> && !std::is_pointer_v<std::remove_pointer_t<T>> && !std::is_same_v<T, const int*>;

template <auto function> struct Bound;

template <class... Parameters, ZorStatus (*function)(Parameters...)> struct Bound<function> {
    static constexpr bool dithers = (std::is_same_v<Parameters, ZorDitherMethod> || ...);

    static ZorStatus call(Call& call)
    {
        call.dithers = dithers;
        std::tuple<Argument<Parameters>...> arguments{Argument<Parameters>(call)...}; // braces: left to right
        return std::apply([](const auto&... argument) { return function(argument...); }, arguments);
    }

    // The call as it stands, to be made as often as wanted without converting arguments again.
    static std::function<ZorStatus()> prepare(Call& call)
    {
        call.dithers = dithers;
        return [arguments = std::tuple<Argument<Parameters>...>{Argument<Parameters>(call)...}] {
            return std::apply([](const auto&... argument) { return function(argument...); }, arguments);
        };
    }

    static constexpr Signature signature()
    {
        Signature s{};
        bool destination = false, sized = false, region = false;
        int planes[2] = {}; // that have a pointer and a step of their own
        auto look = [&]<class T>(std::type_identity<T>) {
            s.slice |= sized && !dithers && std::is_same_v<T, int>;
            region |= std::is_same_v<T, ZorRect>;
            sized |= std::is_same_v<T, ZorSize> && !region;
            s.steps |= std::is_same_v<T, int> || std::is_same_v<T, const int*>;
            s.sourceArray |= isSourceArray<T>;
            s.destinationArray |= isDestinationArray<T>;
            (destination ? s.destinationSteps : s.sourceSteps) |= std::is_same_v<T, const int*>;
            s.scratch |= region && destination && isDestination<T>;
            destination |= isDestination<T>;
            planes[destination] += isPlane<T> && !s.scratch;
        };
        (look(std::type_identity<Parameters>{}), ...);
        s.sourceSteps |= planes[0] > 1;
        s.destinationSteps |= planes[1] > 1;
        return s;
    }
};

} // namespace zorcc::interface
