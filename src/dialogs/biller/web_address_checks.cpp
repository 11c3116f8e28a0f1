#include "dialogs/biller/web_address_checks.h"

#include "component/context.h"
#include "component/trace.h"
#include "platform/ascii.h"
#include "validation/text.h"

namespace nvrandom {

namespace {

constexpr std::string_view kEmailPattern =
    "^[a-z0-9!#$%&'*+/=?^_`{|}~-]+(?:\\.[a-z0-9!#$%&'*+/=?^_`{|}~-]+)*@(?:[a-z0-9](?:[a-z0-9-]*"
    "[a-z0-9])?\\.)+[a-z0-9](?:[a-z0-9-]*[a-z0-9])?$";
constexpr std::string_view kWebsitePattern = "(www\\.)?.+\\.";

std::string WithExample(std::string_view lead, std::string_view example) {
  std::string text(lead);
  text += '\'';
  text += example;
  text += "'.";
  return text;
}

bool AllowedInAddress(char c) {
  return ascii::IsLetter(c) || ascii::IsDigit(c) || c == '_' || c == '-' || c == '.';
}

bool PartValid(std::string_view part) {
  if (part.empty()) return false;
  for (const char c : part) {
    if (!AllowedInAddress(c)) return false;
  }
  return part.front() != '.' && part.back() != '.';
}

}  // namespace

bool ValidateEmailAddress(Context& ctx, std::string_view address, std::string& message,
                          bool allow_empty) {
  TraceEntry(ctx, "RandomInfo - ValidateEmailAddress");
  const std::string_view trimmed = validation::TrimBlanks(address);
  if (validation::CharacterCount(trimmed) < 5) {
    if (trimmed.empty() && allow_empty) return true;
    message =
        WithExample("Please enter a complete e-mail address with the form ", kExampleEmailAddress);
    return false;
  }
  if (ctx.services.regex->Test(kEmailPattern, address, true)) return true;
  message = WithExample("Please enter a valid e-mail address with the form ", kExampleEmailAddress);
  return false;
}

bool ValidateWebsite(Context& ctx, std::string_view site, std::string& message) {
  TraceEntry(ctx, "RandomInfo - ValidateWebsite");
  if (ctx.services.regex->Test(kWebsitePattern, site, true)) return true;
  message = WithExample("Please enter a valid website with the form\r\n", kExampleWebSite);
  return false;
}

bool IsEmailValid(Context& ctx, std::string_view address) {
  TraceEntry(ctx, "RandomInfo - IsEmailValid");
  const size_t at = address.find('@');
  if (at == std::string_view::npos || address.find('@', at + 1) != std::string_view::npos) {
    return false;
  }
  const std::string_view local = address.substr(0, at);
  const std::string_view domain = address.substr(at + 1);
  if (!PartValid(local) || !PartValid(domain)) return false;
  const size_t last_dot = domain.rfind('.');
  if (last_dot == std::string_view::npos) return false;
  // Only ASCII passes PartValid, so bytes are characters here.
  const size_t top_level = domain.size() - last_dot - 1;
  if (top_level < 2 || top_level > 4) return false;
  return address.find("..") == std::string_view::npos;
}

}  // namespace nvrandom
