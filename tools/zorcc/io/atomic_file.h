// SPDX-License-Identifier: MIT
// A file to write that appears under its name only when it is complete. Failures throw Cause.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>

namespace zorcc::tool {

// To be called once, before any thread is started: from then on SIGINT, SIGTERM and SIGHUP remove the unfinished files
// before they end the program.
void removeUnfinishedFilesOnSignals();

// Written beside its place under a temporary name, renamed by commit(), removed by a destructor without commit(). What
// is no regular file (a pipe, a device) is written directly.
class AtomicFile {
public:
    explicit AtomicFile(const std::string& path);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    std::FILE* stream() const { return file; }
    void write(const void* from, std::size_t count);
    void print(const std::string& text) { write(text.data(), text.size()); }

    // All is written; the file waits, closed, for commit().
    void close();
    void commit();

private:
    std::string target, temporary; // no temporary: written directly
    std::FILE* file = nullptr;
};

} // namespace zorcc::tool
