#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace nvrandom {

// The platform's run-time error numbers that the component raises or reports.
namespace vb_error {
inline constexpr int32_t kInvalidProcedureCall = 5;
inline constexpr int32_t kOverflow = 6;
inline constexpr int32_t kOutOfMemory = 7;
inline constexpr int32_t kSubscriptOutOfRange = 9;
inline constexpr int32_t kTypeMismatch = 13;
inline constexpr int32_t kFileNotFound = 53;
inline constexpr int32_t kPathFileAccess = 75;
inline constexpr int32_t kPathNotFound = 76;
inline constexpr int32_t kCannotCreateObject = 429;
inline constexpr int32_t kObjectDoesNotSupport = 438;
inline constexpr int32_t kArgumentNotOptional = 449;
inline constexpr int32_t kDllEntryPointNotFound = 453;
}  // namespace vb_error

// The text the platform gives for its common run-time errors ("Subscript out of range").
std::string DefaultErrorDescription(int32_t number);

// A run-time error of the component: what a failed call reports to its host and what an error
// trap hands to ShowError. Carries the platform's error number and description.
class RuntimeError : public std::runtime_error {
 public:
  explicit RuntimeError(int32_t number);
  RuntimeError(int32_t number, const std::string& description);

  int32_t number() const { return number_; }
  const std::string& description() const { return description_; }

 private:
  int32_t number_;
  std::string description_;
};

// Inside a catch block: the platform error number of the exception being handled (its own for a
// RuntimeError; 7 out of memory for allocation failures; 9 for out-of-range access; else 5).
int32_t CurrentErrorNumber() noexcept;
// The same exception's description.
std::string CurrentErrorDescription();

}  // namespace nvrandom
