#include "dialogs/biller/random_info_design.h"

#include <array>
#include <vector>

#include "dialogs/biller/random_info_texts.h"

namespace nvrandom {

namespace {

using forms::ControlDesign;
using K = forms::ControlKind;

constexpr int32_t kRow = 360;  // one line of fields
constexpr int32_t kFieldHeight = 315;
constexpr int32_t kLabelHeight = 255;

ControlDesign C(K kind, std::string_view name, std::string_view container, std::string_view caption,
                int32_t left, int32_t top, int32_t width, int32_t height, int max_length = 0,
                int tab_index = -1, bool visible = true) {
  ControlDesign d;
  d.kind = kind;
  d.name = name;
  d.container = container;
  d.caption = caption;
  d.left = left;
  d.top = top;
  d.width = width;
  d.height = height;
  d.max_length = max_length;
  d.tab_index = tab_index;
  d.visible = visible;
  return d;
}

ControlDesign Label(std::string_view name, std::string_view container, std::string_view caption,
                    int32_t left, int32_t top, int32_t width = 1600) {
  return C(K::kLabel, name, container, caption, left, top, width, kLabelHeight);
}

ControlDesign Text(std::string_view name, std::string_view container, int32_t left, int32_t top,
                   int32_t width, int max_length, int tab_index, bool visible = true) {
  return C(K::kTextBox, name, container, "", left, top, width, kFieldHeight, max_length, tab_index,
           visible);
}

ControlDesign Arrayed(ControlDesign d, int index) {
  d.index = index;
  return d;
}

// Where the required-field marks stand: 0-7 beside the business layout's required fields, 50-52
// beside the bank account of the individual layout; the others are designed hidden.
struct Mark {
  int index;
  std::string_view container;
  int32_t left;
  int32_t top;
  bool visible;
};

std::vector<ControlDesign> Build() {
  std::vector<ControlDesign> t;
  const auto field_top = [](int line) { return 570 + line * kRow; };
  const auto label_top = [&](int line) { return field_top(line) + 30; };

  t.push_back(C(K::kFrame, "Frame1", "", random_info_text::kFrame1Designed, 120, 120, 9960, 9000));
  t.push_back(Label("Label1", "Frame1", "Biller Name:", 240, 330));
  t.push_back(Label("ran_payee_name", "Frame1", "", 1920, 330, 7000));
  t.push_back(Label("Label2", "Frame1", "Account Number:", 240, 630));
  t.push_back(Label("ran_payee_account", "Frame1", "", 1920, 630, 7000));

  // The address and contact block.
  t.push_back(C(K::kFrame, "Frame3", "Frame1", "", 120, 960, 9700, 4700));
  t.push_back(
      Label("Label3", "Frame3",
            "Address to which remittances are to be sent (as shown on the Biller's invoice):", 120,
            240, 9400));
  t.push_back(Label("lblStreet", "Frame3", "Street:", 120, label_top(0)));
  t.push_back(Text("ran_payee_street", "Frame3", 1800, field_top(0), 4500, 35, 1));
  t.push_back(Label("lblCity", "Frame3", "City:", 120, label_top(1)));
  t.push_back(Text("ran_payee_city", "Frame3", 1800, field_top(1), 3000, 30, 2));
  t.push_back(Label("lblProvince", "Frame3", "Prov/State:", 4920, label_top(1), 1000));
  t.push_back(
      C(K::kComboBox, "ran_payee_prov", "Frame3", "", 6000, field_top(1), 900, kFieldHeight, 2, 3));
  t.push_back(Label("lblPostalCode", "Frame3", "Postal Code:", 7000, label_top(1), 1100));
  t.push_back(Text("ran_payee_postal", "Frame3", 8200, field_top(1), 1300, 10, 4));
  t.push_back(Label("lblCountry", "Frame3", "Country:", 120, label_top(2)));
  t.push_back(C(K::kDataList, "ran_payee_country", "Frame3", "", 1800, field_top(2), 3000,
                kFieldHeight, 0, 5));
  t.push_back(Label("lblCurrency", "Frame3", "Currency:", 4920, label_top(2), 1000));
  t.push_back(C(K::kDataList, "cmbCurrencyCode", "Frame3", "", 6000, field_top(2), 3500,
                kFieldHeight, 0, 6));
  t.push_back(Label("lblPhoneNo", "Frame3", "Phone:", 120, label_top(3)));
  t.push_back(Label("Label19", "Frame3", "+", 1650, label_top(3), 150));
  t.push_back(Text("txtPhoneCountryCode", "Frame3", 1800, field_top(3), 500, 4, 7));
  t.push_back(Text("ran_payee_ph_area", "Frame3", 2400, field_top(3), 600, 3, 8));
  t.push_back(Text("ran_payee_phone", "Frame3", 3100, field_top(3), 1200, 7, 9));
  t.push_back(Text("ran_Inter_payee_phone", "Frame3", 2400, field_top(3), 2000, 15, 10, false));
  t.push_back(Label("lblFax", "Frame3", "Fax:", 120, label_top(4)));
  t.push_back(Label("Label20", "Frame3", "+", 1650, label_top(4), 150));
  t.push_back(Text("txtFaxCountryCode", "Frame3", 1800, field_top(4), 500, 4, 11));
  t.push_back(Text("ran_payee_fax_area", "Frame3", 2400, field_top(4), 600, 3, 12));
  t.push_back(Text("ran_payee_faxnumber", "Frame3", 3100, field_top(4), 1200, 7, 13));
  t.push_back(Text("ran_inter_payee_faxnumber", "Frame3", 2400, field_top(4), 2000, 15, 14, false));
  t.push_back(Label("lblEmail", "Frame3", "Email:", 120, label_top(5)));
  t.push_back(Text("ran_payee_email", "Frame3", 1800, field_top(5), 4500, 60, 15));
  t.push_back(Label("lblWebsite", "Frame3", "Website:", 120, label_top(6)));
  t.push_back(Text("ran_payee_www", "Frame3", 1800, field_top(6), 4500, 60, 16));
  t.push_back(Label("lblContact", "Frame3", "Contact Person / Dept:", 120, label_top(7)));
  t.push_back(Text("ran_payee_contact", "Frame3", 1800, field_top(7), 4500, 35, 17));
  t.push_back(C(K::kCheckBox, "chkDiscountsApply", "Frame3", "Discounts Apply to this Biller", 6500,
                field_top(7), 3000, kFieldHeight, 0, 18));

  // Kind of biller and business number, at the foot of the address block.
  t.push_back(C(K::kFrame, "fraBusinessNum", "Frame3", "", 120, 3500, 9400, 1100));
  t.push_back(C(K::kOptionButton, "optCIndividual", "fraBusinessNum", "&Individual", 120, 240, 1500,
                kFieldHeight, 0, 19));
  t.push_back(C(K::kOptionButton, "optCBusiness", "fraBusinessNum", "&Business", 1800, 240, 1500,
                kFieldHeight, 0, 20));
  t.push_back(Label("lblBN", "fraBusinessNum", "Business Number GST/HST (BN):", 120, 670, 2800));
  t.push_back(Text("txtBusinessNum", "fraBusinessNum", 3000, 640, 2200, 15, 21));
  t.push_back(C(K::kCheckBox, "chkBNNotAvailable", "fraBusinessNum", "Not Available", 5400, 640,
                1800, kFieldHeight, 0, 22));

  // Canadian bank account for funds transfer.
  t.push_back(C(K::kFrame, "fraBankAcctInfo", "Frame1",
                "Bank Account Number to be Credited (Optional)", 120, 5760, 9700, 1560));
  t.push_back(Label("lblConfirm", "fraBankAcctInfo", "Confirm", 6000, 240, 1000));
  t.push_back(
      Label("lblbankTransit", "fraBankAcctInfo", "Transit Number (5 digits):", 120, 590, 2600));
  t.push_back(Text("txtTransit", "fraBankAcctInfo", 2800, 560, 900, 5, 23));
  t.push_back(Label("lblTransitConf", "fraBankAcctInfo", "Transit Number:", 4500, 590, 1400));
  t.push_back(Text("txtTransitConf", "fraBankAcctInfo", 6000, 560, 900, 5, 24));
  t.push_back(Label("lblbankId", "fraBankAcctInfo", "Bank Id (3 digits):", 120, 950, 2600));
  t.push_back(Text("txtBankID", "fraBankAcctInfo", 2800, 920, 900, 3, 25));
  t.push_back(Label("lblBankIdConf", "fraBankAcctInfo", "Bank Id:", 4500, 950, 1400));
  t.push_back(Text("txtBankIDConf", "fraBankAcctInfo", 6000, 920, 900, 3, 26));
  t.push_back(
      Label("Label13", "fraBankAcctInfo", "Account Number( max. 12 digits):", 120, 1310, 2600));
  t.push_back(Text("txtAccount", "fraBankAcctInfo", 2800, 1280, 1600, 12, 27));
  t.push_back(Label("lblAccountConf", "fraBankAcctInfo", "Account Number:", 4500, 1310, 1400));
  t.push_back(Text("txtAccountConf", "fraBankAcctInfo", 6000, 1280, 1600, 12, 28));
  // Payment kind buttons of the bank block; not part of the current layouts.
  t.push_back(C(K::kOptionButton, "optBusiness", "fraBankAcctInfo", "Business", 7800, 560, 1500,
                kFieldHeight, 0, 29, false));
  t.push_back(C(K::kOptionButton, "optEmployee", "fraBankAcctInfo", "Employee", 7800, 920, 1500,
                kFieldHeight, 0, 30, false));

  // US bank details (US mode), in the same place as the Canadian block.
  t.push_back(C(K::kFrame, "fraBankInfo", "Frame1", "Bank Account Information:", 120, 5760, 9700,
                2700, 0, -1, false));
  t.push_back(Label("lblBankName", "fraBankInfo", "Bank Name:", 120, 330, 3600));
  t.push_back(Text("txtBankName", "fraBankInfo", 3800, 300, 4500, 35, 31));
  t.push_back(Label("lblRoutingNumber", "fraBankInfo",
                    "Routing Number (ACH Routing Number 9 Digits):", 120, 690, 3600));
  t.push_back(Text("txtRoutingNumber", "fraBankInfo", 3800, 660, 1500, 9, 32));
  t.push_back(Label("lblBankAccountNumber", "fraBankInfo", "Account Number( max. 17 digits):", 120,
                    1050, 3600));
  t.push_back(Text("txtBankAccountNumber", "fraBankInfo", 3800, 1020, 2600, 17, 33));
  t.push_back(Label("lblBankInfoConfirm", "fraBankInfo", "Confirm:", 120, 1410, 3600));
  t.push_back(Text("txtConfirmBankAccountNumber", "fraBankInfo", 3800, 1380, 2600, 17, 34));
  t.push_back(Label("lblDisclaimer", "fraBankInfo", "Disclaimer:", 120, 1800, 1200));
  t.push_back(C(K::kLabel, "lblDisclaimerDetails", "fraBankInfo", "", 1400, 1800, 8100, 600));
  t.push_back(C(K::kHyperLink, "ctHyperLink1", "fraBankInfo", "", 1400, 2400, 5000, kLabelHeight));

  // International payments.
  t.push_back(C(K::kLabel, "lblFXBankingInfo", "Frame1",
                "Payments in currencies other than CAD (Canadian Dollars) must include specific "
                "information about the bank account being transferred to. Click \"Enter Banking "
                "Information\" below to enter it.",
                120, 7400, 7000, 600));
  t.push_back(C(K::kCommandButton, "cmdFXBankingInfo", "Frame1", "&Enter Banking Information", 7300,
                7450, 2400, 400, 0, 35));
  t.push_back(C(K::kLabel, "lbl_note", "Frame1",
                "Note: The first payment to a business may be made by cheque if a bank account has "
                "not been provided.",
                120, 8100, 9500, 255));
  t.push_back(Label("Label14", "Frame1",
                    "The above information must be entered accurately to ensure timely payment",
                    120, 8400, 9500));
  t.push_back(Label("lblNotification", "Frame1",
                    "*Required if recipient is to receive email notification.", 120, 8700, 9500));
  t.push_back(Label("lblbkclk", "Frame1", "", 120, 8700, 100));
  t.push_back(Label("lblbankaccount", "Frame1", "", 240, 8700, 100));

  static constexpr std::array<int32_t, 6> kHelpTops = {330, 1560, 3300, 4500, 5900, 7450};
  for (int i = 0; i < static_cast<int>(kHelpTops.size()); ++i) {
    t.push_back(Arrayed(C(K::kImage, "imgHelpCSFTInfo", "Frame1", "", 9600,
                          kHelpTops[static_cast<size_t>(i)], 240, 240),
                        i));
  }

  static constexpr std::array<Mark, 11> kPlacedMarks = {{
      {0, "Frame3", 1620, 600, true},              // street
      {1, "Frame3", 1620, 960, true},              // city
      {2, "Frame3", 1620, 2400, true},             // e-mail
      {3, "Frame3", 5850, 960, true},              // province
      {4, "Frame3", 8050, 960, true},              // postal code
      {5, "Frame3", 1620, 1320, true},             // country
      {6, "Frame3", 5850, 1320, true},             // currency
      {7, "Frame3", 1500, 1680, true},             // phone
      {50, "fraBankAcctInfo", 2650, 590, false},   // transit
      {51, "fraBankAcctInfo", 2650, 950, false},   // bank id
      {52, "fraBankAcctInfo", 2650, 1310, false},  // account
  }};
  for (int i = 0; i <= 52; ++i) {
    Mark mark{i, "Frame1", 9400, 330, false};
    for (const Mark& placed : kPlacedMarks) {
      if (placed.index == i) mark = placed;
    }
    t.push_back(Arrayed(C(K::kLabel, "lblAsterisk", mark.container, "*", mark.left, mark.top, 120,
                          kLabelHeight, 0, -1, mark.visible),
                        i));
  }

  t.push_back(Label("Label15", "", "Items with * are required fields.", 240, 9200, 4000));
  t.push_back(
      C(K::kCommandButton, "cmdCheque", "", "&View Sample Cheque", 240, 9600, 2400, 400, 0, 36));
  t.push_back(C(K::kCommandButton, "cmd_help", "", "&Help", 4900, 9600, 1500, 400, 0, 39));
  t.push_back(C(K::kCommandButton, "cmd_ok", "", "OK", 6700, 9600, 1500, 400, 0, 37));
  t.push_back(C(K::kCommandButton, "cmd_cancel", "", "Cancel", 8400, 9600, 1500, 400, 0, 38));
  return t;
}

}  // namespace

const forms::FormDesign& RandomInfoForm() {
  static const forms::FormDesign kDesign{random_info_text::kFormName,
                                         random_info_text::kDesignedTitle, 10320, 10500, true};
  return kDesign;
}

std::span<const ControlDesign> RandomInfoControls() {
  static const std::vector<ControlDesign> kControls = Build();
  return kControls;
}

}  // namespace nvrandom
