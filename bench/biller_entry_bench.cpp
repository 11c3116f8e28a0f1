// The biller dialog at the speed of a person's input: one typed character in the street, the
// whole acceptance of a valid domestic business biller, and the monkey's actions.
#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <vector>

#include "app/headless_services.h"
#include "biller_monkey.h"
#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "forms/user_input.h"
#include "validation/address_rules.h"

namespace nvrandom {
namespace {

struct Headless {
  headless::HeadlessServices headless = headless::MakeHeadlessServices();
  headless::RecordingMessageBox* boxes = headless.message_box;
  Context ctx{std::move(headless.services)};
};

// One key typed and one Backspace, each through KeyDown, KeyPress, the editing and Change (the
// street's filter, upper-casing and cleansing): per iteration two keys.
void BM_TypeAndEraseInStreet(benchmark::State& state) {
  Headless h;
  fuzz::SetLayout(h.ctx.store, 0);
  fuzz::CountingEvents events;
  auto dialog = frmRandomInfo::Create(h.ctx, &events);
  dialog->Show(false);
  forms::Control& street = dialog->Ctl("ran_payee_street");
  forms::user::ClearText(street);
  if (!forms::user::Key(street, 'a') || street.Text() != "A") {
    return state.SkipWithError("the street does not take a typed key");
  }
  forms::user::Key(street, 8);
  for (auto _ : state) {
    forms::user::Key(street, 'a');
    forms::user::Key(street, 8);
  }
  if (!street.Text().empty()) state.SkipWithError("the street did not end empty");
  state.SetItemsProcessed(2 * state.iterations());
  dialog->Unload();
}
BENCHMARK(BM_TypeAndEraseInStreet)->Unit(benchmark::kMicrosecond);

// From the OK press to CSBOK and the unload, with the built-in verifier; opening the dialog is
// not timed.
void BM_AcceptDomesticBusiness(benchmark::State& state) {
  Headless h;
  fuzz::CountingEvents events;
  for (auto _ : state) {
    state.PauseTiming();
    fuzz::SetLayout(h.ctx.store, 0);
    h.ctx.store.PayeeEmail = "pay@acme.ca";
    h.ctx.store.PayeeBankAccount.clear();
    h.ctx.store.PayeeBankId.clear();
    h.ctx.store.PayeeBankTransit.clear();
    auto dialog = frmRandomInfo::Create(h.ctx, &events);
    dialog->Show(false);
    forms::Control& ok = dialog->Ctl("cmd_ok");
    const int before = events.accepted;
    state.ResumeTiming();
    forms::user::Click(ok);
    state.PauseTiming();
    if (events.accepted != before + 1) {
      state.SkipWithError("the biller was not accepted");
      break;
    }
    dialog.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_AcceptDomesticBusiness)->Unit(benchmark::kMicrosecond);

// The monkey over a fixed pseudo-random input, all four layouts: actions per second.
void BM_MonkeyActions(benchmark::State& state) {
  Headless h;
  std::mt19937 random(8);
  std::vector<uint8_t> bytes(20000);
  size_t actions = 0;
  for (auto _ : state) {
    for (uint8_t layout = 0; layout < 4; ++layout) {
      for (auto& b : bytes) b = static_cast<uint8_t>(random());
      bytes[0] = layout;
      fuzz::ByteReader in(bytes.data(), bytes.size());
      actions += fuzz::RunBillerMonkey(h.ctx, *h.boxes, in, 64);
      h.boxes->shown.clear();
    }
  }
  state.counters["actions"] =
      benchmark::Counter(static_cast<double>(actions), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_MonkeyActions)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace nvrandom
