// Text utilities (cleansing, padding, the letter test), the address rules (province and postal
// lookups, the post-office-box test) and the biller dialog's e-mail and web-site checks.
#include <cstdint>
#include <string>

#include "dialogs/biller/web_address_checks.h"
#include "fuzz_input.h"
#include "validation/random.h"
#include "validation/text.h"

namespace {

// The post-office-box rule done the long way, over the whole street: a reference for the
// bounded scan.
bool PoBoxTheLongWay(std::string_view street, const std::vector<std::string>& words) {
  std::string upper;
  for (const char c : nvrandom::validation::TrimBlanks(street)) {
    upper += (c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c;
  }
  std::string collapsed;
  for (size_t i = 0; i < upper.size(); ++i) {
    if (!(upper[i] == ' ' && i > 0 && upper[i - 1] == ' ')) collapsed += upper[i];
  }
  const std::string address(nvrandom::validation::TrimBlanks(collapsed));
  if (address.empty()) return false;
  for (const std::string& word : words) {
    const std::string search = std::string(nvrandom::validation::TrimBlanks(word)) + " ";
    if (address.find(search) == 0) return true;
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace nvrandom;
  auto& fuzz = fuzz::SharedContext();
  Context& ctx = *fuzz.ctx;
  // The whole input as one text.
  const std::string_view text = fuzz::AsText(data, size);
  const std::string cleansed = validation::CleanseCharacters(text);
  fuzz::Require(cleansed.size() <= text.size(), "cleansing never adds");
  for (const char c : cleansed) {
    const auto code = static_cast<unsigned char>(c);
    fuzz::Require(code == 32 || code == 33 || (code >= 35 && code <= 125), "kept code");
  }
  fuzz::Require(validation::CleanseCharacters(cleansed) == cleansed, "cleansing is idempotent");

  // The first byte picks a length, negative ones included.
  const int length = size > 0 ? static_cast<int8_t>(data[0]) : 0;
  const std::string left = validation::PadLeft(text, length);
  const std::string right = validation::PadRight(text, length);
  const size_t want = length > 0 ? static_cast<size_t>(length) : 0;
  fuzz::Require(validation::CharacterCount(left) == want, "PadLeft length");
  fuzz::Require(validation::CharacterCount(right) == want, "PadRight length");

  const bool alpha = validation::IsAlpha(text);
  fuzz::Require(alpha == validation::IsAlpha(cleansed), "letters survive cleansing");
  const std::string_view trimmed = validation::TrimBlanks(text);
  fuzz::Require(trimmed.empty() || (trimmed.front() != ' ' && trimmed.back() != ' '), "trim");

  // The address rules take two fields: the provinces' postal string and the text looked up.
  const auto fields = fuzz::Fields(text, 2);
  ctx.store.Provpostalstr = std::string(fields[0]);
  Random random(ctx);
  // Any province string and code are looked up without a fault; the answers are truth values
  // by construction.
  random.lookupProvince(fields[1]);
  random.LookupPostcode(fields[1]);

  const int16_t box = random.Has_PO_Box_Address(fields[1]);
  fuzz::Require(box == (PoBoxTheLongWay(fields[1], ctx.store.poBoxWords) ? 1 : 0),
                "post-office-box rule agrees with the long way");
  fuzz::Require(fuzz.boxes->shown.empty(), "no error reported");

  // The e-mail and web-site checks explain each refusal, and only a refusal.

  for (const bool allow_empty : {false, true}) {
    std::string message;
    const bool accepted = ValidateEmailAddress(ctx, text, message, allow_empty);
    fuzz::Require(accepted == message.empty(), "message only on refusal");
  }
  std::string message;
  const bool site = ValidateWebsite(ctx, text, message);
  fuzz::Require(site == message.empty(), "website message only on refusal");
  if (IsEmailValid(ctx, text)) {
    fuzz::Require(text.find("..") == std::string_view::npos, "no doubled dot");
    fuzz::Require(text.find('@') != std::string_view::npos, "one @");
  }
  return 0;
}
