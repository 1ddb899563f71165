// SPDX-License-Identifier: MIT
// Calls any exported conversion through one signature, whatever the order and kinds of its arguments.
#pragma once

#include <cstddef>
#include <cstdint>
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

template <> struct Argument<int> { // step of the image, or of the plane, before it
    int value;
    explicit Argument(Call& call) : value(call.image->step[call.plane]) {}
    operator int() const { return value; }
};

template <> struct Argument<const int*> { // steps of the planes before it
    const int* value;
    explicit Argument(Call& call) : value(call.image->step) {}
    operator const int*() const { return value; }
};

template <> struct Argument<ZorSize> {
    ZorSize value;
    explicit Argument(Call& call) : value(call.size) {}
    operator ZorSize() const { return value; }
};

template <> struct Argument<ZorRect> { // the whole image as the region
    ZorRect value;
    explicit Argument(Call& call) : value{0, 0, call.size.width, call.size.height} {}
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
    bool scratch;                       // takes scratch memory behind a grid, as plane 1 of the destination
};

template <class T> inline constexpr bool isSourceArray = false;
template <class T> inline constexpr bool isSourceArray<const T* const*> = true;
template <class T> inline constexpr bool isDestinationArray = false;
template <class T> inline constexpr bool isDestinationArray<T* const*> = !std::is_const_v<T>;
template <class T> inline constexpr bool isDestination = isDestinationArray<T>;
template <class T> inline constexpr bool isDestination<T*> = !std::is_const_v<T> || isDestinationArray<T*>;

template <auto function> struct Bound;

template <class... Parameters, ZorStatus (*function)(Parameters...)> struct Bound<function> {
    static ZorStatus call(Call& call)
    {
        std::tuple<Argument<Parameters>...> arguments{Argument<Parameters>(call)...}; // braces: left to right
        return std::apply([](const auto&... argument) { return function(argument...); }, arguments);
    }

    static constexpr Signature signature()
    {
        Signature s{};
        bool destination = false, mosaic = false;
        auto look = [&]<class T>(std::type_identity<T>) {
            s.steps |= std::is_same_v<T, int> || std::is_same_v<T, const int*>;
            s.sourceArray |= isSourceArray<T>;
            s.destinationArray |= isDestinationArray<T>;
            (destination ? s.destinationSteps : s.sourceSteps) |= std::is_same_v<T, const int*>;
            s.scratch |= mosaic && isDestination<T>;
            mosaic |= std::is_same_v<T, ZorBayerGrid>;
            destination |= isDestination<T>;
        };
        (look(std::type_identity<Parameters>{}), ...);
        return s;
    }
};

} // namespace zorcc::interface
