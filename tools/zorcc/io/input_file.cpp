// SPDX-License-Identifier: MIT
#include "input_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "../error.h"
#include "file_kind.h"

namespace zorcc::tool {

namespace {

std::FILE* opened(const std::string& path)
{
    if (!isStandardStream(path)) return std::fopen(path.c_str(), "rbe");
    const int descriptor = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3);
    std::FILE* const stream = descriptor < 0 ? nullptr : fdopen(descriptor, "rb");
    if (!stream && descriptor >= 0) close(descriptor);
    return stream;
}

} // namespace

InputFile::InputFile(const std::string& from)
    : path(isStandardStream(from) ? "standard input" : from), file(opened(from))
{
    struct stat status {};
    if (!file || fstat(fileno(stream()), &status) != 0) throw Cause(std::strerror(errno));
    if (S_ISDIR(status.st_mode)) throw Cause(std::strerror(EISDIR));
    if (S_ISREG(status.st_mode)) bytes = static_cast<std::uint64_t>(status.st_size);
}

std::optional<std::uint64_t> InputFile::left() const
{
    if (!bytes) return {};
    const auto position = static_cast<std::uint64_t>(ftello(stream()));
    return position < *bytes ? *bytes - position : 0;
}

void InputFile::expect(std::uint64_t count) const
{
    if (const auto rest = left(); rest && *rest < count)
        throw Cause("the file ends early: " + std::to_string(count) + " more bytes are needed, " +
                    std::to_string(*rest) + " are left");
}

int InputFile::peek()
{
    const int byte = get();
    if (byte != EOF) std::ungetc(byte, stream());
    return byte;
}

int InputFile::get()
{
    const int byte = std::getc(stream());
    if (byte == EOF && std::ferror(stream())) fail();
    return byte;
}

void InputFile::read(void* to, std::size_t count)
{
    if (std::fread(to, 1, count, stream()) != count) fail();
}

std::string InputFile::readLine(std::size_t limit)
{
    std::string line;
    for (int c = get(); c != '\n'; c = get()) {
        if (c == EOF) fail();
        if (line.size() == limit) throw Cause("no line end where one should be");
        line += static_cast<char>(c);
    }
    return line;
}

void InputFile::fail() const { throw Cause(std::ferror(stream()) ? std::strerror(errno) : "the file ends early"); }

} // namespace zorcc::tool
