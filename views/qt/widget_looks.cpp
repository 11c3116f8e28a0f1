#include "widget_looks.h"

#include <QApplication>
#include <QPalette>
#include <algorithm>
#include <array>
#include <span>

#include "qt_units.h"

namespace nvrandom::qt {

namespace {

struct RoleColour {
  QPalette::ColorRole role;
  QColor colour;
};

bool Shows(const QPalette& palette, QPalette::ColorGroup group, const RoleColour& wanted) {
  const QBrush& brush = palette.brush(group, wanted.role);
  return brush.style() == Qt::SolidPattern && brush.color() == wanted.colour;
}

// Sets the roles' colours in every state unless the widget already shows them in the states it
// is drawn in now.
bool ShowRoles(QWidget& widget, std::span<const RoleColour> roles) {
  const QPalette& now = widget.palette();
  const bool disabled = !widget.isEnabled();
  if (std::all_of(roles.begin(), roles.end(), [&](const RoleColour& r) {
        return Shows(now, QPalette::Active, r) && Shows(now, QPalette::Inactive, r) &&
               (!disabled || Shows(now, QPalette::Disabled, r));
      })) {
    return false;
  }
  QPalette palette = now;
  for (const RoleColour& r : roles) palette.setColor(r.role, r.colour);
  widget.setPalette(palette);
  return true;
}

}  // namespace

bool ShowColours(QWidget& widget, const forms::Control& control) {
  const bool text_kind = forms::IsTextKind(control.kind());
  const QPalette& system = QApplication::palette();
  const QColor back = ToQColor(control.BackColor(), system);
  const QColor fore = ToQColor(control.ForeColor(), system);
  ShowOpaque(widget, !text_kind && (control.kind() != forms::ControlKind::kLabel ||
                                    control.BackStyle() != 0));
  // An edit field's background is its base; any other widget's is its window and button face.
  if (text_kind) {
    const std::array<RoleColour, 3> roles = {
        {{QPalette::Base, back}, {QPalette::Text, fore}, {QPalette::ButtonText, fore}}};
    return ShowRoles(widget, roles);
  }
  const std::array<RoleColour, 4> roles = {{{QPalette::Window, back},
                                            {QPalette::Button, back},
                                            {QPalette::WindowText, fore},
                                            {QPalette::ButtonText, fore}}};
  return ShowRoles(widget, roles);
}

void ShowOpaque(QWidget& widget, bool opaque) {
  if (widget.autoFillBackground() != opaque) widget.setAutoFillBackground(opaque);
}

bool ShowWindowColour(QWidget& window, uint32_t colour) {
  ShowOpaque(window, true);
  const std::array<RoleColour, 1> roles = {
      {{QPalette::Window, ToQColor(colour, QApplication::palette())}}};
  return ShowRoles(window, roles);
}

bool ShowFont(QWidget& widget, std::string_view family, double point_size) {
  const QString name = ToQString(family);
  // Most widgets already show their container's font: no copy of it to compare.
  const QFont& now = widget.font();
  if (now.pointSizeF() == point_size && now.families() == QStringList{name}) return false;
  QFont font = now;
  font.setFamily(name);
  font.setPointSizeF(point_size);
  if (font == widget.font()) return false;
  widget.setFont(font);
  return true;
}

}  // namespace nvrandom::qt
