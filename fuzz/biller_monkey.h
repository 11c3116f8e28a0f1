#pragma once

// The biller dialog under the monkey: its four layouts, the events it raises and the record it
// may change only when it is accepted. Shared by the fuzz target and the benchmark.
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "component/context.h"
#include "component/store.h"
#include "dialog_monkey.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_events.h"
#include "dialogs/fxbank/frm_fx_bank_info.h"
#include "forms/application.h"
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

// The foreign bank fields, which only the foreign bank dialog's acceptance stores.
inline std::vector<std::string> ForeignBank(const ComponentStore& s) {
  return {s.PayeeFXBankName,    s.PayeeFXBankAddress, s.PayeeFXBankCity, s.PayeeFXBankProv,
          s.PayeeFXBankCountry, s.PayeeFXBankAccount, s.PayeeFXBankSwift};
}

// Watches each modal visit of the foreign bank dialog: from its show to its unload (after the
// biller dialog has stored what it returned) the foreign bank fields change only when the
// dialog was accepted with OK.
class ForeignBankWatch final : public forms::FormObserver {
 public:
  ForeignBankWatch(forms::Application& app, const ComponentStore& store)
      : app_(app), store_(store) {
    app_.AddObserver(this);
  }
  ~ForeignBankWatch() override { app_.RemoveObserver(this); }

  void FormLifecycle(forms::Form& form, forms::FormEvent event) override {
    const auto* bank = dynamic_cast<const frmFXBankInfo*>(&form);
    if (bank != nullptr && event == forms::FormEvent::kShownModal) before_ = ForeignBank(store_);
    if (bank == nullptr || event != forms::FormEvent::kUnloaded || !before_) return;
    if (!bank->OKClicked() && ForeignBank(store_) != *before_) {
      Violated("the foreign bank fields changed though the foreign bank dialog was not accepted");
    }
    before_.reset();
  }

 private:
  forms::Application& app_;
  const ComponentStore& store_;
  std::optional<std::vector<std::string>> before_;
};

// The layout byte: bits 0-1 the kind of biller, bit 2 a new biller, bit 3 stored foreign bank
// details (bit 4: a bank in the United States), bit 5 an imported biller.
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
  if (layout & 8) {
    s.PayeeFXBankName = "NORTH BANK";
    s.PayeeFXBankAddress = "1 HIGH ST";
    s.PayeeFXBankCity = "LONDON";
    s.PayeeFXBankProv = "LDN";
    if (layout & 16) {
      s.PayeeFXBankCountry = "US";
      s.PayeeFXBankAccount = "02100002112345678";
    } else {
      s.PayeeFXBankCountry = "GB";
      s.PayeeFXBankAccount = "GB29NWBK60161331926819";
      s.PayeeFXBankSwift = "NWBKGB2L";
    }
  }
  if (layout & 32) s.importFlag = -1;
}

// One run of the monkey over `in` on a dialog opened in the layout of the input's first byte,
// reopened after each close (at most `max_shows` times). Returns the actions performed.
inline size_t RunBillerMonkey(Context& ctx, headless::RecordingMessageBox& boxes, ByteReader& in,
                              int max_shows) {
  SetLayout(ctx.store, in.Next());
  CountingEvents events;
  std::shared_ptr<frmRandomInfo> dialog;
  std::vector<std::string> record;
  auto open = [&] {
    record = Record(ctx.store);
    events.accepted = events.cancelled = 0;
    dialog = frmRandomInfo::Create(ctx, &events);
    dialog->Show(false);
  };
  DialogMonkey monkey(ctx.forms(), boxes, open);
  const ForeignBankWatch watch(ctx.forms(), ctx.store);
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
