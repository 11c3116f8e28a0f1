#pragma once

// The foreign bank dialog's own texts, in one place.
namespace nvrandom::fx_bank_info_text {

inline constexpr const char* kFormName = "frmFXBankInfo";
inline constexpr const char* kCaption = "International Payment Banking Information";
// Object names of the dialog's trace and error labels. The paste guards of the account, SWIFT
// and ABA boxes report under the biller dialog's object name: their labels are kept as they are.
inline constexpr const char* kLabelPrefix = "frmFXBankInfo - ";
inline constexpr const char* kGuardLabelPrefix = "RandomInfo - ";

inline constexpr const char* kCancelButtonName = "cmd_cancel";
inline constexpr const char* kCloseCaption = "Close";
inline constexpr const char* kPasswordChar = "*";
inline constexpr const char* kUnitedStates = "US";
// The bank's country codes under which the province box completes from its list.
inline constexpr const char* kCanadaCodes[] = {"CAN", "CA"};
// The font of the OK and Cancel buttons.
inline constexpr const char* kButtonFont = "Tahoma";

// Acceptance.
inline constexpr const char* kNeedBankName = "You must enter bank name.";
inline constexpr const char* kNeedBankStreet = "You must enter bank street.";
inline constexpr const char* kNeedBankCity = "You must enter bank city.";
inline constexpr const char* kNeedBankProvince = "You must enter bank province/state.";
inline constexpr const char* kNeedBankCountry = "You must enter bank country.";
inline constexpr const char* kPostOfficeBox =
    "Post Office Box address cannot be used.  Please enter physical street address.";
inline constexpr const char* kNeedSwift = "You must enter Swift code.";
inline constexpr const char* kSwiftLength = "Swift numbers must be either 8 or 11 characters long.";
inline constexpr const char* kNeedBankAccount = "You must enter a bank account number.";
inline constexpr const char* kNeedAbaAndAccount =
    "You must enter both an ABA Routing # and an Account #.";
inline constexpr const char* kNeedAbaAndAccountCaption = "Bank Account Number Validation";
inline constexpr const char* kInvalidAba =
    "The ABA Routing # that you have entered is not valid. Please make sure you enter a valid 9 "
    "digit ABA Routing #.";
inline constexpr const char* kInvalidAbaCaption = "Invalid ABA #";

}  // namespace nvrandom::fx_bank_info_text
