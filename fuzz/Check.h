#pragma once

#include <cstdlib>

/// Ends the process where a property does not hold, in every build kind, so that the fuzzer keeps
/// the input.
#define FUZZ_CHECK(condition)                                                                      \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)
