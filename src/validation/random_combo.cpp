// Module Random: completing what is typed in a combo box from its list.
#include "component/context.h"
#include "component/trace.h"
#include "forms/control.h"
#include "validation/random.h"
#include "validation/text.h"

namespace nvrandom {

namespace {
bool SameIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    const auto lower = [](char c) {
      return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
    };
    if (lower(a[i]) != lower(b[i])) return false;
  }
  return true;
}
}  // namespace

void Random::ComboBoxAutoComplete(forms::Control& combo) {
  TraceEntry(ctx_, "Random - ComboBoxAutoComplete");
  // Copies: setting the text below runs the box's change handler, which may come back here.
  const std::string typed = combo.Text();
  const size_t typed_length = validation::CharacterCount(typed);
  const int count = combo.ListCount();
  // Up to and including the count: the entry one past the end reads as empty.
  for (int index = 0; index <= count; ++index) {
    const std::string entry = combo.List(index);
    if (!SameIgnoringCase(validation::LeftCharacters(entry, typed_length), typed)) continue;
    combo.SetText(entry);
    combo.SetListIndex(index);
    combo.SetSelStart(static_cast<int>(typed_length));
    // The control clips the selection at the end of the text.
    combo.SetSelLength(static_cast<int>(validation::CharacterCount(entry)));
    return;
  }
}

}  // namespace nvrandom
