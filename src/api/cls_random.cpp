#include "api/cls_random.h"

#include <memory>
#include <string>
#include <vector>

#include "api/property_table.h"
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

#define NVRANDOM_IGNORE(...)

namespace {

// The class's handlers of the connected dialog's events: each writes its label and raises the
// class's event of the same name to every advised sink. It is the class's connection point, and
// shared: a host may release the class inside its handler, so a raise keeps the relay (its sinks)
// alive until it has reached every sink, and touches the class only before the first.
class Relay final : public RandomInfoEvents, public std::enable_shared_from_this<Relay> {
 public:
  explicit Relay(Context& ctx) : ctx_(ctx) {}

#define NVRANDOM_RELAY_EVENT(dispid, name, parameters, arguments) \
  void name parameters override {                                 \
    TraceEntry(ctx_, "ClsRandom - frmRandomInfo_", #name);        \
    Raise([&](ClsRandomEvents& sink) { sink.name arguments; });   \
  }
  NVRANDOM_CLSRANDOM_EVENTS(NVRANDOM_RELAY_EVENT)
#undef NVRANDOM_RELAY_EVENT

  uint32_t Advise(ClsRandomEvents& sink) {
    sinks_.push_back(&sink);
    return static_cast<uint32_t>(sinks_.size());
  }
  bool Unadvise(uint32_t cookie) {
    if (cookie == 0 || cookie > sinks_.size() || sinks_[cookie - 1] == nullptr) return false;
    sinks_[cookie - 1] = nullptr;
    return true;
  }

 private:
  template <class F>
  void Raise(F&& deliver) {
    const auto keep = shared_from_this();
    // A sink may unadvise (or advise another) while it is called: walk the slots by index.
    for (size_t i = 0; i < sinks_.size(); ++i) {
      if (ClsRandomEvents* sink = sinks_[i]) deliver(*sink);
    }
  }

  Context& ctx_;
  std::vector<ClsRandomEvents*> sinks_;  // slot = cookie - 1; nullptr once unadvised
};

}  // namespace

struct ClsRandom::Impl {
  explicit Impl(Context& c) : ctx(c), relay(std::make_shared<Relay>(c)) {}

  void Trace(std::string_view procedure) { TraceEntry(ctx, "ClsRandom - ", procedure); }
  frmRandomInfo& Connected() {
    if (!connected) connected = frmRandomInfo::Create(ctx, relay.get());
    return *connected;
  }

  Context& ctx;
  std::shared_ptr<Relay> relay;
  std::shared_ptr<frmRandomInfo> connected;
};

ClsRandom::ClsRandom(Context& ctx) : impl_(std::make_unique<Impl>(ctx)) {
  impl_->Trace("Class_Initialize");
  ComponentStore& s = ctx.store;
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
  if (impl_->connected) impl_->connected->Disconnect();
}

Context& ClsRandom::context() const {
  return impl_->ctx;
}

namespace {
const MemberInfo& Found(std::string_view name, MemberKind kind) {
  const MemberInfo* info = FindMember(name);
  if (info == nullptr || info->kind != kind) throw RuntimeError(vb_error::kObjectDoesNotSupport);
  return *info;
}
}  // namespace

void ClsRandom::Let(std::string_view property, const Variant& value) {
  const MemberInfo& info = Found(property, MemberKind::kProperty);
  LetProperty(impl_->ctx, static_cast<PropertyId>(info.index), value);
}

Variant ClsRandom::Get(std::string_view property) {
  const MemberInfo& info = Found(property, MemberKind::kProperty);
  return GetProperty(impl_->ctx, static_cast<PropertyId>(info.index));
}

Variant ClsRandom::Call(std::string_view method) {
  switch (static_cast<MethodId>(Found(method, MemberKind::kMethod).index)) {
#define NVRANDOM_CALL_Long(name) return Variant(name());
#define NVRANDOM_CALL_Void(name) \
  name();                        \
  return Variant();
#define NVRANDOM_CALL(dispid, name, result) \
  case MethodId::name: {                    \
    NVRANDOM_CALL_##result(name)            \
  }
    NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_IGNORE, NVRANDOM_CALL)
#undef NVRANDOM_CALL
#undef NVRANDOM_CALL_Long
#undef NVRANDOM_CALL_Void
  }
  return Variant();
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
#define NVRANDOM_GETTER_LetGet(name, type)                                    \
  NVRANDOM_TYPE_##type ClsRandom::name() {                                    \
    return NVRANDOM_UNWRAP_##type(GetProperty(impl_->ctx, PropertyId::name)); \
  }
#define NVRANDOM_GETTER_Let(name, type)
#define NVRANDOM_TYPED_PROPERTY(dispid, name, type, access, trace)          \
  void ClsRandom::name(const NVRANDOM_TYPE_##type& value) {                 \
    LetProperty(impl_->ctx, PropertyId::name, NVRANDOM_WRAP_##type(value)); \
  }                                                                         \
  NVRANDOM_GETTER_##access(name, type)
NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_TYPED_PROPERTY, NVRANDOM_IGNORE)
#undef NVRANDOM_TYPED_PROPERTY

int32_t ClsRandom::ShowForm() {
  Context& ctx = impl_->ctx;
  impl_->Trace("ShowForm");
  ctx.store.closeResult = 0;
  ctx.store.importFlag = 0;
  // An instance of its own, not connected: its events do not reach the host.
  std::shared_ptr<frmRandomInfo> dialog;
  int32_t result = 0;
  try {
    dialog = frmRandomInfo::Create(ctx, nullptr);
    dialog->Show(true);
    result = ctx.store.closeResult;
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

int32_t ClsRandom::ShowForm_Remote() {
  Context& ctx = impl_->ctx;
  impl_->Trace("ShowForm_Remote");
  ctx.store.importFlag = 0;
  frmRandomInfo& dialog = impl_->Connected();
  dialog.Show(false);
  if (dialog.IsLoaded()) dialog.Move(0, 0);
  return 0;
}

int32_t ClsRandom::ShowForm_Import() {
  Context& ctx = impl_->ctx;
  impl_->Trace("ShowForm_Import");
  ctx.store.importFlag = -1;
  auto dialog = frmRandomInfo::Create(ctx, nullptr);
  // Touching the frame loads the dialog: set-up runs first, the import's changes follow.
  dialog->Ctl("Frame1").SetCaption(random_info_text::kImportFrameCaption);
  dialog->LockForImport(!validation::TrimBlanks(ctx.store.PayeeFXBankCity).empty());
  dialog->Ctl("cmd_cancel").SetVisible(false);
  dialog->Ctl("cmd_ok").SetCaption(random_info_text::kCloseCaption);
  dialog->Show(true);
  if (dialog->IsLoaded()) dialog->Unload(forms::unload_mode::kCode);
  return 0;
}

int32_t ClsRandom::Get_hWnd() {
  impl_->Trace("Get_hWnd");
  frmRandomInfo& dialog = impl_->Connected();
  dialog.EnsureLoaded();
  return static_cast<int32_t>(dialog.hWnd());
}

int32_t ClsRandom::Get_Height() {
  impl_->Trace("Get_Height");
  frmRandomInfo& dialog = impl_->Connected();
  dialog.EnsureLoaded();
  return dialog.Height();
}

int32_t ClsRandom::Get_Width() {
  impl_->Trace("Get_Width");
  frmRandomInfo& dialog = impl_->Connected();
  dialog.EnsureLoaded();
  return dialog.Width();
}

void ClsRandom::Unload_From_Remote() {
  Context& ctx = impl_->ctx;
  impl_->Trace("Unload_From_Remote");
  for (const auto& form : ctx.forms().LoadedForms()) {
    if (form->Name() == random_info_text::kFormName) form->Unload(forms::unload_mode::kCode);
  }
}

uint32_t ClsRandom::Advise(ClsRandomEvents& sink) {
  return impl_->relay->Advise(sink);
}

bool ClsRandom::Unadvise(uint32_t cookie) {
  return impl_->relay->Unadvise(cookie);
}

}  // namespace nvrandom
