// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

#include "zorcore.h"

namespace zorcc::test {

// Sets the number of threads for as long as it lives.
class OnThreads {
public:
    explicit OnThreads(int count) : before(ownGetNumThreads())
    {
        if (zorSetNumThreads(count) != zorStatusOk) throw std::invalid_argument("number of threads");
    }
    ~OnThreads() { static_cast<void>(zorSetNumThreads(before)); }
    OnThreads(const OnThreads&) = delete;
    OnThreads& operator=(const OnThreads&) = delete;

private:
    const int before;
};

} // namespace zorcc::test
