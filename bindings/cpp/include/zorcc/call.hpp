// SPDX-License-Identifier: MIT
// From views to the arguments of C functions: what all overloads of zorcc.hpp share.
#ifndef ZORCC_CALL_HPP
#define ZORCC_CALL_HPP

#include <array>
#include <cstdlib>

#include "zorcc/views.hpp"

namespace zorcc {

// A matrix of as many rows, float[rows][4] or std::array; not copied.
template <int count> struct Twist {
    const float (*rows)[4];

    constexpr Twist(const float (&matrix)[count][4]) noexcept : rows(matrix) {}
    Twist(const std::array<std::array<float, 4>, count>& matrix) noexcept
        : rows(reinterpret_cast<const float (*)[4]>(matrix.data()->data()))
    {
    }
};

// Of three channels, float[3] or std::array; not copied.
struct Weights {
    const float* values;

    constexpr Weights(const float (&weights)[3]) noexcept : values(weights) {}
    constexpr Weights(const std::array<float, 3>& weights) noexcept : values(weights.data()) {}
};

// Memory that a call works in: any contiguous container of samples.
struct Scratch {
    void* data;
    std::size_t bytes;

    constexpr Scratch(void* start, std::size_t size) noexcept : data(start), bytes(size) {}
    template <class Samples, class = decltype(static_cast<void*>(std::data(std::declval<Samples&>())))>
    Scratch(Samples&& samples) noexcept
        : data(std::data(samples)), bytes(std::size(samples) * sizeof(*std::data(samples)))
    {
    }
};

// For the forms of functions without steps: rows must follow each other without gaps, otherwise zorStatusBadStep.
struct WithoutSteps {};
inline constexpr WithoutSteps withoutSteps;

// Scratch memory of demosaicAHD for a region of this width.
constexpr std::size_t demosaicScratchBytes(int width) noexcept
{
    return std::size_t{64} * 32 * (static_cast<std::size_t>(width) + 32);
}

namespace detail {

// Planes of one size share a step.
template <class V>
inline constexpr bool takesSteps = V::arrangement == Arrangement::semiPlanar || (V::planes > 1 && V::group(1).x > 0);

template <bool withSteps, class V> bool stepsServe(const V& view, int (&steps)[V::planes]) noexcept
{
    if (!stepsFit(view, steps)) return false;
    for (int p = 0; p < V::planes; ++p) {
        const auto g = V::group(p); // without steps, pixels that do not fill a group have no chroma
        const std::ptrdiff_t row = std::ptrdiff_t{view.size.width >> g.x} * g.samples * int{sizeof *view.data[p]};
        if (withSteps ? !takesSteps<V> && steps[p] != steps[0] : steps[p] != row) return false;
    }
    return true;
}

// Calls `next` with the arguments that describe an image.
template <bool withSteps, class V, class Next> ZorStatus pass(const V& view, Next next)
{
    int steps[V::planes];
    if (!stepsServe<withSteps>(view, steps)) return zorStatusBadStep;
    if constexpr (V::arrangement == Arrangement::semiPlanar) {
        return next(view.data[0], steps[0], view.data[1], steps[1]);
    } else {
        const auto data = [&]() -> auto&
        {
            if constexpr (V::planes == 1)
                return view.data[0];
            else
                return view.data;
        };
        if constexpr (!withSteps)
            return next(data());
        else if constexpr (takesSteps<V>)
            return next(data(), static_cast<const int*>(steps));
        else
            return next(data(), steps[0]);
    }
}

inline constexpr char otherSize[] = " (the destination has another size)";

template <auto function, bool withSteps = true, class E, class S, class D, class... Arguments>
ZorStatus call(E& errors, const char* name, const S& src, const D& dst, Arguments... arguments) noexcept(quiet<E&>)
{
    if (!equal(src.size, dst.size)) return finish(zorStatusBadSize, name, errors, otherSize);
    const auto convert = [&](auto... from) {
        return pass<withSteps>(dst, [&](auto... to) { return function(from..., to..., src.size, arguments...); });
    };
    return finish(pass<withSteps>(src, convert), name, errors);
}

template <auto function, class E, class S, class D>
ZorStatus callWithoutSteps(E& errors, const char* name, const S& src, const D& dst) noexcept(quiet<E&>)
{
    return call<function, false>(errors, name, src, dst);
}

template <auto function, class E, class V, class... Arguments>
ZorStatus callInPlace(E& errors, const char* name, const V& image, Arguments... arguments) noexcept(quiet<E&>)
{
    return finish(pass<true>(image, [&](auto... both) { return function(both..., image.size, arguments...); }), name,
                  errors);
}

template <class V> ZorRect wholeOf(const V& view) noexcept { return {0, 0, view.size.width, view.size.height}; }

// Pixels of a region's side that are inside the image.
constexpr int clipped(int begin, int length, int limit) noexcept
{
    const long long end = static_cast<long long>(begin) + length;
    const long long first = begin > 0 ? begin : 0, last = end < limit ? end : limit;
    return last > first ? static_cast<int>(last - first) : 0;
}

template <class S> ZorSize insideOf(const S& src, ZorRect region) noexcept
{
    return {clipped(region.x, region.width, src.size.width), clipped(region.y, region.height, src.size.height)};
}

// The destination is that part of the region which is inside the mosaic.
template <auto function, class E, class S, class D, class... Arguments>
ZorStatus callMosaic(E& errors, const char* name, const S& src, ZorRect region, const D& dst,
                     Arguments... arguments) noexcept(quiet<E&>)
{
    if (!equal(insideOf(src, region), dst.size)) return finish(zorStatusBadSize, name, errors, otherSize);
    const auto convert = [&](auto* from, int step) {
        return pass<true>(dst, [&](auto... to) { return function(from, region, src.size, step, to..., arguments...); });
    };
    return finish(pass<true>(src, convert), name, errors);
}

// With scratch memory of the caller's.
template <auto function, class E, class S, class D>
ZorStatus callMosaicIn(E& errors, const char* name, const S& src, ZorRect region, const D& dst, ZorBayerGrid grid,
                       Scratch scratch) noexcept(quiet<E&>)
{
    const int width = insideOf(src, region).width;
    if (width > (1 << 26) - 64) return finish(zorStatusNoMemory, name, errors); // steps of 2^31 bytes
    if (scratch.bytes < demosaicScratchBytes(width))
        return finish(zorStatusBadArgument, name, errors, " (scratch memory)");
    return callMosaic<function>(errors, name, src, region, dst, grid, static_cast<typename D::Sample*>(scratch.data),
                                32 * (width + 32));
}

template <auto function, class E, class S, class D>
ZorStatus callMosaicIn(E& errors, const char* name, const S& src, ZorRect region, const D& dst,
                       ZorBayerGrid grid) noexcept(quiet<E&>)
{
    struct Memory {
        std::size_t bytes;
        void* start = std::malloc(bytes);
        ~Memory() { std::free(start); }
    };
    const Memory memory{demosaicScratchBytes(insideOf(src, region).width)};
    if (!memory.start) return finish(zorStatusNoMemory, name, errors);
    return callMosaicIn<function>(errors, name, src, region, dst, grid, Scratch(memory.start, memory.bytes));
}

} // namespace detail

} // namespace zorcc

#endif
