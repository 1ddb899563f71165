// SPDX-License-Identifier: MIT
// Children of a process that has called the library on several threads: every function still gives the same bytes.
#include <gtest/gtest.h>
#include <omp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <thread>

#include "tests/harness/contents.h"
#include "tests/harness/thread_count.h"
#include "tests/process/prepared_call.h"

namespace zorcc::test {
namespace {

// What a child did: its exit status, or the negated signal that ended it.
template <class Work> int resultOfChild(Work work)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(200); // ends a child that waits for threads which it does not have
        _exit(work());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

struct Fork : testing::Test {
    const OnThreads four{4};
};

TEST_F(Fork, ChildrenGiveTheSameBytes)
{
    for (const interface::Function& function : interface::functions()) {
        PreparedCall call(function, {200, 200});
        call();
        call.expectThisAgain();
        ASSERT_EQ(resultOfChild([&] { return call.givesTheSameAgain() ? 0 : 1; }), 0) << function.name;
    }
}

TEST_F(Fork, ChildrenAndTheirChildrenWorkOnOneThread)
{
    PreparedCall call(*interface::findFunction("zoriRGBToHSV_16u_C3R"), {200, 200});
    call();
    call.expectThisAgain();
    EXPECT_EQ(resultOfChild([&] {
                  static_cast<void>(zorSetNumThreads(3)); // which a child may not have
                  const int grandchild =
                      resultOfChild([&] { return call.givesTheSameAgain() ? ownGetNumThreads() : 9; });
                  return 10 * ownGetNumThreads() + grandchild;
              }),
              11);
    EXPECT_EQ(ownGetNumThreads(), 4);
    EXPECT_TRUE(call.givesTheSameAgain());
}

// Threads of the caller's own OpenMP regions are lost in a child, too.
TEST_F(Fork, ChildrenOfParallelPrograms)
{
    int members = 0;
#pragma omp parallel num_threads(3) reduction(+ : members)
    members += 1;
    EXPECT_EQ(members, 3);
    PreparedCall call(*interface::findFunction("zoriRGBToHSV_8u_C3R"), {200, 200});
    EXPECT_EQ(resultOfChild([&] { return call(); }), zorStatusOk);
}

#ifndef ZORCC_SANITIZED // whose allocators may be locked in the child
TEST_F(Fork, WhileOtherThreadsAreInCalls)
{
    std::atomic<bool> done = false;
    std::thread caller([&] {
        PreparedCall call(*interface::findFunction("zoriRGBToLUV_8u_C3R"), {200, 200});
        while (!done) call();
    });
    PreparedCall call(*interface::findFunction("zoriReduceBits_8u_C3R"), {200, 200});
    call();
    call.expectThisAgain();
    for (int i = 0; i < 100 && !HasFailure(); ++i)
        EXPECT_EQ(resultOfChild([&] { return call.givesTheSameAgain() ? 0 : 1; }), 0);
    done = true;
    caller.join();
}
#endif

} // namespace
} // namespace zorcc::test
