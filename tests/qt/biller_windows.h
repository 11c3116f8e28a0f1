#pragma once

// The biller dialog's windows as the Qt view's tests open them: the view's integration on an
// installation tree of the scenarios' kind, and the windows of the forms it has loaded.
#include <string>
#include <string_view>
#include <vector>

#include "app/thread_context.h"
#include "component/context.h"
#include "form_window.h"
#include "forms/form.h"
#include "installation_tree.h"
#include "qt_integration.h"
#include "qt_services.h"
#include "qt_view.h"

namespace nvrandom::qt {

class BillerWindows {
 public:
  // The view's message boxes, for a test to answer.
  static QtMessageBoxService* boxes() {
    return dynamic_cast<QtMessageBoxService*>(app::ThreadContext().services.message_box.get());
  }
  bool ok() const { return tree_.ok() && boxes() != nullptr; }
  const std::string& install() const { return tree_.install(); }

  // The loaded forms of that name, oldest first.
  static std::vector<forms::Form*> Loaded(std::string_view name) {
    std::vector<forms::Form*> forms;
    for (const auto& form : app::ThreadContext().forms().LoadedForms()) {
      if (form->Name() == name) forms.push_back(form.get());
    }
    return forms;
  }
  FormWindow* WindowOf(forms::Form& form) const { return integration_.view().WindowOf(form); }
  // The window of the oldest loaded form of that name (nullptr when there is none).
  FormWindow* WindowOf(std::string_view name) const {
    const std::vector<forms::Form*> forms = Loaded(name);
    return forms.empty() ? nullptr : WindowOf(*forms.front());
  }

 private:
  scenario::InstallationTree tree_;
  Integration integration_;  // gone before the tree
};

}  // namespace nvrandom::qt
