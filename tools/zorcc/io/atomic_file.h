// SPDX-License-Identifier: MIT
// A file to write that appears under its name only when it is complete. Failures throw Cause.
#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>

namespace zorcc::tool {

// Removes all unfinished files. After that none can be created or renamed: for the end of the process.
void removeUnfinishedFiles();

// A new file beside the one that it is to become, in a list of all such files from before it exists until it is renamed
// or removed.
class TemporaryFile {
public:
    TemporaryFile() = default;
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    int create(const std::string& target); // the descriptor
    bool exists() const { return listed; }
    void becomes(const std::string& target);

private:
    friend void removeUnfinishedFiles();

    void leaveList(); // with the list's lock

    std::string name;
    bool listed = false;
    TemporaryFile *before = nullptr, *after = nullptr;
};

// Written under a temporary name, renamed by commit(), removed by a destructor without commit(). What is no regular
// file (a pipe, a device) is written directly, as is standard output, named "-".
class AtomicFile {
public:
    explicit AtomicFile(const std::string& path);

    const std::string& name() const { return target; }
    std::FILE* stream() const { return file.get(); }
    void write(const void* from, std::size_t count);
    void print(const std::string& text) { write(text.data(), text.size()); }

    // Ends writing; commit() then gives the file its name.
    void close();
    void commit();

private:
    struct Close {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };

    void adopt(int descriptor); // closes it on failure

    std::string target;
    TemporaryFile temporary;
    std::unique_ptr<std::FILE, Close> file; // closed before the temporary file is removed
};

} // namespace zorcc::tool
