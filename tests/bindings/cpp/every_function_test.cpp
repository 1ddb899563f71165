// SPDX-License-Identifier: MIT
// Every function of the table, by its name in C++ and views of the types that its own name asks for, beside the
// function itself. names.inc is generated; which views there are is found here once more.
#include <algorithm>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "interface/functions.h"
#include "zorcc.hpp"

namespace {

using namespace zorcc;
using interface::Call;
using interface::Extra;
using interface::Function;
using interface::Layout;
using interface::Name;

// ---- views, by what a name says -------------------------------------------------------------------------------------

template <interface::Sample sample> auto valueOfType()
{
    using enum interface::Sample;
    if constexpr (sample == u8) return std::uint8_t{};
    if constexpr (sample == s8) return std::int8_t{};
    if constexpr (sample == u16) return std::uint16_t{};
    if constexpr (sample == s16) return std::int16_t{};
    if constexpr (sample == s32) return std::int32_t{};
    if constexpr (sample == f32) return float{};
}

template <interface::Shape s, bool isAlpha> auto emptyView()
{
    using T = decltype(valueOfType<s.sample>());
    if constexpr (s.layout == Layout::packedBits)
        return Packed16<T>();
    else if constexpr (s.layout == Layout::packed422)
        return Packed422<T>();
    else if constexpr (s.layout == Layout::semiPlanar)
        return SemiPlanar<T, s.log2X, s.log2Y>();
    else if constexpr (s.layout == Layout::planar)
        return Planar<T, s.channels, s.log2X, s.log2Y>();
    else if constexpr (isAlpha)
        return InterleavedAlpha<T>();
    else
        return Interleaved<T, s.channels>();
}

template <class V> V viewOf(const interface::Image& image, ZorSize size)
{
    V view;
    view.size = size;
    for (int p = 0; p < V::planes; ++p) {
        view.data[p] = static_cast<typename V::Sample*>(image.plane[p]);
        view.step[p] = image.step[p];
    }
    return view;
}

// ---- calls ----------------------------------------------------------------------------------------------------------

template <auto> struct Argument {
};

using namespace interface::arguments;

// How a function is called in C++, with views that may be others than its own.
template <class NameOf, auto... members> struct Overload {
    static constexpr Name name = NameOf{}();
    using Source = decltype(emptyView<shapeOf(name, name.source), name.source.layout == "AC4">());
    using Destination = decltype(emptyView<shapeOf(name, name.destination), name.destination.layout == "AC4">());

    template <auto member> static auto argument(const Extra& e)
    {
        constexpr int rows = name.source.layout == "C4" ? 4 : 3;
        if constexpr (std::is_same_v<Argument<member>, Argument<twist>>)
            return Twist<rows>(reinterpret_cast<const float(&)[rows][4]>(*e.twist));
        else if constexpr (std::is_same_v<Argument<member>, Argument<weights>>)
            return Weights(reinterpret_cast<const float(&)[3]>(*e.weights));
        else if constexpr (std::is_same_v<Argument<member>, Argument<alpha>>)
            return static_cast<typename Destination::Sample>(e.alpha);
        else
            return e.*member;
    }

    // `end` is an error_code or nothing.
    template <class Operation, class S, class D, class... End>
    static constexpr auto call(Operation operation, const S& src, const D& dst, const Extra& e, End&... end)
    {
        const auto tryCall = [&](const auto&... given) {
            if constexpr (std::is_invocable_v<Operation, decltype(given)..., End&...>)
                return operation(given..., end...);
        };
        if constexpr (isMosaic(name.source))
            return tryCall(src, dst, static_cast<ZorBayerGrid>(e.grid));
        else if constexpr (name.inPlace)
            return tryCall(dst, argument<members>(e)...);
        else if constexpr (!name.steps)
            return tryCall(src, dst, withoutSteps);
        else
            return tryCall(src, dst, argument<members>(e)...);
    }

    template <class Operation, class... End>
    static ZorStatus convert(Operation operation, const Call& c, ZorSize destinationSize, End&... end)
    {
        return call(operation, viewOf<Source>(c.source, c.size), viewOf<Destination>(c.destination, destinationSize),
                    c.extra, end...);
    }

    // Nobody has two channels a pixel.
    template <class Operation>
    static constexpr bool takesAnyLayout =
        !std::is_void_v<decltype(call(std::declval<Operation>(), std::declval<Source>(),
                                      Interleaved<typename Destination::Sample, 2>(), std::declval<Extra>()))>;
};

// A function in its C++ form.
struct Named {
    std::string_view name;
    ZorStatus (*quiet)(const Call&, ZorSize destinationSize, std::error_code&);
    ZorStatus (*throwing)(const Call&, ZorSize destinationSize);
    bool takesAnyLayout;
};

#define ZOR_NAMED(function, operation, ...)                                                                            \
    [] {                                                                                                               \
        using O = Overload<decltype([] { return interface::parse(#function); }) __VA_OPT__(, ) __VA_ARGS__>;           \
        using Form = decltype([](auto&&... a) -> decltype(zorcc::operation(std::forward<decltype(a)>(a)...)) {         \
            return zorcc::operation(std::forward<decltype(a)>(a)...);                                                  \
        });                                                                                                            \
        return Named{                                                                                                  \
            #function, [](const Call& c, ZorSize s, std::error_code& e) { return O::convert(Form(), c, s, e); },       \
            [](const Call& c, ZorSize s) { return O::convert(Form(), c, s); }, O::template takesAnyLayout<Form>};      \
    }(),

const Named all[] = {
#include "names.inc"
};

// ---- images ---------------------------------------------------------------------------------------------------------

// The planes of an image in one block of random bytes, with steps that differ unless there are none.
struct Planes {
    std::vector<std::uint32_t> words;
    interface::Image image;

    Planes(const interface::Format& format, const interface::Signature& signature, ZorSize size, std::uint32_t seed)
    {
        constexpr int planeBytes = 1 << 14;
        words.resize(planeBytes / 4 * interface::maxPlanes);
        for (std::uint32_t& word : words) {
            seed = seed * 1664525 + 1013904223;
            word = seed ^ seed >> 16;
            const float number = static_cast<float>(word >> 8) / 0x1p24f; // as conversions of floats expect
            if (format.sample == interface::Sample::f32) std::memcpy(&word, &number, sizeof number);
        }
        if (!signature.steps) setContiguousSteps(format, size.width, image);
        for (int p = 0; p < format.planes; ++p) {
            image.plane[p] = reinterpret_cast<char*>(words.data()) + p * planeBytes;
            if (signature.steps) image.step[p] = 16 * (size.width + 8) + (format.plane[1].log2X ? 16 * p : 0);
        }
    }
};

constexpr ZorSize sizes[] = {{40, 16}, {23, 13}, {0, 5}};

constexpr float oddWeights[] = {0.2f, 0.5f, 0.25f};
constexpr float oddTwist[4][4] = {{0.5f, 0.25f, 0.125f, 3}, {0.1f, 0.7f, 0.2f, 5}, {0, 0.3f, 0.6f, 7}, {0.2f, 0, 0, 1}};

Call callOf(const Function& function, Planes& from, Planes& to, ZorSize size)
{
    Extra extra{.alpha = 77, .noise = 10, .levels = 5, .method = zorDitherMethodStucki, .grid = zorBayerGBRG};
    extra.weights = oddWeights;
    extra.twist = oddTwist;
    extra.vMin = -0.25f;
    extra.vMax = 2;
    return {from.image, to.image, size, function.withScratch(extra, size)};
}

TEST(CppEveryFunctionTest, HasAnOverload)
{
    std::set<std::string_view> names;
    for (const Named& named : all) names.insert(named.name);
    for (const Function& function : interface::functions()) EXPECT_TRUE(names.count(function.name)) << function.name;
    EXPECT_EQ(std::size(all), interface::functions().size());
}

TEST(CppEveryFunctionTest, GivesWhatTheFunctionGives)
{
    for (const Named& named : all)
        for (const ZorSize size : sizes) {
            const Function& function = *interface::findFunction(named.name);
            SCOPED_TRACE(testing::Message() << named.name << ' ' << size.width << 'x' << size.height);
            Planes from(*function.source, function.signature, size, 1);
            Planes to(*function.destination, function.signature, size, 2);
            const Planes before = to;
            const ZorStatus status = function.bound(callOf(function, from, to, size));
            const std::vector<std::uint32_t> expected = to.words;
            std::copy(before.words.begin(), before.words.end(), to.words.begin()); // where the image lies
            std::error_code error = std::make_error_code(std::errc::io_error);
            EXPECT_EQ(status, named.quiet(callOf(function, from, to, size), size, error));
            EXPECT_EQ(makeErrorCode(std::min(status, ZorStatus{0})), error);
            EXPECT_TRUE(expected == to.words);
            EXPECT_TRUE(status < 0 || size.width == 0 || expected != before.words);
        }
}

TEST(CppEveryFunctionTest, ThrowsItsNameForOtherSizes)
{
    constexpr ZorSize size = {16, 8};
    for (const Named& named : all) {
        const Function& function = *interface::findFunction(named.name);
        SCOPED_TRACE(named.name);
        Planes from(*function.source, function.signature, size, 1);
        Planes to(*function.destination, function.signature, size, 2);
        const Planes before = to;
        const bool inPlace = function.signature.inPlace; // one image has one size, which may be bad by itself
        try {
            named.throwing(callOf(function, from, to, size), {inPlace ? -1 : size.width, size.height - 1});
            ADD_FAILURE() << "does not throw";
        } catch (const Error& error) {
            EXPECT_EQ(error.status(), zorStatusBadSize);
            EXPECT_EQ(error.what(), std::string(named.name) + (inPlace ? "" : " (the destination has another size)") +
                                        ": " + statusText(zorStatusBadSize));
        }
        EXPECT_TRUE(before.words == to.words);
    }
}

TEST(CppEveryFunctionTest, TakesNoOtherLayout)
{
    for (const Named& named : all) EXPECT_FALSE(named.takesAnyLayout) << named.name;
}

} // namespace
