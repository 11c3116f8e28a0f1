#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/property_table.h"
#include "component/variant.h"

namespace nvrandom {

class Context;
class frmRandomInfo;

// The events of ClsRandom, in their interface order. A host implements the ones it needs.
class ClsRandomEvents {
 public:
  virtual ~ClsRandomEvents() = default;
  // The dialog accepted the biller: read it back through the properties.
  virtual void CSBOK() {}
  // A field of the embedded dialog took the focus; `Top` is its top, in twips.
  virtual void CurrentFieldTop(int16_t Top) { (void)Top; }
  // The user cancelled or closed the dialog.
  virtual void Cancel() {}
  // The dialog asks the host to show a sample cheque.
  virtual void ViewSampleCheque() {}
};

// The same events as callbacks, for hosts that prefer lambdas.
struct ClsRandomCallbacks final : ClsRandomEvents {
  std::function<void()> OnCSBOK;
  std::function<void(int16_t)> OnCurrentFieldTop;
  std::function<void()> OnCancel;
  std::function<void()> OnViewSampleCheque;

  void CSBOK() override {
    if (OnCSBOK) OnCSBOK();
  }
  void CurrentFieldTop(int16_t Top) override {
    if (OnCurrentFieldTop) OnCurrentFieldTop(Top);
  }
  void Cancel() override {
    if (OnCancel) OnCancel();
  }
  void ViewSampleCheque() override {
    if (OnViewSampleCheque) OnViewSampleCheque();
  }
};

// The component's one public class. A host creates it, sets the biller and its context through
// the properties, shows the biller dialog and reads the edited biller back. Every instance of a
// thread shares one biller record: setting PayeeName on one is seen through all.
//
// Properties: one typed Let (a setter) and, where the host may read it, one Get (a getter) per
// property, named as the property; Let and Get by name take and give a Variant, as a late-bound
// host would. Failed calls throw RuntimeError with the platform's error number (9 for a
// Prov_areacode row past the table, 13 for a value of the wrong type, 451 for reading a property
// that may only be set, 438 for a name that is not a property).
//
// Events reach the sinks advised on this instance, from the dialog shown by ShowForm_Remote (the
// instance connected to the class); a dialog shown by ShowForm raises none to the host.
class ClsRandom {
 public:
  // An instance on this thread's shared component state.
  ClsRandom();
  // An instance on an explicit component state (tests, the scenario runner, a host with its own).
  explicit ClsRandom(Context& ctx);
  ~ClsRandom();
  ClsRandom(const ClsRandom&) = delete;
  ClsRandom& operator=(const ClsRandom&) = delete;

  void Let(std::string_view property, const Variant& value);
  Variant Get(std::string_view property);

#define NVRANDOM_TYPE_Integer int16_t
#define NVRANDOM_TYPE_Flag int16_t
#define NVRANDOM_TYPE_String std::string
#define NVRANDOM_TYPE_Global std::string
#define NVRANDOM_TYPE_Variant Variant
#define NVRANDOM_GETTER_LetGet(name, type) type name();
#define NVRANDOM_GETTER_Let(name, type)
#define NVRANDOM_TYPED_PROPERTY(name, type, access, trace) \
  void name(const NVRANDOM_TYPE_##type& value);            \
  NVRANDOM_GETTER_##access(name, NVRANDOM_TYPE_##type)
  NVRANDOM_CLSRANDOM_PROPERTIES(NVRANDOM_TYPED_PROPERTY)
#undef NVRANDOM_TYPED_PROPERTY
#undef NVRANDOM_GETTER_Let
#undef NVRANDOM_GETTER_LetGet
#undef NVRANDOM_TYPE_Integer
#undef NVRANDOM_TYPE_Flag
#undef NVRANDOM_TYPE_String
#undef NVRANDOM_TYPE_Global
#undef NVRANDOM_TYPE_Variant

  // Modal display; returns the close result (50000: cancelled, or accepted without change), or
  // the number of a run-time error that stopped the show.
  int32_t ShowForm();
  // Embedded, modeless display of the connected dialog at (0, 0); returns 0 at once.
  int32_t ShowForm_Remote();
  // Modal, read-only display of an imported biller; returns 0.
  int32_t ShowForm_Import();
  // Window handle, height and width (twips) of the connected dialog, created on first use.
  int32_t Get_hWnd();
  int32_t Get_Height();
  int32_t Get_Width();
  // Closes every biller dialog of the component, by code: no Cancel event.
  void Unload_From_Remote();

  // Connection points: a sink receives the events until it is unadvised. The cookie is never 0.
  uint32_t Advise(ClsRandomEvents& sink);
  // False for a cookie that is not connected.
  bool Unadvise(uint32_t cookie);

  Context& context() const {
    return ctx_;
  }

 private:
  class Relay;
  frmRandomInfo& Connected();
  void Trace(std::string_view procedure);

  Context& ctx_;
  std::unique_ptr<Relay> relay_;
  std::shared_ptr<frmRandomInfo> connected_;
  std::vector<ClsRandomEvents*> sinks_;  // slot = cookie - 1; nullptr once unadvised
};

}  // namespace nvrandom
