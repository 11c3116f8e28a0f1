#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "api/cls_random.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_design.h"
#include "forms/user_input.h"
#include "platform/runtime_error.h"
#include "support/test_host.h"

namespace nvrandom::testing {
namespace {

// The events a host received, but for the focused field's position, which each focus move
// reports.
struct RecordingSink final : ClsRandomEvents {
  void CSBOK() override { log += "CSBOK;"; }
  void CurrentFieldTop(int16_t) override {}
  void Cancel() override { log += "Cancel;"; }
  void ViewSampleCheque() override { log += "ViewSampleCheque;"; }
  std::string log;
};

std::vector<forms::Form*> OpenDialogs(Host& h) {
  std::vector<forms::Form*> dialogs;
  for (const auto& form : h.ctx.forms().LoadedForms()) {
    if (form->Name() == "frmRandomInfo") dialogs.push_back(form.get());
  }
  return dialogs;
}

forms::Form& RemoteDialog(Host& h) {
  forms::Form* front = h.ctx.forms().ActiveForm();
  EXPECT_NE(front, nullptr);
  return *front;
}

// ShowForm resets the result and the import flag before the show, and a run-time error that
// stops the show is its result; the dialog is released. The closing results a host sees, and
// Unload_From_Remote closing every instance's dialog, are in dialog_closing.scn.
TEST(DialogHosting, ARunTimeErrorInAModalShowIsItsResult) {
  Host h;
  ClsRandom cls(h.ctx);
  h.ctx.store.closeResult = 123;
  h.ctx.store.importFlag = -1;
  h.driver.script = [&](forms::Form&) {
    EXPECT_EQ(h.ctx.store.importFlag, 0);
    throw RuntimeError(7);
  };
  EXPECT_EQ(cls.ShowForm(), 7);
  EXPECT_TRUE(OpenDialogs(h).empty());
}

// The host asks for the handle and size of the connected dialog before showing it; they must be
// those of the instance that ShowForm_Remote then shows.
TEST(DialogHosting, ConnectedInstanceIsCreatedOnceOnFirstUse) {
  Host h;
  ClsRandom cls(h.ctx);
  const int32_t hwnd = cls.Get_hWnd();
  EXPECT_NE(hwnd, 0);
  EXPECT_EQ(cls.Get_hWnd(), hwnd);
  EXPECT_EQ(cls.Get_Width(), RandomInfoForm().width);
  EXPECT_EQ(cls.Get_Height(), RandomInfoForm().height);
  cls.ShowForm_Remote();
  EXPECT_EQ(RemoteDialog(h).hWnd(), hwnd);
  EXPECT_EQ(OpenDialogs(h).size(), 1U);
}

// Each help image opens its own topic of the help file in the installation root (with the
// "ShowTopic" window type); an index without a topic opens nothing.
TEST(DialogHosting, HelpTopics) {
  Host h;
  ClsRandom cls(h.ctx);
  cls.DLLPath(P("/opt/bills/NORVIK/Bin"));
  auto dialog = frmRandomInfo::Create(h.ctx, nullptr);
  const uint32_t topics[] = {506000012, 506000014, 506000014, 506000013, 506000018, 506000019};
  for (int i = 0; i < 6; ++i) dialog->Ctl("imgHelpCSFTInfo", i).events.Click();
  dialog->imgHelpCSFTInfo_Click(6);
  dialog->imgHelpCSFTInfo_Click(-1);
  dialog->Ctl("cmd_help").events.Click();
  ASSERT_EQ(h.help.calls.size(), 7U);
  for (size_t i = 0; i < 7; ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(h.help.calls[i].help_path, P("/opt/bills/NORVIK.CHM>ShowTopic"));
    EXPECT_EQ(h.help.calls[i].topic, i < 6 ? topics[i] : 506000012U);
  }
}

// A host may release the class inside its own event handler: the event still reaches the sinks
// connected after that one, and nothing released is touched while the event is raised (the
// address sanitizer reports it otherwise). Every event is relayed by the same code.
TEST(DialogHosting, HostReleasesTheClassInsideItsCancelHandler) {
  Host h;
  auto cls = std::make_unique<ClsRandom>(h.ctx);
  ClsRandomCallbacks releaser;
  releaser.OnCancel = [&] { cls.reset(); };
  RecordingSink later;
  cls->Advise(releaser);
  cls->Advise(later);
  cls->ShowForm_Remote();
  forms::user::Click(RemoteDialog(h).Ctl("cmd_cancel"));
  EXPECT_EQ(cls, nullptr);
  EXPECT_EQ(later.log, "Cancel;");
  EXPECT_TRUE(OpenDialogs(h).empty());
}

// Cookies name connections: never 0, one per Advise; Unadvise ends exactly that connection and
// refuses a cookie that is not connected.
TEST(DialogHosting, AdviseAndUnadvise) {
  Host h;
  ClsRandom cls(h.ctx);
  RecordingSink first;
  RecordingSink second;
  const uint32_t c1 = cls.Advise(first);
  const uint32_t c2 = cls.Advise(second);
  EXPECT_TRUE(c1 != 0 && c2 != 0 && c1 != c2) << c1 << " " << c2;
  EXPECT_FALSE(cls.Unadvise(0) || cls.Unadvise(c2 + 1));
  EXPECT_TRUE(cls.Unadvise(c1));
  EXPECT_FALSE(cls.Unadvise(c1));
  cls.ShowForm_Remote();
  forms::user::CloseBox(RemoteDialog(h));
  EXPECT_EQ(first.log, "");
  EXPECT_EQ(second.log, "Cancel;");
}

// A host may release the class while its embedded dialog is still open; the dialog is then held
// only by the runtime, and closing it by its cancel button (whose handler goes on after the
// unload) must neither touch freed memory nor reach the released class. (The close box, and the
// COM server kept until the dialog closes: dialog_client_test under Wine.)
TEST(DialogHosting, DialogOutlivesItsClass) {
  Host h;
  RecordingSink sink;
  {
    ClsRandom cls(h.ctx);
    cls.Advise(sink);
    cls.ShowForm_Remote();
  }
  ASSERT_EQ(OpenDialogs(h).size(), 1U);
  forms::user::Click(OpenDialogs(h).front()->Ctl("cmd_cancel"));
  EXPECT_TRUE(OpenDialogs(h).empty());
  EXPECT_EQ(sink.log, "");
}

}  // namespace
}  // namespace nvrandom::testing
