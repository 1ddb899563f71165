// SPDX-License-Identifier: MIT
// Memory between inaccessible pages: an access outside it, even to read, ends the test.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <new>

namespace zorcc::test {

enum class Edge {
    start, // the first byte is the first after an inaccessible page
    end    // the last byte is the last before an inaccessible page
};

inline constexpr Edge edges[] = {Edge::start, Edge::end};

inline std::size_t pageBytes() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }
inline std::size_t inWholePages(std::size_t bytes) { return (bytes + pageBytes() - 1) / pageBytes() * pageBytes(); }

// `pieces` pieces of `bytes` zeros, their beginnings `stride` bytes from each other, and inaccessible pages around
// each. Both are whole pages, `stride` at least a page more.
class GuardedPages {
public:
    const std::size_t pieces, bytes, stride;

    GuardedPages(std::size_t pieceCount, std::size_t pieceBytes, std::size_t pieceStride)
        : pieces(pieceCount), bytes(pieceBytes), stride(pieceStride),
          mapped(mmap(nullptr, mappedBytes(), PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0))
    {
        if (mapped == MAP_FAILED) throw std::bad_alloc();
        for (std::size_t i = 0; i < pieces; ++i)
            if (bytes > 0 && mprotect(data(i), bytes, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
    }
    ~GuardedPages() { munmap(mapped, mappedBytes()); }
    GuardedPages(const GuardedPages&) = delete;
    GuardedPages& operator=(const GuardedPages&) = delete;

    std::uint8_t* data(std::size_t piece) const
    {
        return static_cast<std::uint8_t*>(mapped) + pageBytes() + piece * stride;
    }

private:
    void* const mapped;

    std::size_t mappedBytes() const { return pageBytes() + pieces * stride; }
};

// `size` zeros, of which one end lies on the edge of a page; 0 bytes are possible.
class GuardedBuffer {
public:
    GuardedBuffer(std::size_t size, Edge edge)
        : pages(1, inWholePages(size), inWholePages(size) + pageBytes()),
          skipped(edge == Edge::end ? pages.bytes - size : 0)
    {
    }

    std::uint8_t* data() const { return pages.data(0) + skipped; }

private:
    GuardedPages pages;
    std::size_t skipped;
};

} // namespace zorcc::test
