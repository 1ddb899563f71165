/* SPDX-License-Identifier: MIT */
/*
 * zorcore: memory, cache size and thread count for zorcc (libzorcore.so.6.1). Valid C99, C11 and C++17.
 * Every function may be called from any thread at any time.
 */
#ifndef ZORCORE_H
#define ZORCORE_H

#include "zorcc/types.h"

/* A block of `bytes` bytes on a 64-byte boundary, not cleared; null when bytes is below 1 or memory is out. */
ZOR_API void* zorMalloc(int bytes);

/* Releases a block of zorMalloc; null is ignored. */
ZOR_API void zorFree(void* block);

/*
 * Size in bytes of the largest (last-level) data cache, stored to *bytes.
 * zorStatusNullPointer for a null pointer; zorStatusNothingDone, with *bytes as it was, when the processor does not
 * report it.
 */
ZOR_API ZorStatus zorGetMaxCacheSizeB(int* bytes);

/*
 * Threads that one call of zorcc may use, at least 1. Until zorSetNumThreads is called this is what the OpenMP runtime
 * would use, so OMP_NUM_THREADS counts. In a child of fork() it is 1, whatever is set: a child has none of the
 * runtime's threads. What its calls give is the same.
 */
ZOR_API int ownGetNumThreads(void);

/*
 * Sets the number of threads for the whole process: 1 .. INT_MAX; zorStatusBadArgument, changing nothing, for counts
 * below 1. A call never uses more threads than it has rows (bands of rows, channels) to share out, nor more than 32 or
 * four for every processor, whichever is more; the rest of a greater number is ignored.
 *
 * The first call of a thread that shares out its rows makes the OpenMP runtime start the others, each with a stack of
 * its own (8 MiB of address space unless OMP_STACKSIZE or the limit of the process says otherwise). Where the system
 * refuses a thread, or memory for the runtime's own bookkeeping, the runtime ends the process with a message. That is
 * the only way in which a call can end it; processes that live near their limits set 1, with which the runtime is never
 * asked for threads.
 */
ZOR_API ZorStatus zorSetNumThreads(int count);

#endif
