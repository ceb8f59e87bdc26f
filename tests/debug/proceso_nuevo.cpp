// Checks run in a new process of the test program (gtest's "threadsafe" death-test style runs
// the program again from the start, so the module's globals are as at start).
#include "debug/proceso_nuevo.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

void en_proceso_nuevo(const std::function<bool()> &comprobaciones)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(comprobaciones() ? 0 : 1), ::testing::ExitedWithCode(0), "");
}

bool cumple(bool condicion, const char *que)
{
    if (!condicion)
        std::fprintf(stderr, "failed: %s\n", que);
    return condicion;
}
