#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace nvrandom {

class Context;

namespace forms {
class Control;
}

// Truth values as the component hands them out.
inline constexpr int16_t kTrue = -1;
inline constexpr int16_t kFalse = 0;

// The address OpenBrowser opens when given none: the maker's web site.
inline constexpr std::string_view kMakerWebSite = "https://www.example.com";

// Module Random: the helpers and checks both dialogs share, bound to the component's context
// (its store and platform services). Each procedure writes its trace label on entry. Checks
// that can fail unexpectedly trap the failure, report it through ShowError under
// "Random.<procedure>" and return the result they had at that point.
class Random {
 public:
  explicit Random(Context& ctx) : ctx_(ctx) {}

  // Text, file and shell utilities.
  std::string CleanseCharacters(std::string_view text);
  std::string PadLeft(std::string_view text, int16_t length);
  std::string PadRight(std::string_view text, int16_t length);
  int16_t IsAlpha(std::string_view text);
  // True when the length of the file can be asked: an existing file (not a folder). Relative
  // paths are taken from the current directory.
  int16_t Fileexists(std::string_view path);
  // Sets WindowsDir() and SystemDir() from the platform, each ending in a separator.
  void Get_Windows_Dir();
  const std::string& WindowsDir() const { return windows_dir_; }
  const std::string& SystemDir() const { return system_dir_; }
  // Completes a combo box's typed text with the first list entry that begins with it (ignoring
  // case) and selects the completed part.
  void ComboBoxAutoComplete(forms::Control& combo);
  // Opens the maker's web site, or `address`, in the user's browser; explains a failure.
  void OpenBrowser();
  void OpenBrowser(std::string_view address);

  // Address rules, against the store's province/postal string and post-office-box words.
  int16_t lookupProvince(std::string_view code);
  int16_t LookupPostcode(std::string_view code);
  // 1 when the street is a post-office box, else 0.
  int16_t Has_PO_Box_Address(std::string_view street);

  // Bank checks. Results are the verifier's codes: 1 valid, 0 refused, and for the account
  // checks 2 when the account must be confirmed by re-keying. The error message (and its
  // length) comes back for the caller to show. `flag` is passed on to the verifier; every caller
  // passes false. (The account verification's fourth argument, which it ignores, is left out.)
  int16_t VerifyAccount(std::string_view bank_id, std::string_view account,
                        std::string& error_message, bool flag = false);
  int16_t ValidateBankId(std::string_view bank_id, std::string& error_message,
                         int16_t& error_length, bool flag = false);
  int16_t ValidateBankAccount(std::string_view bank_id, std::string_view transit,
                              std::string_view account, std::string& error_message,
                              int16_t& error_length, bool flag = false);
  // A US routing number: prefix (in US mode), length and checksum.
  int16_t ValidateABANumber(std::string_view number);

  // A business number: local rules, then verified as an account of the business-number
  // registry.
  int16_t VerifyBusinessNumber(std::string_view number);

 private:
  Context& ctx_;
  std::string windows_dir_;
  std::string system_dir_;
};

}  // namespace nvrandom
