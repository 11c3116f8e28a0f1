#include "dialogs/support/mod_form_controller.h"

#include <cstdint>
#include <string>

#include "component/context.h"
#include "component/trace.h"
#include "forms/control.h"
#include "forms/form.h"
#include "platform/path.h"
#include "validation/error_trap.h"
#include "validation/random.h"

namespace nvrandom {

namespace {

constexpr std::string_view kSansSerif = "MS Sans Serif";
constexpr std::string_view kSegoe = "Segoe UI";
constexpr uint32_t kWhite = 0xFFFFFF;
constexpr std::string_view kNoStyle = "noStyle";

struct Style {
  std::string_view font;
  uint32_t back_color;
};

// The style table, by FormStyle; any other value is the first style.
Style StyleOf(int16_t form_style) {
  switch (form_style) {
    case 2:
      return {kSansSerif, kWhite};
    case 3:
      return {kSegoe, kWhite};
    default:
      return {kSansSerif, forms::colors::kButtonFace};
  }
}

}  // namespace

void modFormController::reStyleForm(forms::Form& form) {
  TraceEntry(ctx_, "modFormController - reStyleForm");
  try {
    const int16_t form_style = ctx_.store.FormStyle;
    const Style style = StyleOf(form_style);
    const std::string font = installSystemFont(style.font);
    // Set by name, as any kind of control that carries the property can take it.
    const forms::PropertyValue back_color = int64_t{style.back_color};
    const forms::PropertyValue font_name = font;
    const forms::PropertyValue transparent = int64_t{0};
    for (const auto& owned : form.Controls()) {
      forms::Control& control = *owned;
      if (control.Tag() == kNoStyle) continue;
      switch (control.kind()) {
        case forms::ControlKind::kLabel:
          control.SetProperty("BackColor", back_color);
          control.SetProperty("BackStyle", transparent);
          control.SetProperty("fontName", font_name);
          break;
        case forms::ControlKind::kTextBox:
          control.SetProperty("fontName", font_name);
          break;
        case forms::ControlKind::kFrame:
        case forms::ControlKind::kCheckBox:
        case forms::ControlKind::kOptionButton:
          control.SetProperty("BackColor", back_color);
          control.SetProperty("fontName", font_name);
          break;
        case forms::ControlKind::kHyperLink:
          control.SetProperty("BackColor", back_color);
          break;
        default:
          break;
      }
    }
    form.SetProperty("BackColor", back_color);
    form.SetProperty("fontName", font_name);
  } catch (...) {
    validation::ReportTrappedError(ctx_, "modFormController.reStyleForm");
  }
}

std::string modFormController::installSystemFont(std::string_view font) {
  TraceEntry(ctx_, "modFormController - installSystemFont");
  const std::string file = font == kSegoe ? "segoeui.ttf" : "MS Sans Serif.ttf";
  // The Windows directory as set-up stored it, ending in a separator; asked for here when no
  // dialog has been set up yet.
  if (ctx_.store.gstrWindowsDir.empty()) {
    Random random(ctx_);
    random.Get_Windows_Dir();
    ctx_.store.gstrWindowsDir = random.WindowsDir();
  }
  const std::string target = ctx_.store.gstrWindowsDir + "fonts" + path::kSeparator + file;
  if (path::FileExists(target)) return std::string(font);
  // Without an installation root there are no resources to install from. The root ends in its
  // separator; joining adds another, as for the trace file.
  const std::string& root = ctx_.store.gstrInstallRoot;
  const std::string source = root + path::kSeparator + "Resources" + path::kSeparator + file;
  if (root.empty() || !path::FileExists(source)) return std::string(kSansSerif);
  FontService& fonts = *ctx_.services.fonts;
  fonts.CopyFontFile(source, target);
  return fonts.AddFontResource(source) != 0 ? std::string(font) : std::string(kSansSerif);
}

}  // namespace nvrandom
