#pragma once

#include <cstdint>
#include <memory>
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

struct Variant;

// An array of variants with the platform's bounds (one or two dimensions), its elements in the
// order of StringArray's: what a script host passes for an array.
struct VariantArray {
  std::vector<int32_t> lower;
  std::vector<int32_t> upper;
  std::vector<Variant> elements;
};

// An optional argument the caller left out.
struct MissingArgument {
  bool operator==(const MissingArgument&) const = default;
};

// A value passed by reference: the caller's variable, read where the value is needed.
struct VariantRef {
  const Variant* target = nullptr;
  bool operator==(const VariantRef&) const = default;
};

// The value of a property as a late-bound host passes it: nothing, an integer (16 or 32 bits), a
// double, a boolean, a text, an array of texts or of variants, a missing argument or a reference
// to any of these.
struct Variant {
  std::variant<std::monostate, int32_t, std::string, StringArray, bool, double, MissingArgument,
               VariantRef, std::shared_ptr<const VariantArray>>
      value;

  Variant() = default;
  Variant(int32_t number) : value(number) {}               // NOLINT(google-explicit-constructor)
  Variant(std::string text) : value(std::move(text)) {}    // NOLINT(google-explicit-constructor)
  Variant(const char* text) : value(std::string(text)) {}  // NOLINT(google-explicit-constructor)
  Variant(StringArray array) : value(std::move(array)) {}  // NOLINT(google-explicit-constructor)
  // The other kinds are named, so that no pointer or stray number becomes one by accident.
  static Variant Boolean(bool b) { return FromAlternative(b); }
  static Variant Double(double d) { return FromAlternative(d); }
  static Variant Missing() { return FromAlternative(MissingArgument{}); }
  // `target` must outlive the variant (a host's variable during its call).
  static Variant Ref(const Variant& target) { return FromAlternative(VariantRef{&target}); }
  static Variant Array(VariantArray array) {
    return FromAlternative(std::make_shared<const VariantArray>(std::move(array)));
  }

  bool is_empty() const { return std::holds_alternative<std::monostate>(value); }
  bool operator==(const Variant&) const = default;

 private:
  template <class T>
  static Variant FromAlternative(T alternative) {
    Variant v;
    v.value = std::move(alternative);
    return v;
  }
};

// The conversions, with the platform's rules. A reference is converted as the value it refers to.
//
//  from \ to       ToText (CStr)           ToInteger (CInt)         ToFlag (CBool)     ToArray
//  Empty           ""                      0                        0                  13
//  integer         decimal                 itself, or 6 past 16 bit nonzero: -1        13
//  double          up to 15 digits, "."    rounded half to even, 6  nonzero: -1        13
//  boolean         "True" / "False"        -1 / 0                   -1 / 0             13
//  text            itself                  numeric text as double,  "True"/"False"     13
//                                          else 13                  (any case), or as
//                                                                   numeric text, else 13
//  text array      13                      13                       13                 itself
//  variant array   13                      13                       13                 elements
//                                                                   converted by ToText, same
//                                                                   bounds (13 when one cannot be)
//  missing         449                     449                      449                449
//
// RuntimeError carries the number: 13 type mismatch, 6 overflow, 449 argument not optional.
std::string ToText(const Variant& v);
int16_t ToInteger(const Variant& v);
int16_t ToFlag(const Variant& v);
StringArray ToArray(const Variant& v);

}  // namespace nvrandom
