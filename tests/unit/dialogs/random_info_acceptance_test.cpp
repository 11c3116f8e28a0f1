// A failure of the platform's regular-expression object, which no scenario can arrange: the
// web-address checks raise it to their caller, and the acceptance's error trap reports it under
// the procedure's label and leaves the dialog open. (What the checks answer is in checks_email.scn
// and the biller_accept_*.scn scenarios.)
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_events.h"
#include "dialogs/biller/web_address_checks.h"
#include "forms/user_input.h"
#include "platform/runtime_error.h"
#include "support/test_host.h"

namespace nvrandom {
namespace {

class UnavailableRegex final : public RegexService {
 public:
  bool Test(std::string_view, std::string_view, bool) override {
    throw RuntimeError(429, "ActiveX component can't create object");
  }
};

struct Events final : RandomInfoEvents {
  void CSBOK() override { ++accepted; }
  void CurrentFieldTop(int16_t) override {}
  void Cancel() override {}
  void ViewSampleCheque() override {}
  int accepted = 0;
};

TEST(RandomInfoAcceptance, AFailingRegexIsRaisedAndTheAcceptanceReportsIt) {
  testing::Host h;
  ComponentStore& s = h.ctx.store;
  s.gstrInstallRoot = ::testing::TempDir();
  s.Provpostalstr = "ONKONLONMONNONP";
  s.PayeeStreet = "1 MAIN ST";
  s.PayeeCity = "OTTAWA";
  s.PayeeProv = "ON";
  s.PayeePostal = "K1A0B1";
  s.PayeePhoneArea = "613";
  s.PayeePhoneNumber = "5551234";
  s.PayeeEmail = "pay@acme.ca";
  s.PayeeIndBusnTag = "2";
  s.PayeeIndBussFlg = " ";
  h.ctx.services.regex = std::make_unique<UnavailableRegex>();
  Events events;
  auto dialog = frmRandomInfo::Create(h.ctx, &events);
  dialog->Show(false);
  h.boxes.shown.clear();

  forms::user::Click(dialog->Ctl("cmd_ok"));

  ASSERT_EQ(h.boxes.shown.size(), 1U);
  EXPECT_NE(h.boxes.shown[0].text.find("RandomInfo - cmd_ok_Click"), std::string::npos)
      << h.boxes.shown[0].text;
  EXPECT_NE(h.boxes.shown[0].text.find("429"), std::string::npos);
  EXPECT_EQ(events.accepted, 0);
  EXPECT_TRUE(dialog->IsLoaded());
  EXPECT_EQ(h.ctx.store.PayeeEmail, "pay@acme.ca");
  dialog->Unload();

  std::string message;
  EXPECT_THROW(ValidateWebsite(h.ctx, "www.example.com", message), RuntimeError);
  EXPECT_FALSE(ValidateEmailAddress(h.ctx, "a@b", message, false)) << "a short address is asked";
}

}  // namespace
}  // namespace nvrandom
