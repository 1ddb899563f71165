// SPDX-License-Identifier: MIT
// Gigabytes of addresses on a few pages: memory that repeats, between inaccessible pages.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <new>

#include "tests/harness/guarded.h"

namespace zorcc::test {

class RepeatedMemory {
public:
    // `period` bytes, whole pages, at least `bytes` of them one after another.
    RepeatedMemory(std::size_t periodBytes, std::size_t bytes)
        : period(periodBytes), mappedBytes((bytes + period - 1) / period * period + 2 * pageBytes()),
          mapped(mmap(nullptr, mappedBytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0))
    {
        const int file = memfd_create("repeated", MFD_CLOEXEC);
        if (mapped == MAP_FAILED || file < 0 || ftruncate(file, static_cast<off_t>(period)) != 0)
            throw std::bad_alloc();
        for (std::size_t at = 0; at < bytes; at += period)
            if (mmap(data() + at, period, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0) == MAP_FAILED)
                throw std::bad_alloc();
        close(file);
    }
    ~RepeatedMemory() { munmap(mapped, mappedBytes); }
    RepeatedMemory(const RepeatedMemory&) = delete;
    RepeatedMemory& operator=(const RepeatedMemory&) = delete;

    std::uint8_t* data() const { return static_cast<std::uint8_t*>(mapped) + pageBytes(); }

    const std::size_t period;

private:
    const std::size_t mappedBytes;
    void* const mapped;
};

} // namespace zorcc::test
