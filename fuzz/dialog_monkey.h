#pragma once

// A monkey for any dialog of the form runtime: it reads a byte stream as a sequence of what a
// person can do (focus, type, keys, access keys, pastes, mouse buttons, clicks, list choices,
// answers to message boxes, closing) and acts on the front-most form through the one input path.
// After each action it checks what must hold on any dialog; the dialog's own invariants are the
// caller's `check`. It is the application's modal driver while it lives: a dialog shown modally
// from an action is driven by the same input, with the same checks, until it closes.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "app/headless_services.h"
#include "forms/application.h"
#include "forms/control.h"
#include "forms/form.h"
#include "forms/user_input.h"
#include "platform/message_box.h"
#include "platform/utf8.h"

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

[[noreturn]] inline void Violated(const std::string& what) {
  std::fprintf(stderr, "dialog invariant violated: %s\n", what.c_str());
  std::abort();
}

class DialogMonkey final : public forms::ModalDriver {
 public:
  using Check = std::function<void()>;
  // Modal dialogs nest at most this deep; a deeper one is closed at once.
  static constexpr int kMaxModalDepth = 4;

  // `boxes` answers the message boxes; `reopen` shows the dialog again once it has closed.
  DialogMonkey(forms::Application& app, headless::RecordingMessageBox& boxes,
               std::function<void()> reopen)
      : app_(app), boxes_(boxes), reopen_(std::move(reopen)) {
    app_.SetModalDriver(this);
  }
  ~DialogMonkey() override { app_.SetModalDriver(nullptr); }
  DialogMonkey(const DialogMonkey&) = delete;
  DialogMonkey& operator=(const DialogMonkey&) = delete;

  // A modal dialog takes the next actions of the input under way. When the input is used up (or
  // the dialogs nest too deep) it is closed by its cancel button, else by code, so that nothing
  // waits for input that never comes.
  void RunModal(forms::Form& form) override {
    const std::shared_ptr<forms::Form> keep = form.shared_from_this();
    const auto shown = [&] { return form.IsLoaded() && form.Visible(); };
    ++depth_;
    while (in_ != nullptr && depth_ <= kMaxModalDepth && shown() && Step(*in_, *check_)) {
    }
    forms::Control* cancel = form.Find("cmd_cancel");
    if (shown() && cancel != nullptr && app_.TakesInput(*cancel)) forms::user::Click(*cancel);
    if (shown()) form.Unload(forms::unload_mode::kCode);
    --depth_;
  }

  // One action on the front-most form (the dialog reopened if none is); false once the input is
  // used up.
  bool Step(ByteReader& in, const Check& check) {
    if (in.done()) return false;
    if (app_.ActiveForm() == nullptr) reopen_();
    forms::Form* form = app_.ActiveForm();
    if (form == nullptr) Violated("the dialog does not open again");
    // The form outlives this action even when the action closes it.
    const std::shared_ptr<forms::Form> keep = form->shared_from_this();
    std::map<const forms::Control*, size_t> lengths;
    for (const auto& control : form->Controls()) {
      if (forms::IsTextKind(control->kind()))
        lengths[control.get()] = utf8::Length(control->Text());
    }
    ByteReader* const outer_in = std::exchange(in_, &in);
    const Check* const outer_check = std::exchange(check_, &check);
    try {
      Act(*form, in);
    } catch (const std::exception& e) {
      Violated(std::string("an exception escaped: ") + e.what());
    } catch (...) {
      Violated("an exception escaped");
    }
    in_ = outer_in;
    check_ = outer_check;
    ++actions_;
    CheckCommon(lengths);
    check();
    return true;
  }

  size_t actions() const { return actions_; }

 private:
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
    DialogMonkey& monkey;
    forms::Form& form;
    forms::Control& control;
    ByteReader& in;
    void Click(const char* button) {
      if (forms::Control* found = form.Find(button)) forms::user::Click(*found);
    }
  };

  void Act(forms::Form& form, ByteReader& in) {
    namespace user = forms::user;
    const uint8_t op = in.Next();
    const auto& controls = form.Controls();
    if (controls.empty()) return;
    Turn turn{*this, form, *controls[(in.Next() << 8 | in.Next()) % controls.size()], in};
    // Characters (Backspace, Enter, Ctrl+V, Tab, Ctrl+C, Ctrl+X and others), then keys that type
    // none: editing keys, Shift+Insert, Ctrl+V/C/X and the access keys the dialogs mark (Alt+I,
    // B, H, V, E, O).
    static constexpr int16_t kChars[] = {8, 13, 22, 9, 34, 32, 3, 24, 0, 200, 127};
    static constexpr int16_t kKeys[][2] = {{46, 0}, {37, 0}, {39, 1}, {36, 0}, {35, 1}, {45, 1},
                                           {86, 2}, {67, 2}, {88, 2}, {38, 0}, {40, 0}, {45, 0},
                                           {73, 4}, {66, 4}, {72, 4}, {86, 4}, {69, 4}, {79, 4}};
    static constexpr int kAnswers[] = {msgbox::kYes, msgbox::kNo, msgbox::kOK};
    using Action = void (*)(Turn&);
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

  // The focus is never left on a control that cannot take it, and nothing the person does takes
  // a text past its maximum: a longer value the dialog itself put there (a stored value kept
  // whole) may stay, but must not grow.
  void CheckCommon(const std::map<const forms::Control*, size_t>& before) {
    forms::Control* focused = app_.Focused();
    if (focused != nullptr && !forms::Application::Available(*focused)) {
      Violated("the focus is on " + focused->Name() + ", which is not available");
    }
    for (const auto& [control, length] : before) {
      const size_t now = utf8::Length(control->Text());
      if (control->MaxLength() > 0 && now > static_cast<size_t>(control->MaxLength()) &&
          now > length) {
        Violated(control->Name() + " grew past its maximum length");
      }
    }
  }

  forms::Application& app_;
  headless::RecordingMessageBox& boxes_;
  std::function<void()> reopen_;
  size_t actions_ = 0;
  int depth_ = 0;
  // The input and checks of the action under way, for a modal dialog it opens.
  ByteReader* in_ = nullptr;
  const Check* check_ = nullptr;
};

}  // namespace nvrandom::fuzz
