// SPDX-License-Identifier: MIT
// Lines of the tables of operations. All of it has internal linkage and uses no function of the standard library, so
// that no code of one tier can stand in for another's.
#pragma once

#include <type_traits>
#include <utility>

#include "operation.h"
#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

using test::Operation;

// An element of a vector, or of the vectors that it was widened to.
template <class V> constexpr auto elementOf(const V& v)
{
    if constexpr (requires { v.part; })
        return v.part[0][0];
    else
        return v[0];
}
template <class V> using ElementOf = decltype(elementOf(V{}));

// A vector's elements.
template <class V> struct Elements {
    using Element = ElementOf<V>;
    Element e[sizeof(V) / sizeof(Element)];
    const Element& operator[](int i) const { return e[i]; }
    static constexpr int blockSize = 16 / sizeof(Element);
};

template <class E, class Value> void storeElement(uint8_t* out, int i, Value value)
{
    const E element = static_cast<E>(value);
    __builtin_memcpy(out + i * sizeof element, &element, sizeof element);
}

// Calls f with vectors, or elements of vectors, that follow each other in memory.
template <class... V, class F> auto withLoaded([[maybe_unused]] const uint8_t* in, F f)
{
    return [&]<int... k>(std::integer_sequence<int, k...>) { return f(load<V>(in + k * vectorBytes)...); }
    (std::make_integer_sequence<int, sizeof...(V)>{});
}

// An operation on vectors V; element i of its result is onElements(i, elements of each V).
template <class... V, class OnVectors, class OnElements>
constexpr Operation operation(const char* name, OnVectors, OnElements)
{
    using Result = decltype(OnVectors{}(V{}...));
    return {name, int{sizeof...(V)} * vectorBytes, int{sizeof(Result)},
            [](const uint8_t* in, uint8_t* out) { store(out, withLoaded<V...>(in, OnVectors{})); },
            [](const uint8_t* in, uint8_t* out) {
                withLoaded<Elements<V>...>(in, [&](const auto&... v) {
                    for (int i = 0; i < int{sizeof(Result) / sizeof(ElementOf<Result>)}; ++i)
                        storeElement<ElementOf<Result>>(out, i, OnElements{}(i, v...));
                });
            }};
}

// A function of vectors, under its name.
#define ZORCC_OPERATION(function, onElements, ...)                                                                     \
    operation<__VA_ARGS__>(                                                                                            \
        #function " of " #__VA_ARGS__, [](auto... v) { return function(v...); }, onElements)

// An operation from memory to memory; element i of what it writes is onElements(i, elements of type T that it reads).
template <class E, class T, int inBytes, int outBytes, class OnMemory, class OnElements>
constexpr Operation memory(const char* name, OnMemory, OnElements)
{
    return {name, inBytes, outBytes, [](const uint8_t* in, uint8_t* out) { OnMemory{}(in, out); },
            [](const uint8_t* in, uint8_t* out) {
                T elements[inBytes / sizeof(T)];
                __builtin_memcpy(elements, in, inBytes);
                for (int i = 0; i < outBytes / int{sizeof(E)}; ++i)
                    storeElement<E>(out, i, OnElements{}(i, static_cast<const T*>(elements)));
            }};
}

// The function of elements for each place of vectors.
template <class F> constexpr auto each(F)
{
    return [](int i, const auto&... v) { return F{}(v[i]...); };
}

template <class T, class Value> constexpr T saturated(Value value)
{
    constexpr long long bits = 8 * sizeof(T), least = T(-1) < T(0) ? -(1ll << (bits - 1)) : 0,
                        most = least + (1ll << bits) - 1;
    return static_cast<T>(value < least ? least : value > most ? most : value);
}

template <int count> constexpr test::Operations table(const Operation (&operations)[count])
{
    return {operations, count};
}

} // namespace
} // namespace zorcc::ZORCC_TIER

// A macro of lines for each of some types, or numbers.
#define ZORCC_OF_TWO(lines, a, b) lines(a), lines(b)
#define ZORCC_OF_THREE(lines, a, b, c) ZORCC_OF_TWO(lines, a, b), lines(c)
#define ZORCC_OF_FOUR(lines, a, b, c, d) ZORCC_OF_THREE(lines, a, b, c), lines(d)
