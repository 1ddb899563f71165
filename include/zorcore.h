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
 * would use, so OMP_NUM_THREADS counts.
 */
ZOR_API int ownGetNumThreads(void);

/* Sets the number of threads for the whole process; zorStatusBadArgument, changing nothing, for counts below 1. */
ZOR_API ZorStatus zorSetNumThreads(int count);

#endif
