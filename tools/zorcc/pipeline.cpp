// SPDX-License-Identifier: MIT
#include "pipeline.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "error.h"
#include "formats.h"
#include "messages.h"
#include "progress.h"

namespace zorcc::tool {

namespace {

constexpr int maxWorkers = 16; // each holds a picture or two

int threads = 0; // 0: not set

class Pipeline {
public:
    Pipeline(Reader& input, Writer& output, const std::function<Picture(Picture)>& function)
        : reader(input), writer(output), make(function), progress(input)
    {
    }

    void run(int workers)
    {
        {
            std::vector<std::jthread> others;
            try {
                for (int i = 1; i < workers; ++i) others.emplace_back([this] { work(); });
            } catch (...) { // threads that have started must end
                fail(0, std::current_exception());
            }
            work();
        }
        if (error) std::rethrow_exception(error);
    }

private:
    void work()
    {
        int number = 0;
        try {
            while (auto pending = begin(number)) finish(std::move(*pending), number);
        } catch (...) {
            fail(number, std::current_exception());
        }
    }

    // The next picture of the input and its number, from 1 on.
    std::optional<Pending> begin(int& number)
    {
        const std::lock_guard lock(readMutex);
        if (isAtEnd || hasFailed()) return {};
        number = reader.count() + 1;
        isAtEnd = true; // after a failure, too: what follows would be misread, and fail in other words
        auto pending = reader.start();
        isAtEnd = !pending;
        return pending;
    }

    void finish(Pending pending, int number)
    {
        Picture picture = std::move(pending).get();
        const Format& before = picture.format();
        picture = naming(reader.path(), [&] { return make(std::move(picture)); });
        // Functions do not report that they drop alpha; plans do, in the same words, and each warning is printed once.
        if (hasAlpha(before) && !hasAlpha(picture.format())) warn(reader.path(), "alpha is dropped");
        if (writer.mustBeInOrder()) {
            std::unique_lock lock(turnMutex);
            turnChanged.wait(lock, [&] { return error || written + 1 == number; });
            if (error) return;
        }
        writer.write(std::move(picture), number); // where in order, by one thread at a time
        const std::lock_guard lock(turnMutex);
        ++written;
        progress.update(written);
        turnChanged.notify_all();
    }

    bool hasFailed()
    {
        const std::lock_guard lock(turnMutex);
        return error != nullptr;
    }

    // Of several failures, that of the first picture is reported.
    void fail(int number, std::exception_ptr cause)
    {
        const std::lock_guard lock(turnMutex);
        if (!error || number < failedNumber) error = cause, failedNumber = number;
        turnChanged.notify_all();
    }

    Reader& reader;
    Writer& writer;
    const std::function<Picture(Picture)>& make;

    std::mutex readMutex;
    bool isAtEnd = false;

    std::mutex turnMutex; // of all below
    std::condition_variable turnChanged;
    Progress progress;
    int written = 0, failedNumber = 0;
    std::exception_ptr error;
};

} // namespace

void setThreads(int count) { threads = count; }

void writeAll(Reader& reader, Writer& writer, const std::function<Picture(Picture)>& make, bool oneAtATime)
{
    const int most = threads > 0 ? threads : static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    const bool several = reader.mayHoldSeveral() && !oneAtATime;
    if (several || threads > 0) zorSetNumThreads(several ? 1 : threads);
    Pipeline(reader, writer, make).run(several ? std::min(most, maxWorkers) : 1);
    writer.commit();
}

} // namespace zorcc::tool
