#include "api/cls_random.h"

#include <string>

#include "component/context.h"
#include "component/trace.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_events.h"
#include "dialogs/biller/random_info_texts.h"
#include "forms/application.h"
#include "platform/runtime_error.h"
#include "validation/address_rules.h"
#include "validation/text.h"

namespace nvrandom {

// The class's handlers of the connected dialog's events: each writes its label and raises the
// class's event of the same name to every advised sink.
class ClsRandom::Relay final : public RandomInfoEvents {
 public:
  explicit Relay(ClsRandom& owner) : owner_(owner) {}

  void CSBOK() override {
    owner_.Trace("frmRandomInfo_CSBOK");
    Raise([](ClsRandomEvents& s) { s.CSBOK(); });
  }
  void CurrentFieldTop(int16_t Top) override {
    owner_.Trace("frmRandomInfo_CurrentFieldTop");
    Raise([Top](ClsRandomEvents& s) { s.CurrentFieldTop(Top); });
  }
  void Cancel() override {
    owner_.Trace("frmRandomInfo_Cancel");
    Raise([](ClsRandomEvents& s) { s.Cancel(); });
  }
  void ViewSampleCheque() override {
    owner_.Trace("frmRandomInfo_ViewSampleCheque");
    Raise([](ClsRandomEvents& s) { s.ViewSampleCheque(); });
  }

 private:
  template <class F>
  void Raise(F&& deliver) {
    // A sink may unadvise (or advise another) while it is called: walk the slots by index.
    for (size_t i = 0; i < owner_.sinks_.size(); ++i) {
      if (ClsRandomEvents* sink = owner_.sinks_[i]) deliver(*sink);
    }
  }

  ClsRandom& owner_;
};

ClsRandom::ClsRandom() : ClsRandom(Context::ForThisThread()) {}

ClsRandom::ClsRandom(Context& ctx) : ctx_(ctx), relay_(std::make_unique<Relay>(*this)) {
  Trace("Class_Initialize");
  ComponentStore& s = ctx_.store;
  s.verifyBusinessNumberFlag = 0;
  s.importFlag = 0;
  s.IPCurrencyList = StringArray::TwoDimensional(0, 0, 0, 0);
  s.poBoxWords = validation::SplitPoBoxWords();
  s.WhatKindOfBiller = " ";
  s.CurrencyCodeFromMain = "CAD";
  s.gstrCountryListAll = "Y";
}

ClsRandom::~ClsRandom() {
  // A dialog still on screen outlives the class; its events have nobody to reach any more.
  if (connected_) connected_->Disconnect();
}

void ClsRandom::Trace(std::string_view procedure) {
  TraceEntry(ctx_, "ClsRandom - ", procedure);
}

void ClsRandom::Let(std::string_view property, const Variant& value) {
  const PropertyInfo* info = FindProperty(property);
  if (info == nullptr) throw RuntimeError(vb_error::kObjectDoesNotSupport);
  LetProperty(ctx_, info->id, value);
}

Variant ClsRandom::Get(std::string_view property) {
  const PropertyInfo* info = FindProperty(property);
  if (info == nullptr) throw RuntimeError(vb_error::kObjectDoesNotSupport);
  return GetProperty(ctx_, info->id);
}

namespace {
int16_t AsInteger(const Variant& v) {
  return static_cast<int16_t>(std::get<int32_t>(v.value));
}
std::string AsString(Variant v) {
  return std::get<std::string>(std::move(v.value));
}
}  // namespace

#define NVRANDOM_WRAP_Integer(value) Variant(int32_t{value})
#define NVRANDOM_WRAP_Flag(value) Variant(int32_t{value})
#define NVRANDOM_WRAP_String(value) Variant(value)
#define NVRANDOM_WRAP_Global(value) Variant(value)
#define NVRANDOM_WRAP_Variant(value) value
#define NVRANDOM_UNWRAP_Integer(v) AsInteger(v)
#define NVRANDOM_UNWRAP_Flag(v) AsInteger(v)
#define NVRANDOM_UNWRAP_String(v) AsString(v)
#define NVRANDOM_UNWRAP_Variant(v) v
#define NVRANDOM_TYPE_Integer int16_t
#define NVRANDOM_TYPE_Flag int16_t
#define NVRANDOM_TYPE_String std::string
#define NVRANDOM_TYPE_Global std::string
#define NVRANDOM_TYPE_Variant Variant
#define NVRANDOM_GETTER_LetGet(name, type)                              \
  NVRANDOM_TYPE_##type ClsRandom::name() {                              \
    return NVRANDOM_UNWRAP_##type(GetProperty(ctx_, PropertyId::name)); \
  }
#define NVRANDOM_GETTER_Let(name, type)
#define NVRANDOM_TYPED_PROPERTY(name, type, access, trace)            \
  void ClsRandom::name(const NVRANDOM_TYPE_##type& value) {           \
    LetProperty(ctx_, PropertyId::name, NVRANDOM_WRAP_##type(value)); \
  }                                                                   \
  NVRANDOM_GETTER_##access(name, type)
NVRANDOM_CLSRANDOM_PROPERTIES(NVRANDOM_TYPED_PROPERTY)
#undef NVRANDOM_TYPED_PROPERTY

int32_t ClsRandom::ShowForm() {
  Trace("ShowForm");
  ctx_.store.closeResult = 0;
  ctx_.store.importFlag = 0;
  // An instance of its own, not connected: its events do not reach the host.
  std::shared_ptr<frmRandomInfo> dialog;
  int32_t result = 0;
  try {
    dialog = frmRandomInfo::Create(ctx_, nullptr);
    dialog->Show(true);
    result = ctx_.store.closeResult;
  } catch (...) {
    result = CurrentErrorNumber();
  }
  if (dialog && dialog->IsLoaded()) {
    try {
      dialog->Unload(forms::unload_mode::kCode);
    } catch (...) {
      // The show has failed already; its error is the result.
    }
  }
  return result;
}

frmRandomInfo& ClsRandom::Connected() {
  if (!connected_) connected_ = frmRandomInfo::Create(ctx_, relay_.get());
  return *connected_;
}

int32_t ClsRandom::ShowForm_Remote() {
  Trace("ShowForm_Remote");
  ctx_.store.importFlag = 0;
  frmRandomInfo& dialog = Connected();
  dialog.Show(false);
  if (dialog.IsLoaded()) dialog.Move(0, 0);
  return 0;
}

int32_t ClsRandom::ShowForm_Import() {
  Trace("ShowForm_Import");
  ctx_.store.importFlag = -1;
  auto dialog = frmRandomInfo::Create(ctx_, nullptr);
  // Touching the frame loads the dialog: set-up runs first, the import's changes follow.
  dialog->Ctl("Frame1").SetCaption(random_info_text::kImportFrameCaption);
  dialog->LockForImport(!validation::TrimBlanks(ctx_.store.PayeeFXBankCity).empty());
  dialog->Ctl("cmd_cancel").SetVisible(false);
  dialog->Ctl("cmd_ok").SetCaption(random_info_text::kCloseCaption);
  dialog->Show(true);
  if (dialog->IsLoaded()) dialog->Unload(forms::unload_mode::kCode);
  return 0;
}

int32_t ClsRandom::Get_hWnd() {
  Trace("Get_hWnd");
  frmRandomInfo& dialog = Connected();
  dialog.EnsureLoaded();
  return static_cast<int32_t>(dialog.hWnd());
}

int32_t ClsRandom::Get_Height() {
  Trace("Get_Height");
  frmRandomInfo& dialog = Connected();
  dialog.EnsureLoaded();
  return dialog.Height();
}

int32_t ClsRandom::Get_Width() {
  Trace("Get_Width");
  frmRandomInfo& dialog = Connected();
  dialog.EnsureLoaded();
  return dialog.Width();
}

void ClsRandom::Unload_From_Remote() {
  Trace("Unload_From_Remote");
  for (const auto& form : ctx_.forms().LoadedForms()) {
    if (form->Name() == random_info_text::kFormName) form->Unload(forms::unload_mode::kCode);
  }
}

uint32_t ClsRandom::Advise(ClsRandomEvents& sink) {
  sinks_.push_back(&sink);
  return static_cast<uint32_t>(sinks_.size());
}

bool ClsRandom::Unadvise(uint32_t cookie) {
  if (cookie == 0 || cookie > sinks_.size() || sinks_[cookie - 1] == nullptr) return false;
  sinks_[cookie - 1] = nullptr;
  return true;
}

}  // namespace nvrandom
