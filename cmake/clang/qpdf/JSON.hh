// Stands in for qpdf's own header where Clang reads the sources (clang-tidy, the fuzzers): that one holds a vector of a
// class that is not complete yet, which Clang does not take in C++20. Nothing of ours looks into such a value.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

class JSON;
