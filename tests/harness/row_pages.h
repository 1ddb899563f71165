// SPDX-License-Identifier: MIT
// Pages far from each other, one for each row of a plane: an access between them ends the test.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <new>

namespace zorcc::test {

class RowPages {
public:
    // `stride` bytes, at least two pages and a multiple of a page, from one row's page to the next.
    RowPages(int rows, std::size_t stride)
    {
        const std::size_t page = pageBytes();
        mappedBytes = page + static_cast<std::size_t>(rows) * stride; // the first page stays inaccessible
        mapped = mmap(nullptr, mappedBytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (mapped == MAP_FAILED) throw std::bad_alloc();
        firstPage = static_cast<std::uint8_t*>(mapped) + page;
        for (int r = 0; r < rows; ++r)
            if (mprotect(firstPage + static_cast<std::size_t>(r) * stride, page, PROT_READ | PROT_WRITE) != 0) {
                munmap(mapped, mappedBytes);
                throw std::bad_alloc();
            }
    }
    ~RowPages() { munmap(mapped, mappedBytes); }
    RowPages(const RowPages&) = delete;
    RowPages& operator=(const RowPages&) = delete;

    std::uint8_t* data() const { return firstPage; }

    // Four of the system's: space for a long row of floats.
    static std::size_t pageBytes() { return 4 * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

private:
    void* mapped;
    std::size_t mappedBytes;
    std::uint8_t* firstPage;
};

} // namespace zorcc::test
