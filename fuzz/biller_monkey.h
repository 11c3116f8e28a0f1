#pragma once

// The biller dialog under the monkey: its four layouts, the events it raises and the record it
// may change only when it is accepted. Shared by the fuzz target and the benchmark.
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "component/context.h"
#include "component/store.h"
#include "dialog_monkey.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_events.h"
#include "validation/address_rules.h"

namespace nvrandom::fuzz {

class CountingEvents final : public RandomInfoEvents {
 public:
  void CSBOK() override { ++accepted; }
  void CurrentFieldTop(int16_t) override {}
  void Cancel() override { ++cancelled; }
  void ViewSampleCheque() override {}
  int accepted = 0;
  int cancelled = 0;
};

// The biller record, the foreign bank fields left out.
inline std::vector<std::string> Record(const ComponentStore& s) {
  return {s.PayeeName,        s.PayeeBillAccount,      s.PayeeStreet,        s.PayeeCity,
          s.PayeeProv,        s.PayeeCountry,          s.PayeePostal,        s.PayeePhoneArea,
          s.PayeePhoneNumber, s.PayeeFaxArea,          s.PayeeFaxNumber,     s.PayeeEmail,
          s.PayeeWeb,         s.PayeeContactName,      s.PayeeBankId,        s.PayeeBankTransit,
          s.PayeeBankAccount, s.PayeeIndBusnTag,       s.PayeeBusinessNum,   s.PayeeDiscountsApply,
          s.PayeeCurrency,    s.PayeePhoneCountryCode, s.PayeeFaxCountryCode};
}

inline void SetLayout(ComponentStore& s, uint8_t layout) {
  s = ComponentStore{};
  s.poBoxWords = validation::SplitPoBoxWords();
  s.gstrInstallRoot = std::filesystem::temp_directory_path().string() + "/";
  s.Provpostalstr = "ABTBCVMBRNBENLAONKONLONMQCGQCHSKS";
  s.PayeeName = "ACME";
  s.PayeeStreet = "1 MAIN ST";
  s.PayeeCity = "OTTAWA";
  s.PayeeProv = "ON";
  s.PayeePostal = "K1A0B1";
  s.PayeePhoneArea = "613";
  s.PayeePhoneNumber = "5551234";
  s.PayeeBankId = "001";
  s.PayeeBankTransit = "00011";
  s.PayeeBankAccount = "1234567";
  s.UserBankAcctPermission = -1;
  s.InternationalPayment = -1;
  s.IPCurrencyList = StringArray::TwoDimensional(0, 1, 0, 0);
  s.IPCurrencyList.at(0, 0) = "EUR";
  s.IPCurrencyList.at(1, 0) = "Euro";
  s.Add = static_cast<int16_t>(layout & 4 ? -1 : 0);
  switch (layout % 4) {
    case 0:  // domestic business
      s.PayeeIndBusnTag = "2";
      s.PayeeIndBussFlg = " ";
      break;
    case 1:  // domestic individual
      s.PayeeIndBusnTag = "1";
      s.PayeeIndBussFlg = "I";
      s.PayeeEmail = "jane@home.ca";
      break;
    case 2:  // US
      s.WhatKindOfBiller = "1";
      s.CurrencyCodeFromMain = "USD";
      s.PayeeCountry = "US";
      s.PayeeProv = "NY";
      s.PayeePostal = "10001";
      s.PayeePhoneArea = "212";
      break;
    default:  // foreign currency
      s.PayeeIndBusnTag = "2";
      s.PayeeCountry = "GB";
      s.PayeeCurrency = "EUR";
      s.PayeeFXPhoneNumber = "2071234567";
      s.PayeePhoneCountryCode = "44";
      break;
  }
}

// One run of the monkey over `in` on a dialog opened in the layout of the input's first byte,
// reopened after each close (at most `max_shows` times). Returns the actions performed.
inline size_t RunBillerMonkey(Context& ctx, headless::RecordingMessageBox& boxes, ByteReader& in,
                              int max_shows) {
  SetLayout(ctx.store, in.Next());
  CountingEvents events;
  std::shared_ptr<frmRandomInfo> dialog;
  std::vector<std::string> record;
  DialogMonkey* monkey_ptr = nullptr;
  auto open = [&] {
    record = Record(ctx.store);
    events.accepted = events.cancelled = 0;
    dialog = frmRandomInfo::Create(ctx, &events);
    dialog->Show(false);
    if (monkey_ptr != nullptr) monkey_ptr->CountPresses(*dialog);
  };
  DialogMonkey monkey(ctx.forms(), boxes, open);
  monkey_ptr = &monkey;
  open();
  int shows = 0;
  const auto check = [&] {
    if (events.accepted + events.cancelled > 1) Violated("more than one CSBOK or Cancel");
    if (events.accepted == 0 && Record(ctx.store) != record) {
      Violated("the biller record changed without CSBOK");
    }
    if (events.accepted + events.cancelled == 1 && dialog->IsLoaded()) {
      Violated("the dialog stays open after CSBOK or Cancel");
    }
  };
  while (shows < max_shows && monkey.Step(in, check)) {
    if (!dialog->IsLoaded()) ++shows;
  }
  // Whatever is left open is closed by code, as a host would.
  while (forms::Form* front = ctx.forms().ActiveForm()) {
    if (!front->Unload()) break;
  }
  dialog->Unload();
  return monkey.actions();
}

}  // namespace nvrandom::fuzz
