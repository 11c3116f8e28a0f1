// The biller dialog under a monkey: opened in one of its four layouts (domestic business,
// domestic individual, US, foreign currency), then driven by the input as a person would drive
// it. Besides what holds on any dialog: the biller record changes only with CSBOK (the foreign
// bank fields aside, which the foreign bank dialog stores on its own acceptance), and each show
// ends in at most one CSBOK or Cancel.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "component/store.h"
#include "dialog_monkey.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_events.h"
#include "fuzz_input.h"

namespace nvrandom::fuzz {
namespace {

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
std::vector<std::string> Record(const ComponentStore& s) {
  return {s.PayeeName,        s.PayeeBillAccount,      s.PayeeStreet,        s.PayeeCity,
          s.PayeeProv,        s.PayeeCountry,          s.PayeePostal,        s.PayeePhoneArea,
          s.PayeePhoneNumber, s.PayeeFaxArea,          s.PayeeFaxNumber,     s.PayeeEmail,
          s.PayeeWeb,         s.PayeeContactName,      s.PayeeBankId,        s.PayeeBankTransit,
          s.PayeeBankAccount, s.PayeeIndBusnTag,       s.PayeeBusinessNum,   s.PayeeDiscountsApply,
          s.PayeeCurrency,    s.PayeePhoneCountryCode, s.PayeeFaxCountryCode};
}

void SetLayout(ComponentStore& s, uint8_t layout) {
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

}  // namespace
}  // namespace nvrandom::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace nvrandom;
  fuzz::FuzzContext& fc = fuzz::SharedContext();
  Context& ctx = *fc.ctx;
  fuzz::ByteReader in(data, size);
  fuzz::SetLayout(ctx.store, in.Next());

  fuzz::CountingEvents events;
  std::shared_ptr<frmRandomInfo> dialog;
  std::vector<std::string> record;
  fuzz::DialogMonkey* monkey_ptr = nullptr;
  auto open = [&] {
    record = fuzz::Record(ctx.store);
    events.accepted = events.cancelled = 0;
    dialog = frmRandomInfo::Create(ctx, &events);
    dialog->Show(false);
    if (monkey_ptr != nullptr) monkey_ptr->CountPresses(*dialog);
  };
  fuzz::DialogMonkey monkey(ctx.forms(), *fc.boxes, open);
  monkey_ptr = &monkey;
  open();
  int shows = 0;
  const auto check = [&] {
    if (events.accepted + events.cancelled > 1) fuzz::Violated("more than one CSBOK or Cancel");
    if (events.accepted == 0 && fuzz::Record(ctx.store) != record) {
      fuzz::Violated("the biller record changed without CSBOK");
    }
    if (events.accepted + events.cancelled == 1 && dialog->IsLoaded()) {
      fuzz::Violated("the dialog stays open after CSBOK or Cancel");
    }
  };
  while (shows < 64 && monkey.Step(in, check)) {
    if (!dialog->IsLoaded()) ++shows;
  }
  // Whatever is left open is closed by code, as a host would.
  while (forms::Form* front = ctx.forms().ActiveForm()) {
    if (!front->Unload()) break;
  }
  dialog->Unload();
  return 0;
}
