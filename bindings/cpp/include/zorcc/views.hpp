// SPDX-License-Identifier: MIT
// Images that belong to somebody else: pointers, steps in bytes and a size in pixels. The type of a view says how the
// samples lie in memory; what they mean (RGB, Y'CbCr, 5-6-5) is said by the function that takes it. T is const for
// sources; views of T convert to those of const T.
#ifndef ZORCC_VIEWS_HPP
#define ZORCC_VIEWS_HPP

#include <cstddef>
#include <iterator>
#include <type_traits>
#include <utility>

#include "zorcc/errors.hpp"

namespace zorcc {

namespace detail {

// So many bytes further; pointers and steps are in bytes, samples may be wider.
template <class T> T* moved(T* from, std::ptrdiff_t bytes) noexcept
{
    using Byte = std::conditional_t<std::is_const_v<T>, const unsigned char, unsigned char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(from) + bytes);
}

constexpr bool equal(ZorSize a, ZorSize b) noexcept { return a.width == b.width && a.height == b.height; }

} // namespace detail

// One plane.
template <class T> struct ImageView {
    T* data = nullptr;
    std::ptrdiff_t step = 0; // bytes from row to row; negative in images that are stored upwards
    ZorSize size = {};       // in pixels of the plane

    T* row(int y) const noexcept { return detail::moved(data, y * step); }
};

enum class Arrangement {
    interleaved, // the channels of a pixel side by side
    alpha,       // likewise, of which the fourth is alpha: ignored in a source, left as it is in a destination
    packed422,   // four samples for two pixels
    packed16,    // the channels in the bits of one sample
    planar,      // a plane for each channel; two samples of planes 1 and 2 may stand for several pixels
    semiPlanar   // a plane of luma and one of pairs of chroma
};

// Chroma of `planar` and `semiPlanar`: one sample for (1 << log2X) x (1 << log2Y) pixels.
template <class T, Arrangement layout, int channels, int log2X = 0, int log2Y = 0> struct View {
    using Sample = T;
    static constexpr Arrangement arrangement = layout;
    static constexpr int planes = layout == Arrangement::planar ? channels : layout == Arrangement::semiPlanar ? 2 : 1;

    // A plane has `samples` side by side for every (1 << x) x (1 << y) pixels.
    struct Group {
        int samples, x, y;
    };
    static constexpr Group group(int plane) noexcept
    {
        if (planes == 1) return {channels, log2X, log2Y};
        if (plane == 0 || plane == 3) return {1, 0, 0};
        return {layout == Arrangement::semiPlanar ? 2 : 1, log2X, log2Y};
    }

    // Of a plane; pixels that do not fill a group have one of their own.
    static constexpr ZorSize groups(int plane, ZorSize size) noexcept
    {
        const Group g = group(plane);
        return {static_cast<int>((size.width + (1LL << g.x) - 1) >> g.x),
                static_cast<int>((size.height + (1LL << g.y) - 1) >> g.y)};
    }

    // Of a row without gaps.
    static constexpr std::ptrdiff_t rowBytes(int plane, int width) noexcept
    {
        return std::ptrdiff_t{groups(plane, {width, 1}).width} * group(plane).samples * std::ptrdiff_t{sizeof(T)};
    }

    // Of an image without gaps, all planes together.
    static constexpr std::size_t samples(ZorSize size) noexcept
    {
        std::size_t count = 0;
        for (int p = 0; p < planes; ++p)
            count += static_cast<std::size_t>(rowBytes(p, size.width)) / sizeof(T) *
                     static_cast<std::size_t>(groups(p, size).height);
        return count;
    }

    T* data[planes] = {};
    std::ptrdiff_t step[planes] = {};
    ZorSize size = {};

    constexpr View() = default;

    // Of one plane.
    template <int count = planes, std::enable_if_t<count == 1, int> = 0>
    constexpr View(T* pixels, std::ptrdiff_t bytes, ZorSize pixelSize) noexcept
        : data{pixels}, step{bytes}, size(pixelSize)
    {
    }
    template <class Data, std::enable_if_t<std::is_convertible_v<Data*, T*> && planes == 1, int> = 0>
    constexpr View(const ImageView<Data>& plane) noexcept : View(plane.data, plane.step, plane.size)
    {
    }

    // Of as many planes and steps as anything with an index has.
    template <class Planes, class Steps, class = decltype(std::declval<const Planes&>()[0]),
              std::enable_if_t<(planes > 1) && sizeof(std::declval<const Steps&>()[0]), int> = 0>
    constexpr View(const Planes& pixels, const Steps& bytes, ZorSize pixelSize) : size(pixelSize)
    {
        for (int p = 0; p < planes; ++p) {
            const auto i = static_cast<unsigned>(p);
            data[p] = pixels[i];
            step[p] = bytes[i];
        }
    }

    // Of samples that may be written.
    template <class Data, std::enable_if_t<std::is_same_v<const Data, T> && !std::is_const_v<Data>, int> = 0>
    constexpr View(const View<Data, layout, channels, log2X, log2Y>& other) noexcept : size(other.size)
    {
        for (int p = 0; p < planes; ++p) {
            data[p] = other.data[p];
            step[p] = other.step[p];
        }
    }

    ImageView<T> plane(int p) const noexcept { return {data[p], step[p], groups(p, size)}; }
    T* row(int y) const noexcept { return detail::moved(data[0], y * step[0]); } // of the first plane

    // Without checks; x and y are multiples of the pixels that share chroma.
    View region(ZorRect part) const noexcept
    {
        View view = *this;
        view.size = {part.width, part.height};
        for (int p = 0; p < planes; ++p) {
            const Group g = group(p);
            view.data[p] = detail::moved(data[p], std::ptrdiff_t{part.y >> g.y} * step[p] +
                                                      std::ptrdiff_t{part.x >> g.x} * g.samples * int{sizeof(T)});
        }
        return view;
    }
};

namespace detail {

// Steps are int in C.
template <class V> bool stepsFit(const V& view, int (&steps)[V::planes]) noexcept
{
    bool fit = true;
    for (int p = 0; p < V::planes; ++p) {
        steps[p] = static_cast<int>(view.step[p]);
        fit = fit && steps[p] == view.step[p];
    }
    return fit;
}

} // namespace detail

template <class T, int channels> using Interleaved = View<T, Arrangement::interleaved, channels>;
template <class T> using InterleavedAlpha = View<T, Arrangement::alpha, 4>;
template <class T> using Packed422 = View<T, Arrangement::packed422, 4, 1>; // YUY2, UYVY, ...
template <class T> using Packed16 = View<T, Arrangement::packed16, 1>;      // 5-6-5, 5-5-5 and 4-4-4 pixels

template <class T, int channels, int log2X = 0, int log2Y = 0>
using Planar = View<T, Arrangement::planar, channels, log2X, log2Y>;
template <class T> using Planar422 = Planar<T, 3, 1>;
template <class T> using Planar420 = Planar<T, 3, 1, 1>;
template <class T> using Planar411 = Planar<T, 3, 2>;

template <class T, int log2X = 1, int log2Y = 1> // NV12
using SemiPlanar = View<T, Arrangement::semiPlanar, 3, log2X, log2Y>;

// ---- views of what other libraries have -----------------------------------------------------------------------------

namespace detail {

template <class Mat, class = void> inline constexpr bool hasElementSize = false;
template <class Mat>
inline constexpr bool hasElementSize<Mat, std::void_t<decltype(std::declval<const Mat&>().elemSize())>> = true;

// What does not fit is an error, and gives an empty view.
template <class V, class E> V fitting(bool fits, ZorStatus status, const char* what, E& errors, const V& view)
{
    return finish(fits ? ZorStatus{zorStatusOk} : status, what, errors) == zorStatusOk ? view : V();
}

} // namespace detail

// Of a matrix with data, step, cols and rows, such as cv::Mat: view<Interleaved<uint8_t, 3>>. zorStatusBadArgument
// where it says (elemSize) that its pixels have another size.
template <class V, class Mat, class E = Throw>
auto viewOfMat(const Mat& mat, E&& errors = {}) noexcept(detail::quiet<E>)
    -> detail::Result<E, decltype(static_cast<void>(mat.data), static_cast<void>(mat.step),
                                  V(nullptr, 0, ZorSize{mat.cols, mat.rows}))>
{
    using T = typename V::Sample;
    bool fits = true;
    if constexpr (detail::hasElementSize<Mat>)
        fits = static_cast<std::size_t>(mat.elemSize()) << V::group(0).x == V::group(0).samples * sizeof(T);
    return detail::fitting(
        fits, zorStatusBadArgument, "viewOfMat", errors,
        V(reinterpret_cast<T*>(mat.data), static_cast<std::ptrdiff_t>(mat.step), ZorSize{mat.cols, mat.rows}));
}

// Of a frame with data[], linesize[], width and height, such as AVFrame. zorStatusBadArgument where it has fewer or
// more planes (entries that are not null) than the view.
template <class V, class Frame, class E = Throw>
auto viewOfFrame(const Frame& frame, E&& errors = {}) noexcept(detail::quiet<E>)
    -> detail::Result<E, decltype(static_cast<void>(frame.data[0]), static_cast<void>(frame.linesize[0]),
                                  static_cast<void>(frame.width + frame.height), V())>
{
    constexpr std::size_t entries = sizeof(frame.data) / sizeof(frame.data[0]);
    V view;
    view.size = {frame.width, frame.height};
    bool fits = true;
    for (std::size_t p = 0; p < entries; ++p) fits = fits && (frame.data[p] != nullptr) == (p < V::planes);
    for (std::size_t p = 0; p < V::planes; ++p) {
        view.data[p] = reinterpret_cast<typename V::Sample*>(frame.data[p]);
        view.step[p] = frame.linesize[p];
    }
    return detail::fitting(fits && V::planes <= entries, zorStatusBadArgument, "viewOfFrame", errors, view);
}

// Of contiguous samples (std::vector, std::array, std::span, arrays) without gaps, plane after plane: V::samples(size)
// of them or more, otherwise zorStatusBadSize.
template <class V, class Samples, class E = Throw>
auto viewOfSamples(Samples&& samples, ZorSize size, E&& errors = {}) noexcept(detail::quiet<E>)
    -> detail::Result<E, std::enable_if_t<std::is_convertible_v<decltype(std::data(samples)), typename V::Sample*>, V>>
{
    V view;
    view.size = size;
    const bool fits = size.width >= 0 && size.height >= 0 && V::samples(size) <= std::size(samples);
    typename V::Sample* next = std::data(samples);
    for (int p = 0; fits && p < V::planes; ++p) {
        view.data[p] = next;
        view.step[p] = V::rowBytes(p, size.width);
        next = detail::moved(next, view.step[p] * V::groups(p, size).height);
    }
    return detail::fitting(fits, zorStatusBadSize, "viewOfSamples", errors, view);
}

} // namespace zorcc

#endif
