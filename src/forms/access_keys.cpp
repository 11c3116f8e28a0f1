#include "forms/access_keys.h"

#include <algorithm>
#include <vector>

#include "forms/application.h"
#include "forms/control.h"
#include "forms/form.h"
#include "forms/user_input.h"
#include "platform/ascii.h"

namespace nvrandom::forms {

namespace {

// How far (twips) a label may reach past an input's left edge, or below its line, and still name
// it: the dialogs' labels overlap their boxes by a few pixels.
constexpr int32_t kLabelSlack = 60;

// Where a control's access key leads: the input a label names, the first tab stop inside a
// frame, or the control itself.
Control* TargetOf(Control& marked) {
  const std::vector<std::unique_ptr<Control>>& controls = marked.form().Controls();
  if (marked.kind() == ControlKind::kLabel) {
    for (const auto& c : controls) {
      if (IsTextKind(c->kind()) && LabelOf(*c) == &marked) return c.get();
    }
    return nullptr;
  }
  if (marked.kind() != ControlKind::kFrame) return &marked;
  Control* first = nullptr;
  for (const auto& c : controls) {
    if (c->TabStop() && c.get() != &marked && c->IsWithin(marked) && Application::Available(*c) &&
        (first == nullptr || c->TabIndex() < first->TabIndex())) {
      first = c.get();
    }
  }
  return first;
}

// A control whose caption marks the key, and where the key leads from it.
struct Answer {
  Control* marked;
  Control* target;
};

// The controls that answer Alt with `key_code` now, in tab order: a label or frame stands where
// its target does.
std::vector<Answer> Answering(const Control& focused, int16_t key_code) {
  std::vector<Answer> marked;
  if (key_code <= ' ' || key_code >= 127) return marked;
  const char key = ascii::ToUpper(static_cast<char>(key_code));
  if (!ascii::IsUpper(key) && !ascii::IsDigit(key)) return marked;
  const Application& app = focused.form().app();
  for (const auto& c : focused.form().Controls()) {
    if (IsTextKind(c->kind()) || AccessKeyOf(c->Caption()) != key || !app.TakesInput(*c)) {
      continue;
    }
    Control* target = TargetOf(*c);
    if (target != nullptr && (target == c.get() || Application::Available(*target))) {
      marked.push_back({c.get(), target});
    }
  }
  std::stable_sort(marked.begin(), marked.end(), [](const Answer& a, const Answer& b) {
    return a.target->TabIndex() < b.target->TabIndex();
  });
  return marked;
}

}  // namespace

char AccessKeyOf(std::string_view caption) {
  for (size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] != '&') return ascii::ToUpper(caption[i + 1]);
    ++i;
  }
  return '\0';
}

const Control* LabelOf(const Control& input) {
  const Control* best = nullptr;
  const int32_t middle = input.Top() + input.Height() / 2;
  for (const auto& other : input.form().Controls()) {
    const Control& l = *other;
    if (l.kind() != ControlKind::kLabel || l.Container() != input.Container() ||
        l.Caption().empty() || l.Left() + l.Width() > input.Left() + kLabelSlack ||
        middle < l.Top() || middle > l.Top() + l.Height() + kLabelSlack) {
      continue;
    }
    if (best == nullptr || l.Left() > best->Left()) best = &l;
  }
  return best;
}

bool PressAccessKey(Control& focused, int16_t key_code) {
  const std::vector<Answer> marked = Answering(focused, key_code);
  if (marked.empty()) return false;
  // The first after the focus in tab order, wrapping round.
  const auto after = std::find_if(marked.begin(), marked.end(), [&](const Answer& a) {
    return a.target->TabIndex() > focused.TabIndex();
  });
  const Answer& chosen = after != marked.end() ? *after : marked.front();
  Control& target = *chosen.target;
  if (&target != chosen.marked || marked.size() > 1) {
    if (target.CanFocus()) user::Focus(target);
    return true;
  }
  user::Click(target);
  return true;
}

}  // namespace nvrandom::forms
