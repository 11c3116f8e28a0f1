#pragma once

// The biller dialog's own texts, in one place.
namespace nvrandom::random_info_text {

inline constexpr const char* kFormName = "frmRandomInfo";
// Object name of the dialog's trace labels.
inline constexpr const char* kLabelPrefix = "RandomInfo - ";

inline constexpr const char* kDesignedTitle = "Biller / Funds Transfer Information";
inline constexpr const char* kFrame1Designed =
    "Please enter the following information about this Customer Specific Biller/Funds Transfer";
inline constexpr const char* kImportFrameCaption = "Information about this Biller/Payee";
inline constexpr const char* kViewBankingInformation = "View Banking Information";
inline constexpr const char* kCloseCaption = "Close";

inline constexpr const char* kHelpFile = "NORVIK.CHM>ShowTopic";
inline constexpr unsigned kHelpTopicBiller = 506000012;

}  // namespace nvrandom::random_info_text
