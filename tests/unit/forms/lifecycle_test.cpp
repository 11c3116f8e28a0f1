#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "forms/user_input.h"
#include "test_form.h"

namespace nvrandom::forms_test {
namespace {

bool IsLoadedInApp(const Harness& h, const forms::Form& form) {
  const auto loaded = h.app.LoadedForms();
  return std::any_of(loaded.begin(), loaded.end(), [&](const auto& f) { return f.get() == &form; });
}

// A nonzero Cancel from QueryUnload or from Unload keeps the form loaded and on screen.
TEST(Lifecycle, CancelKeepsTheFormLoaded) {
  for (const bool in_query : {true, false}) {
    SCOPED_TRACE(in_query ? "QueryUnload" : "Unload");
    ShownHarness h;
    if (in_query) {
      h.form->on_query_unload = [](int16_t& cancel, int16_t) { cancel = 1; };
    } else {
      h.form->on_unload = [](int16_t& cancel) { cancel = 1; };
    }
    EXPECT_FALSE(h.form->Unload(forms::unload_mode::kCloseBox));
    EXPECT_TRUE(h.form->IsLoaded());
    EXPECT_TRUE(h.form->Visible());
    EXPECT_TRUE(IsLoadedInApp(h, *h.form));
    if (in_query) {
      EXPECT_EQ(h.form->log, std::vector<std::string>{"QueryUnload 0"});
    }
  }
}

// A modal Show returns when the form is unloaded or hidden; Hide keeps it loaded so that the
// caller can still read what the user entered. QueryUnload is told how the unload started (the
// close box, code and a system shutdown: dialog_closing.scn, as the biller dialog answers each
// its own way; a show left open: the runner's tests), and an unloaded form leaves the collection
// that Unload_From_Remote walks.
TEST(Lifecycle, ModalShowReturnsWhenTheFormIsUnloadedOrHidden) {
  struct Case {
    const char* what;
    std::function<void(forms::Form&)> script;
    bool still_loaded;
    const char* query_unload;  // what QueryUnload was told, or nullptr
  };
  const Case cases[] = {
      {"hidden", [](forms::Form& f) { f.Hide(); }, true, nullptr},
      {"task list", [](forms::Form& f) { f.Unload(forms::unload_mode::kTaskList); }, false,
       "QueryUnload 3"},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    Harness h;
    bool was_modal = false;
    h.driver.script = [&](forms::Form& f) {
      was_modal = f.IsModal() && f.Visible();
      forms::user::Type(h.C("txtCode"), "kept");
      row.script(f);
    };
    h.form->Show(true);
    EXPECT_TRUE(was_modal);
    EXPECT_FALSE(h.form->Visible());
    EXPECT_EQ(h.form->IsLoaded(), row.still_loaded);
    EXPECT_EQ(IsLoadedInApp(h, *h.form), row.still_loaded);
    if (row.still_loaded) {
      EXPECT_EQ(h.form->Find("txtCode")->Text(), "kept");
    }
    if (row.query_unload != nullptr) {
      EXPECT_EQ(h.form->log, (std::vector<std::string>{row.query_unload, "Unload"}));
    }
  }
}

}  // namespace
}  // namespace nvrandom::forms_test
