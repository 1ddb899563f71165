// SPDX-License-Identifier: MIT
// Memory between two inaccessible pages: an access outside it, even to read, ends the test.
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

// `bytes` zeros, of which one end lies on the edge of a page; 0 bytes are possible.
class GuardedBuffer {
public:
    GuardedBuffer(std::size_t bytes, Edge edge)
    {
        const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        const std::size_t inner = (bytes + page - 1) / page * page;
        mappedBytes = inner + 2 * page;
        mapped = mmap(nullptr, mappedBytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (mapped == MAP_FAILED) throw std::bad_alloc();
        std::uint8_t* const first = static_cast<std::uint8_t*>(mapped) + page;
        if (inner > 0 && mprotect(first, inner, PROT_READ | PROT_WRITE) != 0) {
            munmap(mapped, mappedBytes);
            throw std::bad_alloc();
        }
        usable = edge == Edge::start ? first : first + inner - bytes;
    }
    ~GuardedBuffer() { munmap(mapped, mappedBytes); }
    GuardedBuffer(const GuardedBuffer&) = delete;
    GuardedBuffer& operator=(const GuardedBuffer&) = delete;

    std::uint8_t* data() const { return usable; }

private:
    void* mapped;
    std::size_t mappedBytes;
    std::uint8_t* usable;
};

} // namespace zorcc::test
