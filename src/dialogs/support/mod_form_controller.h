#pragma once

#include <string>
#include <string_view>

namespace nvrandom {

class Context;

namespace forms {
class Form;
}

// Module modFormController: gives a form the visual style the host chose (FormStyle), making
// sure its font is on the machine first.
class modFormController {
 public:
  explicit modFormController(Context& ctx) : ctx_(ctx) {}

  // Restyles the form and its controls by kind; a control tagged "noStyle" keeps its design. A
  // run-time failure is reported through ShowError, leaving the form partly restyled.
  void reStyleForm(forms::Form& form);

  // The font the forms may use: `font` when it is installed or could be installed from the
  // installation's resources, else "MS Sans Serif".
  std::string installSystemFont(std::string_view font);

 private:
  Context& ctx_;
};

}  // namespace nvrandom
