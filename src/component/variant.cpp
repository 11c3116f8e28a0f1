#include "component/variant.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

#include "platform/ascii.h"
#include "platform/runtime_error.h"

namespace nvrandom {

StringArray StringArray::OneDimensional(int32_t lower, int32_t upper) {
  StringArray a;
  a.lower_ = {lower};
  a.upper_ = {upper};
  a.data_.resize(upper >= lower ? static_cast<size_t>(upper - lower + 1) : 0);
  return a;
}

StringArray StringArray::TwoDimensional(int32_t lower0, int32_t upper0, int32_t lower1,
                                        int32_t upper1) {
  StringArray a;
  a.lower_ = {lower0, lower1};
  a.upper_ = {upper0, upper1};
  const auto extent = [](int32_t lo, int32_t hi) {
    return hi >= lo ? static_cast<size_t>(hi - lo + 1) : size_t{0};
  };
  a.data_.resize(extent(lower0, upper0) * extent(lower1, upper1));
  return a;
}

int32_t StringArray::LBound(int dimension) const {
  if (dimension < 1 || dimension > dimensions()) throw RuntimeError(vb_error::kSubscriptOutOfRange);
  return lower_[static_cast<size_t>(dimension - 1)];
}

int32_t StringArray::UBound(int dimension) const {
  if (dimension < 1 || dimension > dimensions()) throw RuntimeError(vb_error::kSubscriptOutOfRange);
  return upper_[static_cast<size_t>(dimension - 1)];
}

size_t StringArray::Offset(int32_t i) const {
  if (dimensions() != 1 || i < lower_[0] || i > upper_[0]) {
    throw RuntimeError(vb_error::kSubscriptOutOfRange);
  }
  return static_cast<size_t>(i - lower_[0]);
}

size_t StringArray::Offset(int32_t i, int32_t j) const {
  if (dimensions() != 2 || i < lower_[0] || i > upper_[0] || j < lower_[1] || j > upper_[1]) {
    throw RuntimeError(vb_error::kSubscriptOutOfRange);
  }
  const auto rows = static_cast<size_t>(upper_[0] - lower_[0] + 1);
  return static_cast<size_t>(j - lower_[1]) * rows + static_cast<size_t>(i - lower_[0]);
}

const std::string& StringArray::at(int32_t i) const {
  return data_[Offset(i)];
}
std::string& StringArray::at(int32_t i) {
  return data_[Offset(i)];
}
const std::string& StringArray::at(int32_t i, int32_t j) const {
  return data_[Offset(i, j)];
}
std::string& StringArray::at(int32_t i, int32_t j) {
  return data_[Offset(i, j)];
}

namespace {

// Numeric text as the platform reads it: optional blanks and sign, digits with one optional
// decimal point, optional exponent. Anything else is a type mismatch.
double ParseNumber(const std::string& text) {
  size_t b = 0;
  size_t e = text.size();
  while (b < e && text[b] == ' ') ++b;
  while (e > b && text[e - 1] == ' ') --e;
  const std::string core = text.substr(b, e - b);
  if (core.empty()) throw RuntimeError(vb_error::kTypeMismatch);
  for (const char c : core) {
    if (!(ascii::IsDigit(c) || c == '.' || c == '+' || c == '-' || c == 'e' || c == 'E')) {
      throw RuntimeError(vb_error::kTypeMismatch);
    }
  }
  char* end = nullptr;
  const double value = std::strtod(core.c_str(), &end);
  if (end != core.c_str() + core.size() || !std::isfinite(value)) {
    throw RuntimeError(vb_error::kTypeMismatch);
  }
  return value;
}

int16_t ToInt16(double value) {
  const double rounded = std::nearbyint(value);  // banker's rounding, as CInt does
  if (rounded < std::numeric_limits<int16_t>::min() ||
      rounded > std::numeric_limits<int16_t>::max()) {
    throw RuntimeError(vb_error::kOverflow);
  }
  return static_cast<int16_t>(rounded);
}

}  // namespace

namespace {

// The value a reference stands for (a chain of references included; one that comes back to
// itself, or leads nowhere, refers to no value).
const Variant& Deref(const Variant& v) {
  constexpr int kLongestChain = 16;
  const Variant* at = &v;
  int links = 0;
  while (const auto* ref = std::get_if<VariantRef>(&at->value)) {
    if (ref->target == nullptr || ++links > kLongestChain) {
      throw RuntimeError(vb_error::kTypeMismatch);
    }
    at = ref->target;
  }
  if (std::holds_alternative<MissingArgument>(at->value))
    throw RuntimeError(vb_error::kArgumentNotOptional);
  return *at;
}

std::string DoubleText(double d) {
  if (d == std::trunc(d) && std::fabs(d) < 1e15) return std::to_string(static_cast<int64_t>(d));
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.15G", d);
  return buffer;
}

}  // namespace

std::string ToText(const Variant& in) {
  const Variant& v = Deref(in);
  if (const auto* n = std::get_if<int32_t>(&v.value)) return std::to_string(*n);
  if (const auto* s = std::get_if<std::string>(&v.value)) return *s;
  if (const auto* b = std::get_if<bool>(&v.value)) return *b ? "True" : "False";
  if (const auto* d = std::get_if<double>(&v.value)) return DoubleText(*d);
  if (v.is_empty()) return {};
  throw RuntimeError(vb_error::kTypeMismatch);
}

int16_t ToInteger(const Variant& in) {
  const Variant& v = Deref(in);
  if (const auto* n = std::get_if<int32_t>(&v.value)) return ToInt16(*n);
  if (const auto* s = std::get_if<std::string>(&v.value)) return ToInt16(ParseNumber(*s));
  if (const auto* b = std::get_if<bool>(&v.value)) return *b ? -1 : 0;
  if (const auto* d = std::get_if<double>(&v.value)) return ToInt16(*d);
  if (v.is_empty()) return 0;
  throw RuntimeError(vb_error::kTypeMismatch);
}

int16_t ToFlag(const Variant& in) {
  const Variant& v = Deref(in);
  if (const auto* n = std::get_if<int32_t>(&v.value)) return *n != 0 ? -1 : 0;
  if (const auto* s = std::get_if<std::string>(&v.value)) {
    if (ascii::EqualsIgnoreCase(*s, "True")) return -1;
    if (ascii::EqualsIgnoreCase(*s, "False")) return 0;
    return ParseNumber(*s) != 0 ? -1 : 0;
  }
  if (const auto* b = std::get_if<bool>(&v.value)) return *b ? -1 : 0;
  if (const auto* d = std::get_if<double>(&v.value)) return *d != 0 ? -1 : 0;
  if (v.is_empty()) return 0;
  throw RuntimeError(vb_error::kTypeMismatch);
}

StringArray ToArray(const Variant& in) {
  const Variant& v = Deref(in);
  if (const auto* a = std::get_if<StringArray>(&v.value)) return *a;
  const auto* list = std::get_if<std::shared_ptr<const VariantArray>>(&v.value);
  if (list == nullptr || *list == nullptr) throw RuntimeError(vb_error::kTypeMismatch);
  const VariantArray& from = **list;
  StringArray to;
  if (from.lower.size() == 1 && from.upper.size() == 1) {
    to = StringArray::OneDimensional(from.lower[0], from.upper[0]);
  } else if (from.lower.size() == 2 && from.upper.size() == 2) {
    to = StringArray::TwoDimensional(from.lower[0], from.upper[0], from.lower[1], from.upper[1]);
  } else {
    throw RuntimeError(vb_error::kTypeMismatch);
  }
  if (from.elements.size() != to.size()) throw RuntimeError(vb_error::kTypeMismatch);
  // Both keep their elements in the same order: convert them place by place.
  size_t k = 0;
  const auto put = [&](std::string& element) { element = ToText(from.elements[k++]); };
  if (to.dimensions() == 1) {
    for (int32_t i = to.LBound(1); i <= to.UBound(1); ++i) put(to.at(i));
  } else {
    for (int32_t j = to.LBound(2); j <= to.UBound(2); ++j) {
      for (int32_t i = to.LBound(1); i <= to.UBound(1); ++i) put(to.at(i, j));
    }
  }
  return to;
}

}  // namespace nvrandom
