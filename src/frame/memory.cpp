// SPDX-License-Identifier: MIT
#include "frame/memory.h"

#include <limits.h>

#include "zorcore.h"

namespace zorcc {
namespace {

template <class Element> Element* allocate(int count)
{
    constexpr int maxCount = INT_MAX / static_cast<int>(sizeof(Element)); // zorMalloc counts bytes in an int
    return count < 1 || count > maxCount ? nullptr
                                         : static_cast<Element*>(zorMalloc(count * static_cast<int>(sizeof(Element))));
}

} // namespace

int16_t* zorsMalloc_16s(int count) { return allocate<int16_t>(count); }
uint16_t* zorsMalloc_16u(int count) { return allocate<uint16_t>(count); }
float* zorsMalloc_32f(int count) { return allocate<float>(count); }

void zorsFree(void* block) { zorFree(block); }

} // namespace zorcc
