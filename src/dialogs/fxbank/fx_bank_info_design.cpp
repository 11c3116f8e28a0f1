#include "dialogs/fxbank/fx_bank_info_design.h"

#include <array>

#include "dialogs/fxbank/fx_bank_info_texts.h"

namespace nvrandom {

namespace {

using forms::ControlDesign;
using K = forms::ControlKind;

// The grid, in twips. Captions are sized for "MS Sans Serif" 8pt at about 90 twips a character.
constexpr int32_t kFieldHeight = 315;
constexpr int32_t kLabelHeight = 255;
constexpr int32_t kButtonHeight = 375;
constexpr int32_t kFrameLeft = 120;
constexpr int32_t kFrameWidth = 9240;
constexpr int32_t kGap = 120;  // between the frames, and between the last frame and the buttons

// Maximum lengths. Bank names and streets as the biller's own street; a SWIFT (BIC) code has 8
// or 11 characters; an IBAN at most 34, and so does any other account kept in its place. A US
// account has at most 17 digits, so that routing number and account together (as the record
// keeps them) fit the same 34.
constexpr int kNameLength = 35;
constexpr int kStreetLength = 35;
constexpr int kCityLength = 30;
constexpr int kProvinceLength = 20;
constexpr int kSwiftLength = 11;
constexpr int kAccountLength = 34;
constexpr int kAbaLength = 9;
constexpr int kUSAccountLength = 17;

// The address frame: one line per field, labels in a column on the left.
constexpr int32_t kAddressTop = 120;
constexpr int32_t kAddressLabelLeft = 120;
constexpr int32_t kAddressLabelWidth = 1500;
constexpr int32_t kAddressFieldLeft = 1740;
constexpr int32_t AddressFieldTop(int line) {
  return 300 + line * 390;
}
constexpr int32_t kAddressHeight = AddressFieldTop(4) + kFieldHeight + 180;

// The account frames: a label column, the entries, and the confirmations beside them under
// their "Confirm:" heading.
constexpr int32_t kAccountHeadingTop = 270;
constexpr int32_t kAccountLabelLeft = 120;
constexpr int32_t kAccountLabelWidth = 2100;
constexpr int32_t kEntryLeft = 2280;
constexpr int32_t kConfirmLeft = 5700;
constexpr int32_t AccountFieldTop(int line) {
  return 540 + line * 390;
}
constexpr int32_t kAccountFrameHeight = AccountFieldTop(1) + kFieldHeight + 180;
constexpr int32_t kIntlTop = kAddressTop + kAddressHeight + kGap;
constexpr int32_t kUSTop = kIntlTop + kAccountFrameHeight + kGap;
constexpr int32_t kButtonsTop = kUSTop + kAccountFrameHeight + kGap;
constexpr int32_t kButtonWidth = 1200;
constexpr int32_t kFormWidth = kFrameLeft + kFrameWidth + 240;
// The buttons' foot and a margin for the window's frame and title bar.
constexpr int32_t kFormHeight = kButtonsTop + kButtonHeight + 500;

constexpr std::array<std::string_view, 3> kCountryColumns = {"Country", "Code", "Phone"};

constexpr ControlDesign AddressLabel(std::string_view name, std::string_view caption, int line) {
  return {.kind = K::kLabel,
          .name = name,
          .container = "FraBankName",
          .caption = caption,
          .left = kAddressLabelLeft,
          .top = AddressFieldTop(line) + 30,
          .width = kAddressLabelWidth,
          .height = kLabelHeight};
}

constexpr ControlDesign AddressField(K kind, std::string_view name, int line, int32_t width,
                                     int max_length, int tab_index) {
  return {.kind = kind,
          .name = name,
          .container = "FraBankName",
          .left = kAddressFieldLeft,
          .top = AddressFieldTop(line),
          .width = width,
          .height = kFieldHeight,
          .max_length = max_length,
          .tab_index = tab_index};
}

constexpr ControlDesign AccountLabel(std::string_view frame, std::string_view name,
                                     std::string_view caption, int line) {
  return {.kind = K::kLabel,
          .name = name,
          .container = frame,
          .caption = caption,
          .left = kAccountLabelLeft,
          .top = AccountFieldTop(line) + 30,
          .width = kAccountLabelWidth,
          .height = kLabelHeight};
}

// An entry box of an account frame; its confirmation box, in the column beside it, is hidden
// and disabled until a confirmation step opens.
constexpr ControlDesign AccountBox(std::string_view frame, std::string_view name, int line,
                                   int32_t width, int max_length, int tab_index,
                                   bool confirmation) {
  return {.kind = K::kTextBox,
          .name = name,
          .container = frame,
          .left = confirmation ? kConfirmLeft : kEntryLeft,
          .top = AccountFieldTop(line),
          .width = width,
          .height = kFieldHeight,
          .max_length = max_length,
          .tab_index = tab_index,
          .visible = !confirmation,
          .enabled = !confirmation};
}

constexpr ControlDesign ConfirmHeading(std::string_view frame, std::string_view name) {
  return {.kind = K::kLabel,
          .name = name,
          .container = frame,
          .caption = "Confirm:",
          .left = kConfirmLeft,
          .top = kAccountHeadingTop,
          .width = 1200,
          .height = kLabelHeight,
          .visible = false};
}

constexpr std::array kControls = std::to_array<ControlDesign>({
    // The bank's name and address.
    {.kind = K::kFrame,
     .name = "FraBankName",
     .left = kFrameLeft,
     .top = kAddressTop,
     .width = kFrameWidth,
     .height = kAddressHeight},
    AddressLabel("Label1", "Bank Name:", 0),
    AddressField(K::kTextBox, "txtBankName", 0, 4800, kNameLength, 0),
    AddressLabel("Label4", "Bank Street:", 1),
    AddressField(K::kTextBox, "txtBankStreet", 1, 4800, kStreetLength, 1),
    AddressLabel("Label6", "Bank City:", 2),
    AddressField(K::kTextBox, "txtBankCity", 2, 4200, kCityLength, 2),
    AddressLabel("Label8", "Prov/State:", 3),
    AddressField(K::kComboBox, "cmbBankProv", 3, 2400, kProvinceLength, 3),
    AddressLabel("Label9", "Country:", 4),
    {.kind = K::kDataList,
     .name = "cmbBankCountry",
     .container = "FraBankName",
     .left = kAddressFieldLeft,
     .top = AddressFieldTop(4),
     .width = 2800,
     .height = kFieldHeight,
     .tab_index = 4,
     .column_headings = kCountryColumns},

    // Any country but the United States: SWIFT code and account (or IBAN).
    {.kind = K::kFrame,
     .name = "fraIntlBanks",
     .caption = "For International Banks:",
     .left = kFrameLeft,
     .top = kIntlTop,
     .width = kFrameWidth,
     .height = kAccountFrameHeight},
    ConfirmHeading("fraIntlBanks", "lblConfirmInt"),
    AccountLabel("fraIntlBanks", "lblSwiftNumber", "SWIFT Code:", 0),
    AccountBox("fraIntlBanks", "txtSwiftNumber", 0, 1800, kSwiftLength, 5, false),
    AccountBox("fraIntlBanks", "txtSwiftNumberConf", 0, 1800, kSwiftLength, 7, true),
    AccountLabel("fraIntlBanks", "lblBankAccount", "IBAN# or Bank Account:", 1),
    AccountBox("fraIntlBanks", "txtBankAccount", 1, 3300, kAccountLength, 6, false),
    AccountBox("fraIntlBanks", "txtBankAccountConf", 1, 3300, kAccountLength, 8, true),

    // The United States: ABA routing number and account.
    {.kind = K::kFrame,
     .name = "fraUSBanks",
     .caption = "For US Banks:",
     .left = kFrameLeft,
     .top = kUSTop,
     .width = kFrameWidth,
     .height = kAccountFrameHeight},
    ConfirmHeading("fraUSBanks", "lblConfirmUS"),
    AccountLabel("fraUSBanks", "lblUSABA", "ABA Routing:", 0),
    AccountBox("fraUSBanks", "txtUSABA", 0, 1500, kAbaLength, 9, false),
    AccountBox("fraUSBanks", "txtUSABAConf", 0, 1500, kAbaLength, 11, true),
    AccountLabel("fraUSBanks", "lblUSBankAccount", "Account:", 1),
    AccountBox("fraUSBanks", "txtUSBankAccount", 1, 2400, kUSAccountLength, 10, false),
    AccountBox("fraUSBanks", "txtUSBankAccountConf", 1, 2400, kUSAccountLength, 12, true),

    {.kind = K::kStyledButton,
     .name = "cmd_ok",
     .caption = "&OK",
     .left = kFrameLeft + kFrameWidth - 2 * kButtonWidth - kGap,
     .top = kButtonsTop,
     .width = kButtonWidth,
     .height = kButtonHeight,
     .tab_index = 13,
     .font_name = fx_bank_info_text::kButtonFont},
    {.kind = K::kStyledButton,
     .name = "cmd_cancel",
     .caption = "Cancel",
     .left = kFrameLeft + kFrameWidth - kButtonWidth,
     .top = kButtonsTop,
     .width = kButtonWidth,
     .height = kButtonHeight,
     .tab_index = 14,
     .font_name = fx_bank_info_text::kButtonFont},
});

}  // namespace

const forms::FormDesign& FXBankInfoForm() {
  static const forms::FormDesign kDesign{fx_bank_info_text::kFormName, fx_bank_info_text::kCaption,
                                         kFormWidth, kFormHeight, false};
  return kDesign;
}

std::span<const ControlDesign> FXBankInfoControls() {
  return kControls;
}

}  // namespace nvrandom
