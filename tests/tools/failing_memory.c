/* SPDX-License-Identifier: MIT */
/* Preloaded, it makes the allocation (or the start of a thread) fail that has the number in ZORCC_FAIL, counted from 1
 * when main() begins to run, and writes how many there were to the file that ZORCC_COUNT names. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>

extern void* __libc_malloc(size_t);
extern void* __libc_calloc(size_t, size_t);
extern void* __libc_realloc(void*, size_t);
extern void* __libc_memalign(size_t, size_t);

static long count, number = -1;
static int counting;

static int fails(void)
{
    return __atomic_load_n(&counting, __ATOMIC_RELAXED) && __atomic_add_fetch(&count, 1, __ATOMIC_RELAXED) == number &&
           (errno = ENOMEM);
}

void* malloc(size_t size) { return fails() ? NULL : __libc_malloc(size); }
void* calloc(size_t n, size_t size) { return fails() ? NULL : __libc_calloc(n, size); }
void* realloc(void* block, size_t size) { return fails() ? NULL : __libc_realloc(block, size); }
void* aligned_alloc(size_t alignment, size_t size) { return fails() ? NULL : __libc_memalign(alignment, size); }

int posix_memalign(void** block, size_t alignment, size_t size)
{
    if (fails()) return ENOMEM;
    *block = __libc_memalign(alignment, size);
    return *block ? 0 : ENOMEM;
}

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*), void* argument)
{
    static int (*next)(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*);
    if (!next) *(void**)&next = dlsym(RTLD_NEXT, "pthread_create");
    return fails() ? EAGAIN : next(thread, attributes, run, argument);
}

static void tell(void)
{
    counting = 0;
    const char* const path = getenv("ZORCC_COUNT");
    FILE* const file = path ? fopen(path, "w") : NULL;
    if (file) fprintf(file, "%ld", count);
    if (file) fclose(file);
}

static int (*programMain)(int, char**, char**);

static int countedMain(int argc, char** argv, char** environment)
{
    const char* const text = getenv("ZORCC_FAIL");
    if (text) number = atol(text);
    atexit(tell);
    counting = 1;
    return programMain(argc, argv, environment);
}

int __libc_start_main(int (*program)(int, char**, char**), int argc, char** argv, void (*init)(void),
                      void (*fini)(void), void (*rtldFini)(void), void* stackEnd)
{
    int (*next)(int (*)(int, char**, char**), int, char**, void (*)(void), void (*)(void), void (*)(void), void*);
    *(void**)&next = dlsym(RTLD_NEXT, "__libc_start_main");
    programMain = program;
    return next(countedMain, argc, argv, init, fini, rtldFini, stackEnd);
}
