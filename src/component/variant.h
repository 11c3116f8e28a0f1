#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace nvrandom {

// A one- or two-dimensional array of strings with the platform's bounds, as a host passes it in a
// variant. Elements are stored column-major by the first index: element (i, j) of a 2-D array is
// at (j - lbound[1]) * extent(0) + (i - lbound[0]).
class StringArray {
 public:
  StringArray() = default;
  // One dimension, bounds (lower To upper); upper = lower - 1 gives an empty array.
  static StringArray OneDimensional(int32_t lower, int32_t upper);
  // Two dimensions, bounds (lower0 To upper0, lower1 To upper1).
  static StringArray TwoDimensional(int32_t lower0, int32_t upper0, int32_t lower1, int32_t upper1);

  int dimensions() const { return static_cast<int>(lower_.size()); }
  // Bounds of dimension 1 or 2, as LBound/UBound number them; a missing dimension raises
  // run-time error 9.
  int32_t LBound(int dimension = 1) const;
  int32_t UBound(int dimension = 1) const;

  // Element access; an index outside the bounds, or the wrong number of indices, raises error 9.
  const std::string& at(int32_t i) const;
  std::string& at(int32_t i);
  const std::string& at(int32_t i, int32_t j) const;
  std::string& at(int32_t i, int32_t j);

  size_t size() const { return data_.size(); }
  bool operator==(const StringArray&) const = default;

 private:
  size_t Offset(int32_t i) const;
  size_t Offset(int32_t i, int32_t j) const;

  std::vector<int32_t> lower_;
  std::vector<int32_t> upper_;
  std::vector<std::string> data_;
};

// The value of a property as a late-bound host passes it: nothing, a number, a text or an array.
// Typed properties convert it the way the platform would (see property_value.h).
struct Variant {
  std::variant<std::monostate, int32_t, std::string, StringArray> value;

  Variant() = default;
  Variant(int32_t number) : value(number) {}               // NOLINT(google-explicit-constructor)
  Variant(std::string text) : value(std::move(text)) {}    // NOLINT(google-explicit-constructor)
  Variant(const char* text) : value(std::string(text)) {}  // NOLINT(google-explicit-constructor)
  Variant(StringArray array) : value(std::move(array)) {}  // NOLINT(google-explicit-constructor)

  bool is_empty() const { return std::holds_alternative<std::monostate>(value); }
  bool operator==(const Variant&) const = default;
};

// Conversions with the platform's rules; they raise RuntimeError 13 (type mismatch) or 6
// (overflow) where the platform would.
std::string ToText(const Variant& v);          // CStr: numbers in decimal, empty as ""
int16_t ToInteger(const Variant& v);           // CInt: numeric text rounds half to even
int16_t ToFlag(const Variant& v);              // CBool: nonzero or "True" gives -1
const StringArray& ToArray(const Variant& v);  // an array, or error 13

}  // namespace nvrandom
