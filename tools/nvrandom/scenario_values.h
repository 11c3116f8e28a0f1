#pragma once

#include <string>

#include "component/variant.h"
#include "scenario_line.h"

namespace nvrandom::scenario {

// The value a host passes for a word of a `let`: a quoted text, an integer, or a JSON list. A
// list of lists becomes a 2 x n array, row i giving elements (0, i) and (1, i) (more columns give
// more rows of the first dimension); a flat list a one-dimensional array (0 To n - 1). Throws
// MalformedLine for a list that is not JSON.
Variant HostValue(const Word& word, const std::string& root, const std::string& install);

// How values print: numbers as they are, texts quoted with the scenario escapes, arrays as JSON.
std::string FormatValue(const Variant& value);
std::string Quote(std::string_view text);

// Whether `actual` is what the expectation's word says: a quoted word compares as text, a bare
// integer as a number (a text that reads as that number matches too).
bool ValueMatches(const Variant& actual, const Word& expected, const std::string& root,
                  const std::string& install);

}  // namespace nvrandom::scenario
