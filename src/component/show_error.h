#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace nvrandom {

class Context;
class RuntimeError;

// The caption of message boxes that give none of their own.
inline constexpr const char* kApplicationTitle = "NVRandom";

// "The following error: '<description> (Error <n>)' occurred in procedure '<procName>'."
std::string ErrorMessage(int32_t errNumber, std::string_view description,
                         std::string_view procName);

// Reports a trapped run-time error: a trace entry (when tracing), the message in a critical box
// (unless `silent`; captioned `title`, or the application title when it is blank) and one line
// appended to "error.log" in the installation root. Never throws.
void ShowError(Context& ctx, int32_t errNumber, std::string_view description,
               std::string_view procName, bool silent = false, std::string_view title = {});

// The same for a caught RuntimeError.
void ShowError(Context& ctx, const RuntimeError& error, std::string_view procName);

}  // namespace nvrandom
