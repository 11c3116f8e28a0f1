// The foreign bank details as a user meets them: the biller dialog is open (international, with
// a stored bank), its banking information button opens frmFXBankInfo with the stored bank, OK is
// pressed without a change, and what comes back is stored into the record and the dialog
// unloaded.
#include <benchmark/benchmark.h>

#include <string>

#include "api/cls_random.h"
#include "app/headless_services.h"
#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "forms/application.h"
#include "forms/form.h"
#include "forms/user_input.h"
#include "installation_tree.h"

namespace nvrandom {
namespace {

// Presses OK as soon as the foreign bank details are up.
class OkWhenShown final : public forms::ModalDriver {
 public:
  void RunModal(forms::Form& form) override { forms::user::Click(form.Ctl("cmd_ok")); }
};

void BM_ForeignBankOpenOkStore(benchmark::State& state) {
  scenario::InstallationTree tree;
  if (!tree.ok()) return state.SkipWithError("cannot make the installation tree");
  headless::HeadlessServices headless = headless::MakeHeadlessServices(tree.root() + "Windows");
  Context ctx{std::move(headless.services)};
  ClsRandom cls{ctx};
  cls.DLLPath(tree.install());
  cls.Provpostalstr("NLANSBPECNBEQCGQCHQCJONKONLONMONNONPMBRSKSABTBCVNTXNUXYTY");
  cls.PayeeName("EURO WIDGETS");
  cls.PayeeCurrency("EUR");
  cls.PayeeCountry("DE");
  cls.PayeeFXBankName("DEUTSCHE BANK");
  cls.PayeeFXBankAddress("TAUNUSANLAGE 12");
  cls.PayeeFXBankCity("FRANKFURT");
  cls.PayeeFXBankProv("HESSEN");
  cls.PayeeFXBankCountry("DE");
  cls.PayeeFXBankAccount("DE89370400440532013000");
  cls.PayeeFXBankSwift("DEUTDEFF");

  auto biller = frmRandomInfo::Create(ctx, nullptr);
  biller->Show(false);
  OkWhenShown driver;
  ctx.forms().SetModalDriver(&driver);
  forms::Control& button = biller->Ctl("cmdFXBankingInfo");
  for (auto _ : state) forms::user::Click(button);

  // Every pass was accepted at once and stored the bank as it was.
  if (!headless.message_box->shown.empty()) {
    state.SkipWithError(
        ("a message box was shown: " + headless.message_box->shown[0].text).c_str());
  } else if (ctx.forms().ActiveForm() != biller.get() || biller->FXBankChanged() ||
             cls.PayeeFXBankAccount() != "DE89370400440532013000" ||
             cls.PayeeFXBankSwift() != "DEUTDEFF") {
    state.SkipWithError("the foreign bank details were not accepted unchanged");
  }
  ctx.forms().SetModalDriver(nullptr);
  biller->Unload();
}
BENCHMARK(BM_ForeignBankOpenOkStore)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace nvrandom
