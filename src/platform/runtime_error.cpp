#include "platform/runtime_error.h"

#include <new>
#include <stdexcept>
#include <string>

namespace nvrandom {

std::string DefaultErrorDescription(int32_t number) {
  switch (number) {
    case vb_error::kInvalidProcedureCall:
      return "Invalid procedure call or argument";
    case vb_error::kOverflow:
      return "Overflow";
    case vb_error::kOutOfMemory:
      return "Out of memory";
    case vb_error::kSubscriptOutOfRange:
      return "Subscript out of range";
    case vb_error::kTypeMismatch:
      return "Type mismatch";
    case vb_error::kFileNotFound:
      return "File not found";
    case vb_error::kPathFileAccess:
      return "Path/File access error";
    case vb_error::kPathNotFound:
      return "Path not found";
    case vb_error::kCannotCreateObject:
      return "ActiveX component can't create object";
    case vb_error::kObjectDoesNotSupport:
      return "Object doesn't support this property or method";
    case vb_error::kArgumentNotOptional:
      return "Argument not optional";
    case vb_error::kDllEntryPointNotFound:
      return "Specified DLL function not found";
    default:
      return "Application-defined or object-defined error";
  }
}

RuntimeError::RuntimeError(int32_t number)
    : RuntimeError(number, DefaultErrorDescription(number)) {}

RuntimeError::RuntimeError(int32_t number, const std::string& description)
    : std::runtime_error(description + " (Error " + std::to_string(number) + ")"),
      number_(number),
      description_(description) {}

int32_t CurrentErrorNumber() noexcept {
  try {
    throw;
  } catch (const RuntimeError& error) {
    return error.number();
  } catch (const std::bad_alloc&) {
    return vb_error::kOutOfMemory;
  } catch (const std::length_error&) {
    return vb_error::kOutOfMemory;
  } catch (const std::out_of_range&) {
    return vb_error::kSubscriptOutOfRange;
  } catch (...) {
    return vb_error::kInvalidProcedureCall;
  }
}

std::string CurrentErrorDescription() {
  try {
    throw;
  } catch (const RuntimeError& error) {
    return error.description();
  } catch (...) {
    return DefaultErrorDescription(CurrentErrorNumber());
  }
}

}  // namespace nvrandom
