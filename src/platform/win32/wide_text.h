#pragma once

#include <string>
#include <string_view>

// The component's texts are UTF-8; the Windows API takes UTF-16. A byte that starts no valid UTF-8
// sequence stands for the character of the same number (as the core counts it), so no text is
// lost on the way.
namespace nvrandom::wide {

std::wstring FromUtf8(std::string_view utf8);
std::string ToUtf8(std::wstring_view utf16);

}  // namespace nvrandom::wide
