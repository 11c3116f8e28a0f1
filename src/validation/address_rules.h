#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nvrandom::validation {

// The province/postal string is a run of 3-character units: a province code and a letter that
// postal codes of that province may begin with. Both lookups read it only at unit boundaries
// (characters 0, 3, 6, ...), and compare exactly (case matters).

// True when the two characters at some unit boundary equal `code`. Near the end of the string
// fewer than two characters may be compared, as the platform's Mid does.
bool LookupProvince(std::string_view provpostal, std::string_view code);

// `code` is a province code followed by a postal code's first letter. False at once when that
// last character is D, F, I, O or Q; otherwise true when some unit equals `code`.
bool LookupPostcode(std::string_view provpostal, std::string_view code);

// True when the street, trimmed, upper-cased and with runs of blanks collapsed, begins with one
// of the post-office-box words (each trimmed) followed by a blank. A word elsewhere in the
// street, or at its very end, does not count. Looks at no more of the street than the longest
// word needs.
bool HasPoBoxAddress(std::string_view street, const std::vector<std::string>& words);

// The built-in list of post-office-box words, in its order.
std::vector<std::string> SplitPoBoxWords();

}  // namespace nvrandom::validation
