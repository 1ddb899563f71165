// SPDX-License-Identifier: MIT
// Several vectors as one operand.
#pragma once

#include <type_traits>

#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Vectors that go through long calculations step by step at the same time: a processor looks ahead less far than one
// of them is long, and would wait for each.
template <class Element, int count> struct Lockstep {
    Vec<Element> v[count];
};

#define ZORCC_LOCKSTEP(op)                                                                                             \
    template <class E, int count>                                                                                      \
    ZORCC_INLINE Lockstep<E, count> operator op(const Lockstep<E, count>& a, const Lockstep<E, count>& b)              \
    {                                                                                                                  \
        Lockstep<E, count> c;                                                                                          \
        for (int i = 0; i < count; ++i) c.v[i] = a.v[i] op b.v[i];                                                     \
        return c;                                                                                                      \
    }                                                                                                                  \
    template <class E, int count>                                                                                      \
    ZORCC_INLINE Lockstep<E, count> operator op(const Lockstep<E, count>& a, std::type_identity_t<E> b)                \
    {                                                                                                                  \
        Lockstep<E, count> c;                                                                                          \
        for (int i = 0; i < count; ++i) c.v[i] = a.v[i] op b;                                                          \
        return c;                                                                                                      \
    }
ZORCC_LOCKSTEP(+)
ZORCC_LOCKSTEP(-)
ZORCC_LOCKSTEP(*)
ZORCC_LOCKSTEP(/)
ZORCC_LOCKSTEP(|)
ZORCC_LOCKSTEP(<<)
ZORCC_LOCKSTEP(>>)
#undef ZORCC_LOCKSTEP

} // namespace
} // namespace zorcc::ZORCC_TIER
