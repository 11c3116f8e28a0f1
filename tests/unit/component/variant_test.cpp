#include <gtest/gtest.h>

#include <string>

#include "component/variant.h"
#include "platform/runtime_error.h"

namespace nvrandom {
namespace {

// The value a conversion gives, or "error N".
template <class F>
std::string Outcome(F&& convert) {
  try {
    return convert();
  } catch (const RuntimeError& e) {
    return "error " + std::to_string(e.number());
  }
}

std::string ArrayText(const StringArray& a) {
  std::string text = std::to_string(a.dimensions()) + "D";
  for (int32_t j = a.dimensions() == 2 ? a.LBound(2) : 0;
       j <= (a.dimensions() == 2 ? a.UBound(2) : 0); ++j) {
    for (int32_t i = a.LBound(1); i <= a.UBound(1); ++i) {
      text += " " + (a.dimensions() == 2 ? a.at(i, j) : a.at(i));
    }
  }
  return text;
}

// One row per kind of value a host passes, through every conversion: the documented table.
TEST(Variant, ConversionTable) {
  const Variant seven = 7;
  const Variant reference_to_seven = Variant::Ref(seven);
  StringArray texts = StringArray::OneDimensional(1, 2);
  texts.at(1) = "A";
  texts.at(2) = "B";
  const Variant nested = Variant::Array({{0}, {0}, {Variant(texts)}});
  struct Row {
    const char* what;
    Variant value;
    std::string text, integer, flag, array;
  };
  const Row rows[] = {
      {"empty", Variant(), "", "0", "0", "error 13"},
      {"integer", 7, "7", "7", "-1", "error 13"},
      {"integer past 16 bits", 40000, "40000", "error 6", "-1", "error 13"},
      {"double", Variant::Double(2.5), "2.5", "2", "-1", "error 13"},
      {"double rounding up", Variant::Double(3.5), "3.5", "4", "-1", "error 13"},
      {"double zero", Variant::Double(0), "0", "0", "0", "error 13"},
      {"large double", Variant::Double(1e20), "1E+20", "error 6", "-1", "error 13"},
      {"true", Variant::Boolean(true), "True", "-1", "-1", "error 13"},
      {"numeric text", " 12 ", " 12 ", "12", "-1", "error 13"},
      {"truth text", "tRUE", "tRUE", "error 13", "-1", "error 13"},
      {"text array", texts, "error 13", "error 13", "error 13", "1D A B"},
      {"variant array",
       Variant::Array({{0, 0}, {1, 1}, {"C", 5, Variant::Boolean(true), Variant()}}), "error 13",
       "error 13", "error 13", "2D C 5 True "},
      {"variant array holding an array", nested, "error 13", "error 13", "error 13", "error 13"},
      {"variant array of the wrong size", Variant::Array({{0}, {3}, {"A"}}), "error 13", "error 13",
       "error 13", "error 13"},
      {"missing argument", Variant::Missing(), "error 449", "error 449", "error 449", "error 449"},
      {"by reference", Variant::Ref(seven), "7", "7", "-1", "error 13"},
      {"reference to a reference", Variant::Ref(reference_to_seven), "7", "7", "-1", "error 13"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(Outcome([&] { return ToText(row.value); }), row.text);
    EXPECT_EQ(Outcome([&] { return std::to_string(ToInteger(row.value)); }), row.integer);
    EXPECT_EQ(Outcome([&] { return std::to_string(ToFlag(row.value)); }), row.flag);
    EXPECT_EQ(Outcome([&] { return ArrayText(ToArray(row.value)); }), row.array);
  }
}

// A reference that comes back to itself refers to no value.
TEST(Variant, ACircularReferenceIsATypeMismatch) {
  Variant loop;
  loop = Variant::Ref(loop);
  EXPECT_EQ(Outcome([&] { return ToText(loop); }), "error 13");
}

}  // namespace
}  // namespace nvrandom
