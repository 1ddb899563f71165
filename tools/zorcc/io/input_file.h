// SPDX-License-Identifier: MIT
// A file to read from, or standard input, named "-". Failures throw Cause.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace zorcc::tool {

class InputFile {
public:
    explicit InputFile(const std::string& path);

    const std::string& name() const { return path; }
    std::FILE* stream() const { return file.get(); }

    // Size in bytes, and how many are left; nothing for pipes and the like.
    std::optional<std::uint64_t> size() const { return bytes; }
    std::optional<std::uint64_t> left() const;

    // Throws if the file is known to end within the next `count` bytes; called before memory is allocated for them.
    void expect(std::uint64_t count) const;

    int get();  // one byte, or EOF
    int peek(); // the same byte, which the next get() gives again
    bool atEnd() { return peek() == EOF; }
    void read(void* to, std::size_t count);  // exactly that many bytes
    std::string readLine(std::size_t limit); // without the line feed, which must come within `limit` bytes

private:
    struct Close {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };

    [[noreturn]] void fail() const; // after a short read

    std::string path;
    std::unique_ptr<std::FILE, Close> file;
    std::optional<std::uint64_t> bytes;
};

} // namespace zorcc::tool
