#pragma once

// A monkey for any dialog of the form runtime: it reads a byte stream as a sequence of what a
// person can do (focus, type, special keys, paste, mouse buttons, clicks, list choices, answers
// to message boxes, closing) and acts on the front-most form through the one input path. After
// each action it checks what must hold on any dialog; the dialog's own invariants are the
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
#include <vector>

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
  ByteReader(const uint8_t* data, size_t size) : data_(data), size_(size) {}
  bool done() const { return pos_ >= size_; }
  uint8_t Next() { return pos_ < size_ ? data_[pos_++] : 0; }

 private:
  const uint8_t* data_;
  size_t size_;
  size_t pos_ = 0;
};

[[noreturn]] inline void Violated(const std::string& what) {
  std::fprintf(stderr, "dialog invariant violated: %s\n", what.c_str());
  std::abort();
}

class DialogMonkey final : public forms::ModalDriver, public forms::FormObserver {
 public:
  // Modal dialogs nest at most this deep; a deeper one is closed at once.
  static constexpr int kMaxModalDepth = 4;

  // `boxes` answers the message boxes; `reopen` shows the dialog again once it has closed.
  DialogMonkey(forms::Application& app, headless::RecordingMessageBox& boxes,
               std::function<void()> reopen)
      : app_(app), boxes_(boxes), reopen_(std::move(reopen)) {
    app_.SetModalDriver(this);
    app_.AddObserver(this);
  }
  ~DialogMonkey() override {
    app_.RemoveObserver(this);
    app_.SetModalDriver(nullptr);
  }
  DialogMonkey(const DialogMonkey&) = delete;
  DialogMonkey& operator=(const DialogMonkey&) = delete;

  // Counts the presses of the form's buttons (by click, key or code): the acceptance may mask
  // bank boxes only during an action that pressed one. Each button is wrapped once, however
  // often its form loads; a form that outlives a monkey (a default instance) counts for the
  // next one.
  void CountPresses(forms::Form& form) {
    for (const auto& control : form.Controls()) {
      std::function<void()>& click = control->events.Click;
      if (!forms::IsButtonKind(control->kind()) || !click) continue;
      if (auto* counted = click.target<CountedClick>()) {
        counted->presses = presses_;
      } else {
        click = CountedClick{presses_, std::move(click)};
      }
    }
  }

  // Every form that loads, the modal ones included, has its presses counted.
  void FormLifecycle(forms::Form& form, forms::FormEvent event) override {
    if (event == forms::FormEvent::kLoaded) CountPresses(form);
  }

  // A modal dialog takes the next actions of the input under way, on the front-most form, each
  // checked as the outer ones are. When the input is used up (or the dialogs nest too deep) it
  // is closed by its cancel button, else by code, so that nothing waits for input that never
  // comes.
  void RunModal(forms::Form& form) override {
    const std::shared_ptr<forms::Form> keep = form.shared_from_this();
    ++modal_depth_;
    if (in_ != nullptr && check_ != nullptr && modal_depth_ <= kMaxModalDepth) {
      const std::function<void()>& check = *check_;
      while (Shown(form) && Step(*in_, check)) {
      }
    }
    if (Shown(form)) {
      forms::Control* cancel = form.Find("cmd_cancel");
      if (cancel != nullptr && app_.TakesInput(*cancel)) forms::user::Click(*cancel);
    }
    if (Shown(form)) form.Unload(forms::unload_mode::kCode);
    --modal_depth_;
  }

  // One action; false once the input is used up.
  bool Step(ByteReader& in, const std::function<void()>& check) {
    if (in.done()) return false;
    forms::Form* form = app_.ActiveForm();
    if (form == nullptr) {
      reopen_();
      form = app_.ActiveForm();
      if (form == nullptr) Violated("the dialog does not open again");
    }
    // The form outlives this action even when the action closes it.
    const std::shared_ptr<forms::Form> keep = form->shared_from_this();
    const Masks masks = RememberMasks(*form);
    const size_t presses = *presses_;
    // A modal dialog this action opens goes on with the same input and checks.
    ByteReader* const outer_in = std::exchange(in_, &in);
    const std::function<void()>* const outer_check = std::exchange(check_, &check);
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
    CheckCommon(masks, *presses_ != presses);
    check();
    return true;
  }

  size_t actions() const { return actions_; }

 private:
  using Masks = std::map<forms::Control*, std::pair<bool, std::string>>;

  struct CountedClick {
    std::shared_ptr<size_t> presses;
    std::function<void()> inner;
    void operator()() const {
      ++*presses;
      inner();
    }
  };

  static bool Shown(const forms::Form& form) { return form.IsLoaded() && form.Visible(); }

  static std::string Text(ByteReader& in, size_t length) {
    static constexpr const char* kPieces[] = {
        "a", "Z", "0",  "7",  " ",    "\"",   "@",        ".",
        "-", "~", "\t", "\r", "\x01", "\x7f", "\xc3\xa9", "\xe2\x82\xac",
        "{", "}", "1",  "9",  "M",    "k",    "'",        "_"};
    std::string text;
    for (size_t i = 0; i < length; ++i) text += kPieces[in.Next() % std::size(kPieces)];
    return text;
  }

  static forms::Control* Pick(forms::Form& form, ByteReader& in) {
    const auto& controls = form.Controls();
    if (controls.empty()) return nullptr;
    const size_t index = (static_cast<size_t>(in.Next()) << 8 | in.Next()) % controls.size();
    return controls[index].get();
  }

  void Act(forms::Form& form, ByteReader& in) {
    const uint8_t op = in.Next();
    forms::Control* control = Pick(form, in);
    if (control == nullptr) return;
    namespace user = forms::user;
    switch (op % 16) {
      case 0:
        user::Focus(*control);
        break;
      case 1:
      case 2:
        user::Type(*control, Text(in, in.Next() % 24));
        break;
      case 3: {
        static constexpr int16_t kKeys[] = {8, 13, 22, 9, 34, 32, 3, 24, 0, 200, 127};
        const uint8_t k = in.Next();
        user::Key(*control, k < 200 ? kKeys[k % std::size(kKeys)] : static_cast<int16_t>(k));
        break;
      }
      case 4: {
        // Editing keys, then the access keys the dialogs mark (Alt+I, B, H, V, E, O).
        static constexpr int16_t kDown[][2] = {
            {46, 0}, {37, 0}, {39, 1}, {36, 0}, {35, 1}, {45, 1}, {86, 2}, {67, 2}, {88, 2},
            {38, 0}, {40, 0}, {45, 0}, {73, 4}, {66, 4}, {72, 4}, {86, 4}, {69, 4}, {79, 4}};
        const auto& k = kDown[in.Next() % std::size(kDown)];
        user::KeyDown(*control, k[0], k[1]);
        break;
      }
      case 5:
        // Now and then far more than any field holds.
        user::Paste(*control, in.Next() % 8 == 0 ? std::string(10000, 'x') + Text(in, 4)
                                                 : Text(in, in.Next() % 40));
        break;
      case 6:
        user::MenuPaste(*control, Text(in, in.Next() % 40));
        break;
      case 7:
        user::MouseDown(*control, static_cast<int16_t>(1 + in.Next() % 2));
        break;
      case 8:
      case 9:
        user::Click(*control);
        break;
      case 10:
        if (control->ListCount() > 0) {
          const int row = in.Next() % control->ListCount();
          const auto& cells = control->Row(row);
          const int column =
              control->kind() == forms::ControlKind::kDataList ? control->BoundColumn() : 0;
          if (column >= 0 && static_cast<size_t>(column) < cells.size()) {
            user::Pick(*control, cells[static_cast<size_t>(column)]);
          }
        }
        break;
      case 11: {
        static constexpr int kAnswers[] = {msgbox::kYes, msgbox::kNo, msgbox::kOK};
        boxes_.QueueAnswer(kAnswers[in.Next() % 3]);
        break;
      }
      case 12:
      case 13:
        if (forms::Control* ok = form.Find("cmd_ok")) user::Click(*ok);
        break;
      case 14:
        user::ClearText(*control);
        break;
      default:
        switch (in.Next() % 4) {
          case 0:
            if (forms::Control* cancel = form.Find("cmd_cancel")) user::Click(*cancel);
            break;
          case 1:
            user::CloseBox(form);
            break;
          default:
            user::Select(*control, in.Next() % 12, in.Next() % 12);
        }
    }
  }

  static Masks RememberMasks(forms::Form& form) {
    Masks masks;
    for (const auto& control : form.Controls()) {
      if (forms::IsTextKind(control->kind())) {
        masks[control.get()] = {!control->PasswordChar().empty(), control->Text()};
      }
    }
    return masks;
  }

  void CheckCommon(const Masks& masks, bool pressed) {
    forms::Control* focused = app_.Focused();
    if (focused != nullptr && !forms::Application::Available(*focused)) {
      Violated("the focus is on " + focused->Name() + ", which is not available");
    }
    forms::Form* form = app_.ActiveForm();
    if (form == nullptr) return;
    // What the person types or pastes never takes a text past its maximum. A longer value that
    // the dialog itself put there (a stored value kept whole) may stay, but must not grow.
    for (const auto& control : form->Controls()) {
      if (!forms::IsTextKind(control->kind()) || control->MaxLength() <= 0) continue;
      const size_t length = utf8::Length(control->Text());
      if (length <= static_cast<size_t>(control->MaxLength())) continue;
      const auto before = masks.find(control.get());
      if (before != masks.end() && length > utf8::Length(before->second.second)) {
        Violated(control->Name() + " grew past its maximum length");
      }
    }
    // Outside a button press nothing masks a box, and an edited box is shown in clear.
    if (pressed) return;
    for (const auto& [control, before] : masks) {
      const bool masked = !control->PasswordChar().empty();
      if (masked && !before.first) Violated(control->Name() + " was masked without a press");
      if (masked && control->Text() != before.second) {
        Violated(control->Name() + " stays masked after an edit");
      }
    }
  }

  forms::Application& app_;
  headless::RecordingMessageBox& boxes_;
  std::function<void()> reopen_;
  size_t actions_ = 0;
  // Shared with the wrapped buttons, which may outlive the monkey.
  std::shared_ptr<size_t> presses_ = std::make_shared<size_t>(0);
  int modal_depth_ = 0;
  // The input and checks of the action under way, for a modal dialog it opens.
  ByteReader* in_ = nullptr;
  const std::function<void()>* check_ = nullptr;
};

}  // namespace nvrandom::fuzz
