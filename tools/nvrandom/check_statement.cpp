#include "check_statement.h"

#include <array>
#include <cstdint>
#include <stdexcept>

#include "dialogs/biller/web_address_checks.h"
#include "scenario_line.h"
#include "validation/random.h"

namespace nvrandom::scenario {

namespace {

using Args = std::vector<std::string>;

int32_t Truth(bool value) {
  return value ? kTrue : kFalse;
}

int16_t IntegerArg(std::string_view function, const std::string& text) {
  const auto value = ParseInteger(text);
  if (!value || *value < INT16_MIN || *value > INT16_MAX) {
    throw std::invalid_argument(std::string(function) + ": \"" + text +
                                "\" is not an integer from -32768 to 32767");
  }
  return static_cast<int16_t>(*value);
}

bool FlagArg(std::string_view function, const std::string& text) {
  if (text == "true" || text == "True") return true;
  if (text == "false" || text == "False") return false;
  return IntegerArg(function, text) != 0;
}

CheckResult Value(Variant value) {
  return CheckResult{std::move(value), std::nullopt};
}
CheckResult WithMessage(Variant value, std::string message) {
  return CheckResult{std::move(value), std::move(message)};
}

struct CheckFunction {
  std::string_view name;
  size_t arity;
  CheckResult (*run)(Context& ctx, const Args& a);
};

// The functions a scenario may check, with their arguments as the statement gives them.
constexpr std::array kFunctions = {
    CheckFunction{
        "CleanseCharacters", 1,
        [](Context& ctx, const Args& a) { return Value(Random(ctx).CleanseCharacters(a[0])); }},
    CheckFunction{"PadLeft", 2,
                  [](Context& ctx, const Args& a) {
                    return Value(Random(ctx).PadLeft(a[0], IntegerArg("PadLeft", a[1])));
                  }},
    CheckFunction{"PadRight", 2,
                  [](Context& ctx, const Args& a) {
                    return Value(Random(ctx).PadRight(a[0], IntegerArg("PadRight", a[1])));
                  }},
    CheckFunction{
        "IsAlpha", 1,
        [](Context& ctx, const Args& a) { return Value(int32_t{Random(ctx).IsAlpha(a[0])}); }},
    CheckFunction{
        "Fileexists", 1,
        [](Context& ctx, const Args& a) { return Value(int32_t{Random(ctx).Fileexists(a[0])}); }},
    CheckFunction{"lookupProvince", 1,
                  [](Context& ctx, const Args& a) {
                    return Value(int32_t{Random(ctx).lookupProvince(a[0])});
                  }},
    CheckFunction{"LookupPostcode", 1,
                  [](Context& ctx, const Args& a) {
                    return Value(int32_t{Random(ctx).LookupPostcode(a[0])});
                  }},
    CheckFunction{"Has_PO_Box_Address", 1,
                  [](Context& ctx, const Args& a) {
                    return Value(int32_t{Random(ctx).Has_PO_Box_Address(a[0])});
                  }},
    CheckFunction{"VerifyAccount", 2,
                  [](Context& ctx, const Args& a) {
                    std::string message;
                    const int16_t result = Random(ctx).VerifyAccount(a[0], a[1], message);
                    return WithMessage(int32_t{result}, std::move(message));
                  }},
    CheckFunction{"ValidateBankId", 1,
                  [](Context& ctx, const Args& a) {
                    std::string message;
                    int16_t length = 0;
                    const int16_t result = Random(ctx).ValidateBankId(a[0], message, length);
                    return WithMessage(int32_t{result}, std::move(message));
                  }},
    CheckFunction{"ValidateBankAccount", 3,
                  [](Context& ctx, const Args& a) {
                    std::string message;
                    int16_t length = 0;
                    const int16_t result =
                        Random(ctx).ValidateBankAccount(a[0], a[1], a[2], message, length);
                    return WithMessage(int32_t{result}, std::move(message));
                  }},
    CheckFunction{"ValidateABANumber", 1,
                  [](Context& ctx, const Args& a) {
                    return Value(int32_t{Random(ctx).ValidateABANumber(a[0])});
                  }},
    CheckFunction{"VerifyBusinessNumber", 1,
                  [](Context& ctx, const Args& a) {
                    return Value(int32_t{Random(ctx).VerifyBusinessNumber(a[0])});
                  }},
    CheckFunction{"ValidateEmailAddress", 2,
                  [](Context& ctx, const Args& a) {
                    std::string message;
                    const bool accepted = ValidateEmailAddress(
                        ctx, a[0], message, FlagArg("ValidateEmailAddress", a[1]));
                    return WithMessage(Truth(accepted), std::move(message));
                  }},
    CheckFunction{"ValidateWebsite", 1,
                  [](Context& ctx, const Args& a) {
                    std::string message;
                    const bool accepted = ValidateWebsite(ctx, a[0], message);
                    return WithMessage(Truth(accepted), std::move(message));
                  }},
    CheckFunction{
        "IsEmailValid", 1,
        [](Context& ctx, const Args& a) { return Value(Truth(IsEmailValid(ctx, a[0]))); }},
};

}  // namespace

CheckResult RunCheck(Context& ctx, std::string_view function, const Args& args) {
  for (const CheckFunction& f : kFunctions) {
    if (f.name != function) continue;
    if (args.size() != f.arity) {
      throw std::invalid_argument("check " + std::string(function) + " takes " +
                                  std::to_string(f.arity) + " argument(s), " +
                                  std::to_string(args.size()) + " given");
    }
    return f.run(ctx, args);
  }
  std::string known;
  for (const CheckFunction& f : kFunctions) {
    if (!known.empty()) known += ", ";
    known += f.name;
  }
  throw std::invalid_argument("check: unknown function \"" + std::string(function) +
                              "\" (known: " + known + ")");
}

}  // namespace nvrandom::scenario
