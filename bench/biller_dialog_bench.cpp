// Opening the biller dialog as a host does: a modal ShowForm with the sample installation (the
// whole country file deciphered and read, the host's currency list and provinces), set-up, the
// first activation with its restyling, then Cancel. And one restyling pass on its own.
#include <benchmark/benchmark.h>

#include <string>

#include "api/cls_random.h"
#include "app/headless_services.h"
#include "component/context.h"
#include "dialogs/biller/country_file_reader.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/support/mod_form_controller.h"
#include "forms/application.h"
#include "forms/form.h"
#include "forms/user_input.h"
#include "installation_tree.h"

namespace nvrandom {
namespace {

// A sample of the host's currency list: code and description per row.
StringArray HostCurrencies() {
  static constexpr const char* kRows[][2] = {
      {"USD", "US Dollar"},        {"EUR", "Euro"},
      {"GBP", "Pound Sterling"},   {"MXN", "Mexican Peso"},
      {"CHF", "Swiss Franc"},      {"CNY", "Yuan Renminbi"},
      {"INR", "Indian Rupee"},     {"HKD", "Hong Kong Dollar"},
      {"SGD", "Singapore Dollar"}, {"NZD", "New Zealand Dollar"}};
  constexpr int32_t kCount = static_cast<int32_t>(std::size(kRows));
  StringArray list = StringArray::TwoDimensional(0, 1, 0, kCount - 1);
  for (int32_t i = 0; i < kCount; ++i) {
    list.at(0, i) = kRows[i][0];
    list.at(1, i) = kRows[i][1];
  }
  return list;
}

struct Installed {
  scenario::InstallationTree tree;
  headless::HeadlessServices headless = headless::MakeHeadlessServices(tree.root() + "Windows");
  Context ctx{std::move(headless.services)};
  ClsRandom cls{ctx};

  Installed() {
    cls.DLLPath(tree.install());
    cls.Provpostalstr("NLANSBPECNBEQCGQCHQCJONKONLONMONNONPMBRSKSABTBCVNTXNUXYTY");
    cls.IPCurrencyList(HostCurrencies());
    cls.PayeeName("ACME HYDRO");
    cls.PayeeStreet("1 MAIN ST");
    cls.PayeeCity("OTTAWA");
    cls.PayeeProv("ON");
  }
};

// Cancels as soon as the modal dialog is up: by then it has loaded and been activated.
class CancelWhenActive final : public forms::ModalDriver {
 public:
  void RunModal(forms::Form& form) override { forms::user::Click(form.Ctl("cmd_cancel")); }
};

void BM_ShowFormToActivateThenCancel(benchmark::State& state) {
  Installed c;
  if (!c.tree.ok()) return state.SkipWithError("cannot make the installation tree");
  {
    // The whole sample file is offered: every country of it, not the two a failed read leaves.
    auto dialog = frmRandomInfo::Create(c.ctx, nullptr);
    dialog->EnsureLoaded();
    const int countries = dialog->Ctl("ran_payee_country").ListCount();
    dialog->Unload();
    state.counters["countries"] = countries;
    const size_t sample = ReadCountryRecords(scenario::SampleCountries()).size();
    if (countries < 3 || static_cast<size_t>(countries) < sample) {
      return state.SkipWithError("the sample country file was not read whole");
    }
  }
  CancelWhenActive driver;
  c.ctx.forms().SetModalDriver(&driver);
  for (auto _ : state) {
    if (c.cls.ShowForm() != 50000) return state.SkipWithError("the dialog was not cancelled");
  }
  if (!c.headless.message_box->shown.empty()) {
    state.SkipWithError(
        ("a message box was shown: " + c.headless.message_box->shown[0].text).c_str());
  }
}
BENCHMARK(BM_ShowFormToActivateThenCancel)->Unit(benchmark::kMicrosecond);

// One pass over the loaded dialog. "Same style" finds every property set already (the usual
// activation); "style change" alternates two styles, so every pass changes and notifies them.
void RestylePasses(benchmark::State& state, bool alternate) {
  Installed c;
  if (!c.tree.ok()) return state.SkipWithError("cannot make the installation tree");
  auto dialog = frmRandomInfo::Create(c.ctx, nullptr);
  dialog->EnsureLoaded();
  modFormController controller(c.ctx);
  int16_t style = 0;
  for (auto _ : state) {
    if (alternate) c.ctx.store.FormStyle = style = static_cast<int16_t>(2 - style);
    controller.reStyleForm(*dialog);
  }
  dialog->Unload();
}

void BM_ReStyleFormSameStyle(benchmark::State& state) {
  RestylePasses(state, false);
}
BENCHMARK(BM_ReStyleFormSameStyle)->Unit(benchmark::kMicrosecond);

void BM_ReStyleFormStyleChange(benchmark::State& state) {
  RestylePasses(state, true);
}
BENCHMARK(BM_ReStyleFormStyleChange)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace nvrandom
