#include "dialogs/support/frm_cheque.h"

#include <array>
#include <string>
#include <vector>

#include "component/context.h"
#include "component/trace.h"
#include "forms/application.h"
#include "forms/control.h"

namespace nvrandom {

namespace {

using K = forms::ControlKind;

const forms::FormDesign kForm{"frmCheque", "Sample Cheque", 9000, 5400, false};

const std::array<forms::ControlDesign, 3> kControls = {{
    {.kind = K::kImage, .name = "picture", .left = 120, .top = 120, .width = 8700, .height = 3900},
    {.kind = K::kLabel,
     .name = "Label1",
     .caption = "Common Bank IDs:",
     .left = 120,
     .top = 4260,
     .width = 1800,
     .height = 255},
    {.kind = K::kDataList,
     .name = "cmbBankName",
     .left = 2040,
     .top = 4230,
     .width = 4500,
     .height = 315,
     .tab_index = 0},
}};

// Each row is added as one text: the institution number, ";" and the name.
constexpr std::array<const char*, 17> kBankRows = {
    "001;Bank of Montreal",
    "002;Bank of Nova Scotia",
    "003;Royal Bank",
    "004;Toronto-Dominion Bank",
    "006;National Bank of Canada",
    "010;Canadian Imperial Bank of Comm",
    "016;HSBC Bank Canada",
    "030;Canadian Western Bank",
    "039;Laurentian Bank",
    "809;BC Credit Unions",
    "815;Desjardin",
    "828;Ontario Credit Unions",
    "839;Nova Scotia Credit Unions",
    "842;Alterna",
    "879;Manitoba Credit Unions",
    "889;Saskatchewan Credit Unions",
    "899;Alberta Credit Unions",
};

}  // namespace

frmCheque& frmCheque::Instance(Context& ctx) {
  std::shared_ptr<forms::Form>& slot = ctx.forms().DefaultInstance(kForm.name);
  if (!slot) slot = std::make_shared<frmCheque>(ctx);
  return static_cast<frmCheque&>(*slot);
}

frmCheque::frmCheque(Context& ctx) : forms::Form(ctx.forms(), kForm, kControls), ctx_(ctx) {}

void frmCheque::Form_Load() {
  TraceEntry(ctx_, "frmCheque - Form_Load");
  LoadBankList();
  Ctl("cmbBankName").SetText("001 - Bank of Montreal");
}

void frmCheque::LoadBankList() {
  TraceEntry(ctx_, "frmCheque - LoadBankList");
  forms::Control& list = Ctl("cmbBankName");
  std::vector<std::vector<std::string>> rows;
  for (const char* row : kBankRows) rows.push_back(forms::SplitRow(row));
  list.SetRows(std::move(rows));
}

}  // namespace nvrandom
