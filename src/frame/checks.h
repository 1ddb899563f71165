// SPDX-License-Identifier: MIT
// Argument checks of the exported functions. Each gives zorStatusOk or the status to return; checkAll takes the first
// failure of a list, so that a wrapper reads as the list of its checks in their order.
#pragma once

#include "zortypes.h"

namespace zorcc
{

template <class... Pointers> [[nodiscard]] inline ZorStatus checkPointers(const Pointers*... pointers)
{
    return (... && pointers) ? zorStatusOk : zorStatusNullPointer;
}

[[nodiscard]] inline ZorStatus checkSize(ZorSize size, int minWidth = 1, int minHeight = 1)
{
    return size.width < minWidth || size.height < minHeight ? zorStatusBadSize : zorStatusOk;
}

// The plane pointers of an image whose array of planes is known not to be null.
template <class T, int planes> [[nodiscard]] inline ZorStatus checkPlanes(T* const* plane)
{
    for (int p = 0; p < planes; ++p)
        if (!plane[p]) return zorStatusNullPointer;
    return zorStatusOk;
}

// What a conversion of whole 2 x 2 blocks returns after its work.
inline ZorStatus oddSizeStatus(ZorSize size)
{
    return ((size.width | size.height) & 1) != 0 ? zorStatusOddSize : zorStatusOk;
}

} // namespace zorcc
