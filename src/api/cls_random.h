#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "api/class_members.h"
#include "component/variant.h"

namespace nvrandom {

class Context;

// The events of ClsRandom, in their interface order. A host implements the ones it needs.
// CSBOK: the dialog accepted the biller (read it back through the properties).
// CurrentFieldTop: a field of the embedded dialog took the focus; `Top` is its top, in twips.
// Cancel: the user cancelled or closed the dialog.
// ViewSampleCheque: the dialog asks the host to show a sample cheque.
namespace detail {
template <class... T>
constexpr void Unused(const T&...) {}
}  // namespace detail

class ClsRandomEvents {
 public:
  virtual ~ClsRandomEvents() = default;
#define NVRANDOM_EVENT_HANDLER(dispid, name, parameters, arguments) \
  virtual void name parameters {                                    \
    detail::Unused arguments;                                       \
  }
  NVRANDOM_CLSRANDOM_EVENTS(NVRANDOM_EVENT_HANDLER)
#undef NVRANDOM_EVENT_HANDLER
};

// The same events as callbacks, for hosts that prefer lambdas: On<event>.
struct ClsRandomCallbacks final : ClsRandomEvents {
#define NVRANDOM_EVENT_CALLBACK(dispid, name, parameters, arguments) \
  std::function<void parameters> On##name;                           \
  void name parameters override {                                    \
    if (On##name) On##name arguments;                                \
  }
  NVRANDOM_CLSRANDOM_EVENTS(NVRANDOM_EVENT_CALLBACK)
#undef NVRANDOM_EVENT_CALLBACK
};

// The component's one public class, its members generated from class_members.h. A host creates
// it, sets the biller and its context through the properties, shows the biller dialog and reads
// the edited biller back. Every instance of a thread shares one biller record: setting PayeeName
// on one is seen through all.
//
// Properties: one typed Let (a setter) and, where the host may read it, one Get (a getter) per
// property, named as the property; Let and Get by name take and give a Variant, as a late-bound
// host would, and Call runs a method by name. Failed calls throw RuntimeError with the platform's
// error number (9 for a Prov_areacode row past the table, 13 for a value of the wrong type, 451
// for reading a property that may only be set, 438 for a name that is not such a member).
//
// Methods: ShowForm is a modal display returning the close result (50000: cancelled, or accepted
// without change) or the number of a run-time error that stopped the show; ShowForm_Remote shows
// the connected dialog embedded and modeless at (0, 0) and returns 0 at once; ShowForm_Import is
// a modal, read-only display of an imported biller; Get_hWnd, Get_Height and Get_Width give the
// connected dialog's window handle and size in twips (creating it on first use);
// Unload_From_Remote closes every biller dialog of the component by code, without Cancel.
//
// Events reach the sinks advised on this instance, from the dialog shown by ShowForm_Remote (the
// instance connected to the class); a dialog shown by ShowForm raises none to the host. A host
// may release the instance inside one of its handlers.
class ClsRandom {
 public:
  // An instance on this thread's shared component state (defined by the composition root).
  ClsRandom();
  // An instance on an explicit component state (tests, the scenario runner, a host with its own).
  explicit ClsRandom(Context& ctx);
  ~ClsRandom();
  ClsRandom(const ClsRandom&) = delete;
  ClsRandom& operator=(const ClsRandom&) = delete;

  void Let(std::string_view property, const Variant& value);
  Variant Get(std::string_view property);
  Variant Call(std::string_view method);

#define NVRANDOM_TYPE_Integer int16_t
#define NVRANDOM_TYPE_Flag int16_t
#define NVRANDOM_TYPE_String std::string
#define NVRANDOM_TYPE_Global std::string
#define NVRANDOM_TYPE_Variant Variant
#define NVRANDOM_TYPE_Long int32_t
#define NVRANDOM_TYPE_Void void
#define NVRANDOM_GETTER_LetGet(name, type) type name();
#define NVRANDOM_GETTER_Let(name, type)
#define NVRANDOM_TYPED_PROPERTY(dispid, name, type, access, trace) \
  void name(const NVRANDOM_TYPE_##type& value);                    \
  NVRANDOM_GETTER_##access(name, NVRANDOM_TYPE_##type)
#define NVRANDOM_TYPED_METHOD(dispid, name, result) NVRANDOM_TYPE_##result name();
  NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_TYPED_PROPERTY, NVRANDOM_TYPED_METHOD)
#undef NVRANDOM_TYPED_METHOD
#undef NVRANDOM_TYPED_PROPERTY
#undef NVRANDOM_GETTER_Let
#undef NVRANDOM_GETTER_LetGet
#undef NVRANDOM_TYPE_Integer
#undef NVRANDOM_TYPE_Flag
#undef NVRANDOM_TYPE_String
#undef NVRANDOM_TYPE_Global
#undef NVRANDOM_TYPE_Variant
#undef NVRANDOM_TYPE_Long
#undef NVRANDOM_TYPE_Void

  // Connection points: a sink receives the events until it is unadvised. The cookie is never 0.
  uint32_t Advise(ClsRandomEvents& sink);
  // False for a cookie that is not connected.
  bool Unadvise(uint32_t cookie);

  Context& context() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace nvrandom
