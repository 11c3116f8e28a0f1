#pragma once

// The biller dialog under a monkey, in one of its layouts. The monkey reads a byte stream as a
// sequence of what a person can do (focus, type, keys, access keys, pastes, mouse buttons, clicks,
// list choices, answers to message boxes, closing) and acts on the front-most form through the
// one input path; a dialog shown modally from an action (the foreign bank details, the sample
// cheque) is driven by the same input until it closes. After each action: nothing crashed, the
// dialog is usable (open again once closed, the focus never on a control that cannot take it) and
// the record changed only with CSBOK. Shared by the fuzz target and the benchmark.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "app/headless_services.h"
#include "component/context.h"
#include "component/store.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_events.h"
#include "forms/application.h"
#include "forms/control.h"
#include "forms/form.h"
#include "forms/user_input.h"
#include "fuzz_input.h"
#include "platform/message_box.h"
#include "validation/address_rules.h"

namespace nvrandom::fuzz {

class ByteReader {
 public:
  ByteReader(const uint8_t* data, size_t size) : data_(data), end_(data + size) {}
  bool done() const { return data_ >= end_; }
  uint8_t Next() { return data_ < end_ ? *data_++ : 0; }

 private:
  const uint8_t* data_;
  const uint8_t* end_;
};

// The biller record, the foreign bank fields left out: the foreign bank dialog stores those on
// its own acceptance.
inline std::vector<std::string> Record(const ComponentStore& s) {
  return {s.PayeeName,        s.PayeeBillAccount,      s.PayeeStreet,        s.PayeeCity,
          s.PayeeProv,        s.PayeeCountry,          s.PayeePostal,        s.PayeePhoneArea,
          s.PayeePhoneNumber, s.PayeeFaxArea,          s.PayeeFaxNumber,     s.PayeeEmail,
          s.PayeeWeb,         s.PayeeContactName,      s.PayeeBankId,        s.PayeeBankTransit,
          s.PayeeBankAccount, s.PayeeIndBusnTag,       s.PayeeBusinessNum,   s.PayeeDiscountsApply,
          s.PayeeCurrency,    s.PayeePhoneCountryCode, s.PayeeFaxCountryCode};
}

// The layout byte: bits 0-1 the kind of biller, bit 2 a new biller, bit 5 an imported biller.
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
  if (layout & 32) s.importFlag = -1;
}

class CountingEvents final : public RandomInfoEvents {
 public:
  void CSBOK() override { ++accepted; }
  void CurrentFieldTop(int16_t) override {}
  void Cancel() override { ++cancelled; }
  void ViewSampleCheque() override {}
  int accepted = 0;
  int cancelled = 0;
};

// The monkey on the biller dialog: the dialog's host and the application's modal driver while it
// lives.
class BillerMonkey final : public forms::ModalDriver {
 public:
  BillerMonkey(Context& ctx, headless::RecordingMessageBox& boxes, ByteReader& in)
      : ctx_(ctx), app_(ctx.forms()), boxes_(boxes), in_(in) {
    app_.SetModalDriver(this);
  }
  ~BillerMonkey() override { app_.SetModalDriver(nullptr); }
  BillerMonkey(const BillerMonkey&) = delete;
  BillerMonkey& operator=(const BillerMonkey&) = delete;

  // Opens the dialog, then acts until the input is used up, reopening the dialog after each close
  // (at most `max_shows` times). Returns the actions performed.
  size_t Run(int max_shows) {
    Open();
    running_ = true;
    for (int shows = 0; shows < max_shows && Step();) {
      if (!dialog_->IsLoaded()) ++shows;
    }
    running_ = false;
    // Whatever is left open is closed by code, as a host would.
    while (forms::Form* front = app_.ActiveForm()) {
      if (!front->Unload()) break;
    }
    dialog_->Unload();
    return actions_;
  }

  // A modal dialog takes the next actions of the input; once the input is used up it is closed by
  // code, so that nothing waits for input that never comes.
  void RunModal(forms::Form& form) override {
    const std::shared_ptr<forms::Form> keep = form.shared_from_this();
    const auto shown = [&] { return form.IsLoaded() && form.Visible(); };
    while (running_ && shown() && Step()) {
    }
    if (shown()) form.Unload(forms::unload_mode::kCode);
  }

 private:
  void Open() {
    record_ = Record(ctx_.store);
    events_.accepted = events_.cancelled = 0;
    dialog_ = frmRandomInfo::Create(ctx_, &events_);
    dialog_->Show(false);
  }

  // One action on the front-most form (the dialog reopened if none is); false once the input is
  // used up.
  bool Step() {
    if (in_.done()) return false;
    if (app_.ActiveForm() == nullptr) Open();
    forms::Form* form = app_.ActiveForm();
    if (form == nullptr) Violated("the dialog does not open again");
    // The form outlives this action even when the action closes it.
    const std::shared_ptr<forms::Form> keep = form->shared_from_this();
    Act(*form);
    ++actions_;
    // The dialog stays usable: the focus is never left on a control that cannot take it. The
    // record changes only with CSBOK.
    const forms::Control* focused = app_.Focused();
    if (focused != nullptr && !forms::Application::Available(*focused)) {
      Violated("the focus is on " + focused->Name() + ", which is not available");
    }
    if (events_.accepted == 0 && Record(ctx_.store) != record_) {
      Violated("the biller record changed without CSBOK");
    }
    return true;
  }

  static std::string Text(ByteReader& in, size_t length) {
    static constexpr const char* kPieces[] = {
        "a", "Z", "0",  "7",  " ",    "\"",   "@",        ".",
        "-", "~", "\t", "\r", "\x01", "\x7f", "\xc3\xa9", "\xe2\x82\xac",
        "{", "}", "1",  "9",  "M",    "k",    "'",        "_"};
    std::string text;
    for (size_t i = 0; i < length; ++i) text += kPieces[in.Next() % std::size(kPieces)];
    return text;
  }

  // What one action works on: the form, the control the input picked and the input.
  struct Turn {
    BillerMonkey& monkey;
    forms::Form& form;
    forms::Control& control;
    ByteReader& in;
    void Click(const char* button) {
      if (forms::Control* found = form.Find(button)) forms::user::Click(*found);
    }
  };

  void Act(forms::Form& form) {
    namespace user = forms::user;
    const uint8_t op = in_.Next();
    const auto& controls = form.Controls();
    if (controls.empty()) return;
    Turn turn{*this, form, *controls[(in_.Next() << 8 | in_.Next()) % controls.size()], in_};
    // Characters (Backspace, Enter, Ctrl+V, Tab, Ctrl+C, Ctrl+X and others), then keys that type
    // none: editing keys, Shift+Insert, Ctrl+V/C/X and the access keys the dialogs mark (Alt+I,
    // B, H, V, E, O).
    static constexpr int16_t kChars[] = {8, 13, 22, 9, 34, 32, 3, 24, 0, 200, 127};
    static constexpr int16_t kKeys[][2] = {{46, 0}, {37, 0}, {39, 1}, {36, 0}, {35, 1}, {45, 1},
                                           {86, 2}, {67, 2}, {88, 2}, {38, 0}, {40, 0}, {45, 0},
                                           {73, 4}, {66, 4}, {72, 4}, {86, 4}, {69, 4}, {79, 4}};
    static constexpr int kAnswers[] = {msgbox::kYes, msgbox::kNo, msgbox::kOK};
    using Action = void (*)(Turn&);
    // Typing, clicks and OK stand twice: a person does them more often than the rest.
    static constexpr Action kActions[] = {
        [](Turn& t) { user::Focus(t.control); },
        [](Turn& t) { user::Type(t.control, Text(t.in, t.in.Next() % 24)); },
        [](Turn& t) { user::Type(t.control, Text(t.in, t.in.Next() % 24)); },
        [](Turn& t) {
          const uint8_t k = t.in.Next();
          user::Key(t.control, k < 200 ? kChars[k % std::size(kChars)] : int16_t{k});
        },
        [](Turn& t) {
          const auto& k = kKeys[t.in.Next() % std::size(kKeys)];
          user::KeyDown(t.control, k[0], k[1]);
        },
        // Now and then far more than any field holds.
        [](Turn& t) {
          user::Paste(t.control, t.in.Next() % 8 == 0 ? std::string(10000, 'x') + Text(t.in, 4)
                                                      : Text(t.in, t.in.Next() % 40));
        },
        [](Turn& t) { user::MenuPaste(t.control, Text(t.in, t.in.Next() % 40)); },
        [](Turn& t) { user::MouseDown(t.control, static_cast<int16_t>(1 + t.in.Next() % 2)); },
        [](Turn& t) { user::Click(t.control); },
        [](Turn& t) { user::Click(t.control); },
        [](Turn& t) {
          const int rows = t.control.ListCount();
          if (rows > 0) user::PickRow(t.control, t.in.Next() % rows);
        },
        [](Turn& t) { t.monkey.boxes_.QueueAnswer(kAnswers[t.in.Next() % std::size(kAnswers)]); },
        [](Turn& t) { t.Click("cmd_ok"); },
        [](Turn& t) { t.Click("cmd_ok"); },
        [](Turn& t) { user::ClearText(t.control); },
        [](Turn& t) {
          const uint8_t how = t.in.Next() % 4;
          if (how == 0) t.Click("cmd_cancel");
          if (how == 1) user::CloseBox(t.form);
          if (how > 1) user::Select(t.control, t.in.Next() % 12, t.in.Next() % 12);
        },
    };
    kActions[op % std::size(kActions)](turn);
  }

  Context& ctx_;
  forms::Application& app_;
  headless::RecordingMessageBox& boxes_;
  ByteReader& in_;
  std::shared_ptr<frmRandomInfo> dialog_;
  std::vector<std::string> record_;
  CountingEvents events_;
  size_t actions_ = 0;
  bool running_ = false;
};

// One run of the monkey over `in` on a dialog opened in the layout of the input's first byte,
// reopened after each close (at most `max_shows` times). Returns the actions performed.
inline size_t RunBillerMonkey(Context& ctx, headless::RecordingMessageBox& boxes, ByteReader& in,
                              int max_shows) {
  SetLayout(ctx.store, in.Next());
  return BillerMonkey(ctx, boxes, in).Run(max_shows);
}

}  // namespace nvrandom::fuzz
