#pragma once

// The biller dialog's own texts, in one place.
namespace nvrandom::random_info_text {

inline constexpr const char* kFormName = "frmRandomInfo";
// Object name of the dialog's trace labels.
inline constexpr const char* kLabelPrefix = "RandomInfo - ";

inline constexpr const char* kDesignedTitle = "Biller / Funds Transfer Information";
inline constexpr const char* kDomesticTitle = "Norvik - Biller / Funds Transfer Information";
inline constexpr const char* kFrame1Designed =
    "Please enter the following information about this Customer Specific Biller/Funds Transfer";
inline constexpr const char* kFrame1 =
    "Please enter the following information about this Biller/Fund Transfer";
inline constexpr const char* kImportFrameCaption = "Information about this Biller/Payee";
inline constexpr const char* kViewBankingInformation = "View Banking Information";
inline constexpr const char* kCloseCaption = "Close";
// The tag of controls that restyling leaves as designed.
inline constexpr const char* kNoStyle = "noStyle";

// Captions that change with the home currency and the biller kind.
inline constexpr const char* kZipCode = "Zip Code:";
inline constexpr const char* kState = "State:";
inline constexpr const char* kPostalCode = "Postal Code:";
inline constexpr const char* kProvState = "Prov/State:";
inline constexpr const char* kBankAccountOptional = "Bank Account Number to be Credited (Optional)";
inline constexpr const char* kBankAccountRequired = "Bank Account Number to be Credited";
inline constexpr const char* kRecipientEmail = "Recipient Email Address";

// US bank details.
inline constexpr const char* kDisclaimerDetails =
    "Please ensure that your supplier's banking information is entered correctly into the fields "
    "above.\r\nEnsure that the Routing Number is NOT a wire transfer routing number.\r\nRefer to "
    "the following site for more detailed information:";
inline constexpr const char* kUSPaymentsLink = "Click here for more information about US Payments";

// The pick lists.
inline constexpr const char* kCountryFileName = "FXCountries";
inline constexpr const char* kCountryFileMissing =
    "The list of countries cannot be loaded, the country file is missing.";
inline constexpr const char* kSeparatorCode = "---";
inline constexpr const char* kSeparatorDescription = "--------------------";

// The international payment decision.
inline constexpr const char* kCancelButtonName = "cmd_cancel";
inline constexpr const char* kIndividualNotInternational =
    "You cannot setup an individual as an international payment.";
inline constexpr const char* kIsInternational = "Is this biller for an international payment?";
inline constexpr const char* kNoInternationalSettings =
    "International payment settings have not been setup. To set these, you can go to the System "
    "Administration screen and click 'International Payment Settings'.";

inline constexpr const char* kHelpFile = "NORVIK.CHM>ShowTopic";
inline constexpr unsigned kHelpTopicBiller = 506000012;

}  // namespace nvrandom::random_info_text
