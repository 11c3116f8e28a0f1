// The country file: deciphering whatever bytes are found in its place, and reading its text.
#include <cstdint>
#include <string>

#include "dialogs/biller/country_file_reader.h"
#include "fuzz_input.h"
#include "platform/country_file_cipher.h"

namespace {

void RequireRecordsWellFormed(std::string_view text) {
  using nvrandom::fuzz::Require;
  for (const nvrandom::CountryRecord& r : nvrandom::ReadCountryRecords(text)) {
    Require(!r.name.empty() && !r.code.empty(), "a record has a name and a code");
    for (const std::string* field : {&r.name, &r.code, &r.phone}) {
      Require(field->find('\n') == std::string::npos, "a field stays within its line");
      Require(field->empty() || (field->front() != ' ' && field->back() != ' '), "trimmed");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace nvrandom;
  const std::string_view input = fuzz::AsText(data, size);

  // The input as the file found on disk: an intact one (the seeds) is read, anything else
  // refused.
  if (const auto plain = country_file::Decipher(input)) RequireRecordsWellFormed(*plain);

  // The input as the text of a file: what is enciphered comes back whole, and one changed byte
  // (its place picked by the input) gets the file refused.
  RequireRecordsWellFormed(input);
  const auto sealed = country_file::Encipher(input);
  fuzz::Require(sealed.has_value(), "enciphering succeeds");
  fuzz::Require(country_file::Decipher(*sealed) == std::optional<std::string>(input), "round trip");
  std::string tampered = *sealed;
  const size_t at = size > 0 ? (data[0] * 131u + size) % tampered.size() : 0;
  tampered[at] = static_cast<char>(tampered[at] ^ (size > 1 ? (data[1] | 1) : 0x80));
  fuzz::Require(!country_file::Decipher(tampered).has_value(), "a changed byte is refused");
  fuzz::Require(
      !country_file::Decipher(std::string_view(*sealed).substr(0, sealed->size() - 1)).has_value(),
      "a truncated file is refused");
  return 0;
}
