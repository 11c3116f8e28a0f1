#include "scenario_values.h"

#include <nlohmann/json.hpp>

#include <limits>

namespace nvrandom::scenario {

namespace {

std::string JsonText(const nlohmann::json& element) {
  if (element.is_string()) return element.get<std::string>();
  if (element.is_null()) return {};
  return element.dump();
}

StringArray ArrayFromJson(const nlohmann::json& list) {
  const bool rows = !list.empty() && list.front().is_array();
  if (!rows) {
    StringArray array = StringArray::OneDimensional(0, static_cast<int32_t>(list.size()) - 1);
    for (size_t i = 0; i < list.size(); ++i) {
      if (list[i].is_array()) throw MalformedLine("a list mixes rows and values");
      array.at(static_cast<int32_t>(i)) = JsonText(list[i]);
    }
    return array;
  }
  size_t columns = 0;
  for (const auto& row : list) {
    if (!row.is_array()) throw MalformedLine("a list mixes rows and values");
    columns = std::max(columns, row.size());
  }
  StringArray array = StringArray::TwoDimensional(0, static_cast<int32_t>(columns) - 1, 0,
                                                  static_cast<int32_t>(list.size()) - 1);
  for (size_t i = 0; i < list.size(); ++i) {
    for (size_t c = 0; c < list[i].size(); ++c) {
      array.at(static_cast<int32_t>(c), static_cast<int32_t>(i)) = JsonText(list[i][c]);
    }
  }
  return array;
}

nlohmann::json ArrayToJson(const StringArray& array) {
  nlohmann::json out = nlohmann::json::array();
  if (array.dimensions() == 1) {
    for (int32_t i = array.LBound(1); i <= array.UBound(1); ++i) out.push_back(array.at(i));
  } else if (array.dimensions() == 2) {
    for (int32_t j = array.LBound(2); j <= array.UBound(2); ++j) {
      nlohmann::json row = nlohmann::json::array();
      for (int32_t i = array.LBound(1); i <= array.UBound(1); ++i) row.push_back(array.at(i, j));
      out.push_back(row);
    }
  }
  return out;
}

}  // namespace

Variant HostValue(const Word& word, const std::string& root, const std::string& install) {
  if (word.quoted) return Variant(Expand(word.text, root, install));
  if (!word.text.empty() && word.text.front() == '[') {
    const nlohmann::json list = nlohmann::json::parse(word.text, nullptr, false);
    if (list.is_discarded() || !list.is_array())
      throw MalformedLine("not a JSON list: " + word.text);
    return Variant(ArrayFromJson(list));
  }
  if (const auto n = ParseInteger(word.text);
      n && *n >= std::numeric_limits<int32_t>::min() && *n <= std::numeric_limits<int32_t>::max()) {
    return Variant(static_cast<int32_t>(*n));
  }
  return Variant(word.text);
}

std::string Quote(std::string_view text) {
  std::string out = "\"";
  for (const char c : text) {
    switch (c) {
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\t':
        out += "\\t";
        break;
      default:
        out += c;
    }
  }
  return out + "\"";
}

std::string FormatValue(const Variant& value) {
  if (const auto* n = std::get_if<int32_t>(&value.value)) return std::to_string(*n);
  if (const auto* s = std::get_if<std::string>(&value.value)) return Quote(*s);
  if (const auto* a = std::get_if<StringArray>(&value.value)) return ArrayToJson(*a).dump();
  return "Empty";
}

bool ValueMatches(const Variant& actual, const Word& expected, const std::string& root,
                  const std::string& install) {
  if (expected.quoted) {
    const auto* s = std::get_if<std::string>(&actual.value);
    return s != nullptr && *s == Expand(expected.text, root, install);
  }
  const auto want = ParseInteger(expected.text);
  if (!want) return FormatValue(actual) == expected.text;
  if (const auto* n = std::get_if<int32_t>(&actual.value)) return *n == *want;
  if (const auto* s = std::get_if<std::string>(&actual.value)) return ParseInteger(*s) == want;
  return false;
}

}  // namespace nvrandom::scenario
