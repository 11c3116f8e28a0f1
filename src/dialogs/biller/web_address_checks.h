#pragma once

#include <string>
#include <string_view>

namespace nvrandom {

class Context;

// The example address and site that the refusal messages show.
inline constexpr std::string_view kExampleEmailAddress = "name@example.com";
inline constexpr std::string_view kExampleWebSite = "www.example.com";

// The biller dialog's e-mail and web-site checks. Patterns are tested case-insensitively by the
// platform's regular-expression object; its failures are raised to the caller, not trapped.
// `message` receives the text to show on refusal and is left alone on acceptance.

// An address shorter than five characters (trimmed) is incomplete, unless it is empty and
// `allow_empty` is set; otherwise the untrimmed address must have the usual local@domain form.
bool ValidateEmailAddress(Context& ctx, std::string_view address, std::string& message,
                          bool allow_empty);

// Accepted when it holds a dot with at least one character before it.
bool ValidateWebsite(Context& ctx, std::string_view site, std::string& message);

// The character-by-character check: one "@", non-empty parts of letters, digits, "_", "-" and
// "." not beginning or ending with ".", a dotted domain whose last part has 2 to 4 characters,
// and no "..".
bool IsEmailValid(Context& ctx, std::string_view address);

}  // namespace nvrandom
