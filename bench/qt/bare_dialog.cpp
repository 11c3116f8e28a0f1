#include "bare_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <map>
#include <string>
#include <utility>

namespace nvrandom::bench {

namespace {

using forms::ControlKind;

constexpr double kTwipsPerPixel = 15.0;  // 96 dpi, as the offscreen platform reports

int Pixels(int32_t twips) {
  return static_cast<int>(twips / kTwipsPerPixel);
}

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QWidget* MakeWidget(const forms::ControlDesign& c, QWidget* parent) {
  const QString caption = Text(c.caption);
  switch (c.kind) {
    case ControlKind::kTextBox: {
      auto* edit = new QLineEdit(caption, parent);
      if (c.max_length > 0) edit->setMaxLength(c.max_length);
      return edit;
    }
    case ControlKind::kComboBox:
    case ControlKind::kDataList: {
      auto* combo = new QComboBox(parent);
      combo->setEditable(true);
      combo->setEditText(caption);
      return combo;
    }
    case ControlKind::kCheckBox:
      return new QCheckBox(caption, parent);
    case ControlKind::kOptionButton:
      return new QRadioButton(caption, parent);
    case ControlKind::kCommandButton:
    case ControlKind::kStyledButton:
      return new QPushButton(caption, parent);
    case ControlKind::kFrame:
      return new QGroupBox(caption, parent);
    case ControlKind::kLabel:
    case ControlKind::kHyperLink:
    case ControlKind::kImage:
    default: {
      auto* label = new QLabel(caption, parent);
      label->setWordWrap(true);
      return label;
    }
  }
}

}  // namespace

std::unique_ptr<QDialog> MakeBareDialog(const forms::FormDesign& form,
                                        std::span<const forms::ControlDesign> controls) {
  auto dialog = std::make_unique<QDialog>();
  dialog->setObjectName(QStringLiteral("bare"));
  dialog->setWindowTitle(Text(form.caption));
  dialog->setFixedSize(Pixels(form.width), Pixels(form.height));
  QFont font(QStringLiteral("MS Sans Serif"));
  font.setPointSizeF(8.0);
  dialog->setFont(font);
  std::map<std::string, QWidget*, std::less<>> by_name;
  std::vector<std::pair<const forms::ControlDesign*, QWidget*>> made;
  for (const forms::ControlDesign& c : controls) {
    QWidget* widget = MakeWidget(c, dialog.get());
    widget->setObjectName(Text(c.name));
    widget->setGeometry(Pixels(c.left), Pixels(c.top), Pixels(c.width), Pixels(c.height));
    widget->setVisible(c.visible);
    widget->setEnabled(c.enabled);
    by_name.emplace(std::string(c.name), widget);
    made.emplace_back(&c, widget);
  }
  for (const auto& [c, widget] : made) {
    if (c->container.empty()) continue;
    if (const auto it = by_name.find(c->container); it != by_name.end()) {
      widget->setParent(it->second);
      widget->setVisible(c->visible);
    }
  }
  return dialog;
}

}  // namespace nvrandom::bench
