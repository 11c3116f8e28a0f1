// frmRandomInfo: the key filters, which refuse and shape the characters typed into each field.
#include <array>
#include <string>
#include <string_view>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_codes.h"
#include "forms/application.h"
#include "forms/control.h"
#include "forms/keystroke.h"
#include "platform/ascii.h"

namespace nvrandom {

namespace {

using forms::keys::kBackspace;
using forms::keys::kEnter;
constexpr int16_t kPasteKey = forms::keys::kPaste;
constexpr int16_t kDoubleQuote = 34;

// The characters a field takes; anything else is discarded.
enum class Accepts {
  kAnyButQuote,      // upper-cased
  kAnyButQuoteAsIs,  // e-mail and web: no upper-casing
  kContactName,      // lower-case letters upper-cased
  kDigits,
  kLetters,            // upper-cased
  kLettersAndDigits,   // upper-cased
  kBankAccountNumber,  // no blank, upper-cased
};

struct KeyFilter {
  const char* control;
  const char* procedure;
  Accepts accepts;
  // Enter moves to the first of these that is available.
  std::array<const char*, 3> next;
};

constexpr std::array kKeyFilters = {
    KeyFilter{
        "ran_payee_street", "ran_payee_street_KeyPress", Accepts::kAnyButQuote, {"ran_payee_city"}},
    KeyFilter{
        "ran_payee_city", "ran_payee_city_KeyPress", Accepts::kAnyButQuote, {"ran_payee_prov"}},
    KeyFilter{
        "ran_payee_ph_area", "ran_payee_ph_area_KeyPress", Accepts::kDigits, {"ran_payee_phone"}},
    KeyFilter{
        "ran_payee_phone", "ran_payee_phone_KeyPress", Accepts::kDigits, {"ran_payee_fax_area"}},
    KeyFilter{"ran_payee_fax_area",
              "ran_payee_fax_area_KeyPress",
              Accepts::kDigits,
              {"ran_payee_faxnumber"}},
    KeyFilter{"ran_payee_faxnumber",
              "ran_payee_faxnumber_KeyPress",
              Accepts::kDigits,
              {"ran_payee_email"}},
    KeyFilter{"txtPhoneCountryCode",
              "txtPhoneCountryCode_KeyPress",
              Accepts::kDigits,
              {"ran_Inter_payee_phone", "ran_payee_ph_area"}},
    KeyFilter{"ran_Inter_payee_phone",
              "ran_Inter_payee_phone_KeyPress",
              Accepts::kDigits,
              {"ran_inter_payee_faxnumber"}},
    KeyFilter{"txtFaxCountryCode",
              "txtFaxCountryCode_KeyPress",
              Accepts::kDigits,
              {"ran_inter_payee_faxnumber", "ran_payee_fax_area"}},
    KeyFilter{"ran_inter_payee_faxnumber",
              "ran_inter_payee_faxnumber_KeyPress",
              Accepts::kDigits,
              {"ran_payee_email"}},
    KeyFilter{"ran_payee_www",
              "ran_payee_www_KeyPress",
              Accepts::kAnyButQuoteAsIs,
              {"ran_payee_contact", "chkDiscountsApply"}},
    KeyFilter{"ran_payee_contact",
              "ran_payee_contact_KeyPress",
              Accepts::kContactName,
              {"txtBusinessNum", "txtTransit", "txtBankName"}},
    KeyFilter{
        "txtBusinessNum", "txtBusinessNum_KeyPress", Accepts::kLettersAndDigits, {"txtTransit"}},
    KeyFilter{"txtTransit", "txttransit_KeyPress", Accepts::kDigits, {"txtBankID"}},
    KeyFilter{"txtBankID", "txtbankid_KeyPress", Accepts::kDigits, {"txtAccount"}},
    KeyFilter{"txtAccount", "txtaccount_KeyPress", Accepts::kDigits, {"cmd_ok"}},
    // The transit confirmation shares the account confirmation's trace label on purpose.
    KeyFilter{"txtTransitConf", "txtAccountConf_KeyPress", Accepts::kDigits, {"txtBankIDConf"}},
    KeyFilter{"txtBankIDConf", "txtBankIDConf_KeyPress", Accepts::kDigits, {"txtAccountConf"}},
    KeyFilter{"txtAccountConf", "txtAccountConf_KeyPress", Accepts::kDigits, {"cmd_ok"}},
    KeyFilter{"txtBankAccountNumber",
              "txtBankAccountNumber_KeyPress",
              Accepts::kBankAccountNumber,
              {"cmd_ok"}},
};

// The key's character when it is one of the first 128; 0 for any other key.
char AsciiOf(int16_t key) {
  return key > 0 && key < 128 ? static_cast<char>(key) : '\0';
}

int16_t Upper(int16_t key) {
  const char c = AsciiOf(key);
  return c != '\0' ? static_cast<int16_t>(ascii::ToUpper(c)) : key;
}

// Applies a field's character set to a key other than Enter and Backspace; 0 discards it.
int16_t Filter(Accepts accepts, int16_t key) {
  const char c = AsciiOf(key);
  switch (accepts) {
    case Accepts::kAnyButQuote:
      return key == kDoubleQuote ? 0 : Upper(key);
    case Accepts::kAnyButQuoteAsIs:
      return key == kDoubleQuote ? 0 : key;
    case Accepts::kContactName:
      if (key == kDoubleQuote) return 0;
      return ascii::IsLower(c) ? Upper(key) : key;
    case Accepts::kDigits:
      return ascii::IsDigit(c) ? key : 0;
    case Accepts::kLetters:
      return ascii::IsLetter(c) ? Upper(key) : 0;
    case Accepts::kLettersAndDigits:
      return ascii::IsLetter(c) || ascii::IsDigit(c) ? Upper(key) : 0;
    case Accepts::kBankAccountNumber:
      // Bank numbers are typed, never pasted.
      return key == ' ' || key == kDoubleQuote || key == kPasteKey ? 0 : Upper(key);
  }
  return 0;
}

// The postal code's position rule: a Canadian code alternates letter and digit (A9A9A9), a US
// ZIP code is digits only; other countries take any character but the double quote. The
// position is where the character goes, so a corrected character in the middle is held to its
// own place.
int16_t FilterPostalCode(std::string_view country, int position, int16_t key) {
  const int16_t upper = Upper(key);
  const char c = AsciiOf(upper);
  if (country == "CA" || country == "CAN") {
    if (position >= 6) return 0;
    const bool letter_place = position % 2 == 0;
    return (letter_place ? ascii::IsUpper(c) : ascii::IsDigit(c)) ? upper : 0;
  }
  if (country == "US" || country == "USA") return ascii::IsDigit(c) ? upper : 0;
  return key == kDoubleQuote ? 0 : upper;
}

}  // namespace

void frmRandomInfo::BindKeyFilters() {
  for (const KeyFilter& filter : kKeyFilters) {
    On(filter.control).KeyPress = [this, &filter](int16_t& KeyAscii) {
      RunProcedure(filter.procedure, [&] {
        if (KeyAscii == kEnter) {
          for (const char* next : filter.next) {
            if (next != nullptr && FocusFirstAvailable({next})) break;
          }
          return;
        }
        if (KeyAscii == kBackspace) return;
        KeyAscii = Filter(filter.accepts, KeyAscii);
      });
    };
  }

  On("ran_payee_prov").KeyPress = [this](int16_t& KeyAscii) {
    RunProcedure("ran_payee_prov_KeyPress", [&] {
      if (KeyAscii == kEnter) {
        // The country comes first where the layout shows it above the province.
        const forms::Control& country = Ctl("ran_payee_country");
        const bool country_first = country.Top() < Ctl("ran_payee_postal").Top() &&
                                   country.Top() > Ctl("ran_payee_prov").Top();
        if (!(country_first && FocusFirstAvailable({"ran_payee_country"}))) {
          FocusFirstAvailable({"ran_payee_postal"});
        }
        return;
      }
      if (KeyAscii == kBackspace) return;
      KeyAscii = Filter(Accepts::kLetters, KeyAscii);
    });
  };

  On("ran_payee_postal").KeyPress = [this](int16_t& KeyAscii) {
    RunProcedure("ran_payee_postal_KeyPress", [&] {
      if (KeyAscii == kEnter) {
        FocusFirstAvailable({"ran_payee_ph_area", "ran_payee_country", "cmbCurrencyCode"});
        return;
      }
      if (KeyAscii == kBackspace) return;
      const forms::Control& postal = Ctl("ran_payee_postal");
      KeyAscii = FilterPostalCode(Ctl("ran_payee_country").Text(), postal.SelStart(), KeyAscii);
    });
  };

  On("ran_payee_email").KeyPress = [this](int16_t& KeyAscii) {
    RunProcedure("ran_payee_email_KeyPress", [&] {
      if (KeyAscii == kEnter) {
        if (!FocusFirstAvailable({"ran_payee_www"}) && ctx_.store.PayeeIndBusnTag == "1") {
          FocusFirstAvailable({"txtTransit"});
        }
        return;
      }
      if (KeyAscii == kBackspace) return;
      // The recipient's address is typed: the right button empties the clipboard here too.
      if (KeyAscii == kPasteKey) {
        KeyAscii = 0;
        return;
      }
      KeyAscii = Filter(Accepts::kAnyButQuoteAsIs, KeyAscii);
    });
  };
}

bool frmRandomInfo::FocusFirstAvailable(std::initializer_list<std::string_view> names) {
  for (const std::string_view name : names) {
    forms::Control& control = Ctl(name);
    if (forms::Application::Available(control)) return app().SetFocus(control);
  }
  return false;
}

}  // namespace nvrandom
