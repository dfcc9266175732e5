#pragma once

// What the fuzz targets share: a check that stops the run with a message
// when a property of a reader does not hold, so that the fuzzer keeps the
// input that broke it.

#include <cstdio>
#include <cstdlib>

#define QL_FUZZ_CHECK(condition)                                                                  \
    do {                                                                                          \
        if (!(condition)) {                                                                       \
            std::fprintf(stderr, "%s:%d: check failed: %s\n", __FILE__, __LINE__, #condition);    \
            std::abort();                                                                         \
        }                                                                                         \
    } while (0)
