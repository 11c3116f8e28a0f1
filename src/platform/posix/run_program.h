#pragma once

#include <string>

namespace nvrandom::posix {

// Runs a program found on the PATH with one argument and waits for it; false when it cannot be
// started or does not exit with 0.
bool RunProgram(const char* program, const std::string& argument);

}  // namespace nvrandom::posix
