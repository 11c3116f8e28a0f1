// Module Random: completing what is typed in a combo box from its list.
#include "component/context.h"
#include "component/trace.h"
#include "forms/control.h"
#include "platform/ascii.h"
#include "validation/random.h"
#include "validation/text.h"

namespace nvrandom {

void Random::ComboBoxAutoComplete(forms::Control& combo) {
  TraceEntry(ctx_, "Random - ComboBoxAutoComplete");
  // Copies: setting the text below runs the box's change handler, which may come back here.
  const std::string typed = combo.Text();
  const size_t typed_length = validation::CharacterCount(typed);
  const int count = combo.ListCount();
  // Up to and including the count: the entry one past the end reads as empty.
  for (int index = 0; index <= count; ++index) {
    const std::string entry = combo.List(index);
    if (!ascii::EqualsIgnoreCase(validation::LeftCharacters(entry, typed_length), typed)) continue;
    combo.SetText(entry);
    combo.SetListIndex(index);
    combo.SetSelStart(static_cast<int>(typed_length));
    // The control clips the selection at the end of the text.
    combo.SetSelLength(static_cast<int>(validation::CharacterCount(entry)));
    return;
  }
}

}  // namespace nvrandom
