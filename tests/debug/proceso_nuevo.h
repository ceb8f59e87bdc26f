// Test support: checks that need the debug module's state as at process start run in a new
// process of the test program.
#pragma once

#include <functional>

// Runs `comprobaciones` in a new process of this program; the test fails unless they all hold
// and the process exits normally. The new process runs the test from its start, so the lines
// before the call run there too and must be able to run twice.
void en_proceso_nuevo(const std::function<bool()> &comprobaciones);

// For checks in a new process, where gtest's assertions do not reach the parent: says on
// standard error what failed, and returns `condicion`.
bool cumple(bool condicion, const char *que);
