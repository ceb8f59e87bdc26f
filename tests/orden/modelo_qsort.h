// A model of the array quicksort over a plain vector of doubles, written from its description
// alone, to check the library's sort call by call: the pivot is a copy of the element in the
// middle of the range, each scan moves only while the comparison is exactly "less", two elements
// are swapped only when they do not compare equal, elements with identical bytes compare equal
// without a call, and the smaller part is sorted first while the larger one waits on a stack.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

// Sorts `valores` as the library sorts an array with the comparator `compara`, and returns how
// many times a scan looked past either end of the array (the library reports each such lookup
// and takes the missing element as equal, without calling the comparator).
size_t ordena_como_la_biblioteca(std::vector<double> &valores,
                                 const std::function<int(double a, double b)> &compara);
