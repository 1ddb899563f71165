/* SPDX-License-Identifier: MIT */
/* The version of the library. */
#ifndef ZORCC_VERSION_H
#define ZORCC_VERSION_H

#include "zorcc/types.h"

/* Owned by the library, valid for ever. */
typedef struct {
    int32_t major, minor;
    int32_t buildMajor, buildMinor;
    char cpuCode[4];         /* target code of the variant, zero padded; not always terminated */
    const char* libraryName; /* file name of the library */
    const char* versionText;
    const char* buildDate;
} ZorVersion;

/* The version record: always the same address. */
ZOR_API const ZorVersion* zorccGetLibVersion(void);

#endif
