#include "form_window.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>
#include <utility>

#include "control_record.h"
#include "forms/access_keys.h"
#include "forms/application.h"
#include "forms/keystroke.h"
#include "forms/user_input.h"
#include "platform/clipboard.h"
#include "qt_units.h"
#include "widget_looks.h"

namespace nvrandom::qt {

using forms::Control;
using forms::ControlKind;
using forms::Property;

namespace {

// The dialogs' fonts are designed at this size.
constexpr double kPointSize = 8.0;

// The properties every record shows, in the order a fresh widget takes them (BackColor shows
// both colours).
constexpr Property kAllProperties[] = {
    Property::kFontName,     Property::kBackColor,      Property::kBackStyle,
    Property::kCaption,      Property::kButtonStyle,    Property::kMaxLength,
    Property::kLocked,       Property::kColumnHeadings, Property::kDisplayColumn,
    Property::kBoundColumn,  Property::kList,           Property::kListIndex,
    Property::kPasswordChar, Property::kText,           Property::kSelection,
    Property::kValue,        Property::kLeft,           Property::kEnabled,
    Property::kVisible,
};

int16_t ShiftState(Qt::KeyboardModifiers modifiers) {
  int16_t shift = 0;
  if (modifiers & Qt::ShiftModifier) shift |= forms::keys::kShiftMask;
  if (modifiers & Qt::ControlModifier) shift |= forms::keys::kCtrlMask;
  if (modifiers & Qt::AltModifier) shift |= forms::keys::kAltMask;
  return shift;
}

// The platform's key code of a key that types no character (0: none the model knows).
int16_t KeyCodeOf(int key) {
  switch (key) {
    case Qt::Key_Delete:
      return forms::keys::kKeyDelete;
    case Qt::Key_Left:
      return forms::keys::kKeyLeft;
    case Qt::Key_Right:
      return forms::keys::kKeyRight;
    case Qt::Key_Up:
      return forms::keys::kKeyUp;
    case Qt::Key_Down:
      return forms::keys::kKeyDown;
    case Qt::Key_Home:
      return forms::keys::kKeyHome;
    case Qt::Key_End:
      return forms::keys::kKeyEnd;
    case Qt::Key_Insert:
      return forms::keys::kKeyInsert;
    default:
      break;
  }
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return static_cast<int16_t>('A' + (key - Qt::Key_A));
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return static_cast<int16_t>('0' + (key - Qt::Key_0));
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
    return static_cast<int16_t>(112 + (key - Qt::Key_F1));
  return 0;
}

// The character a key types as the platform's KeyPress sees it (0: none).
int16_t ControlCharacterOf(int key) {
  switch (key) {
    case Qt::Key_Tab:
      return forms::keys::kTab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return forms::keys::kEnter;
    case Qt::Key_Backspace:
      return forms::keys::kBackspace;
    case Qt::Key_Escape:
      return 27;
    default:
      return 0;
  }
}

// Mouse positions in twips from the control's corner, as MouseDown is told.
float Twips(double pixels, double dpi) {
  return static_cast<float>(PixelsToTwips(static_cast<int>(pixels), dpi));
}

int16_t ButtonOf(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return 1;
    case Qt::RightButton:
      return 2;
    case Qt::MiddleButton:
      return 4;
    default:
      return 0;
  }
}

// A mouse event as MouseDown and MouseUp are told of it.
struct MouseArgs {
  int16_t button;
  int16_t shift;
  float x;
  float y;
};

MouseArgs ArgsOf(const QMouseEvent& me, double dpi) {
  return {ButtonOf(me.button()), ShiftState(me.modifiers()), Twips(me.position().x(), dpi),
          Twips(me.position().y(), dpi)};
}

}  // namespace

FormWindow::FormWindow(forms::Form& form, double logical_dpi, QWidget* parent)
    : QWidget(parent, parent == nullptr ? Qt::Dialog : Qt::Widget),
      form_(&form),
      dpi_(logical_dpi) {
  setObjectName(ToQString(form.Name()));
  setAttribute(Qt::WA_DeleteOnClose, false);
  for (const auto& control : form.Controls()) {
    auto record = std::make_unique<ControlRecord>();
    record->control = control.get();
    record->window = this;
    by_control_.emplace(record->control, record.get());
    records_.push_back(std::move(record));
  }
  // The window's colours and font before its widgets: each widget inherits them as it is made,
  // with no change passed down to it afterwards.
  ShowForm(Property::kBackColor);
  ShowForm(Property::kFontName);
  for (auto& record : records_) CreateWidget(*record);
  for (auto& record : records_) {
    ControlRecord* r = record.get();
    // The model holds the text: an edit Qt makes on its own (an undo, a selection pasted with
    // the middle button) is shown back as the model has it.
    if (auto* edit = qobject_cast<QLineEdit*>(r->input)) {
      QObject::connect(edit, &QLineEdit::textEdited, this, [this, r] {
        if (form_ != nullptr) Update(*r, Property::kText);
      });
    }
    // A choice from a list's drop-down is the person's: the model chooses the row.
    if (auto* combo = qobject_cast<QComboBox*>(r->widget)) {
      QObject::connect(combo, &QComboBox::activated, this, [this, r](int row) {
        if (form_ == nullptr) return;
        forms::user::PickRow(*r->control, row);
        if (form_ != nullptr) Update(*r, Property::kText);
      });
    }
  }
}

// The person selects text with the mouse: the model's selection follows. Connected when the
// edit field first takes the focus, which the mouse gives it before it selects.
void FormWindow::FollowSelection(ControlRecord& record) {
  auto* edit = qobject_cast<QLineEdit*>(record.input);
  if (edit == nullptr || std::exchange(record.follows_selection, true)) return;
  ControlRecord* r = &record;
  QObject::connect(edit, &QLineEdit::selectionChanged, this, [this, r, edit] {
    if (form_ == nullptr || r->syncing || !edit->hasSelectedText()) return;
    forms::user::Select(*r->control, edit->selectionStart(),
                        static_cast<int>(edit->selectedText().size()));
  });
  QObject::connect(edit, &QLineEdit::cursorPositionChanged, this, [this, r, edit](int, int now) {
    if (form_ == nullptr || r->syncing || edit->hasSelectedText()) return;
    if (r->control->SelStart() != now || r->control->SelLength() != 0) {
      forms::user::Select(*r->control, now, 0);
    }
  });
}

// The form's colours and font first, and each container's before its contents': a control whose
// colours or font are its container's shows them by inheriting them.
void FormWindow::Wake() {
  if (awake_ || form_ == nullptr) return;
  for (const Property p :
       {Property::kCaption, Property::kWidth, Property::kBackColor, Property::kFontName}) {
    ShowForm(p);
  }
  for (ControlRecord* record : tree_order_) ApplyAll(*record);
  NameInputs();
  awake_ = true;
}

FormWindow::~FormWindow() = default;

// Each widget is made inside its container's (made first: a control's container may come after
// it in the table), so that none is moved to another parent afterwards.
void FormWindow::CreateWidget(ControlRecord& record) {
  if (record.widget != nullptr) return;
  const Control& control = *record.control;
  QWidget* parent = this;
  if (const Control* container = control.Container()) {
    if (const auto it = by_control_.find(container); it != by_control_.end()) {
      CreateWidget(*it->second);
      parent = it->second->widget;
    }
  }
  record.widget = ViewOf(control.kind()).create(record, parent);
  if (record.input == nullptr) record.input = record.widget;
  record.widget->setObjectName(ToQString(control.FullName()));
  record.widget->setFocusPolicy(control.CanFocus() ? Qt::ClickFocus : Qt::NoFocus);
  record.widget->installEventFilter(this);
  if (record.input != record.widget) {
    record.input->installEventFilter(this);
    record.input->setFocusPolicy(Qt::ClickFocus);  // a combo box's edit field is its proxy
  }
  by_widget_.emplace(record.widget, &record);
  by_widget_.emplace(record.input, &record);
  tree_order_.push_back(&record);
}

// A screen reader reads an input by the label that names it.
void FormWindow::NameInputs() {
  for (auto& input : records_) {
    const Control& c = *input->control;
    if (!forms::IsTextKind(c.kind())) continue;
    if (const Control* label = forms::LabelOf(c)) {
      input->input->setAccessibleName(WithoutAccessKeys(label->Caption()));
    }
  }
}

void FormWindow::Detach() {
  form_ = nullptr;
  for (auto& record : records_) record->control = nullptr;
  by_control_.clear();
}

void FormWindow::ApplyAll(ControlRecord& record) {
  for (const Property p : kAllProperties) Update(record, p);
}

QWidget* FormWindow::WidgetOf(const Control& control) const {
  const auto it = by_control_.find(&control);
  return it != by_control_.end() ? it->second->widget : nullptr;
}

QWidget* FormWindow::WidgetOf(std::string_view name, int index) const {
  if (form_ == nullptr) return nullptr;
  const Control* control = form_->Find(name, index);
  return control != nullptr ? WidgetOf(*control) : nullptr;
}

QWidget* FormWindow::InputWidgetOf(const Control& control) const {
  const auto it = by_control_.find(&control);
  return it != by_control_.end() ? it->second->input : nullptr;
}

ControlRecord* FormWindow::RecordOf(const QObject* widget) const {
  const auto it = by_widget_.find(widget);
  return it != by_widget_.end() ? it->second : nullptr;
}

void FormWindow::ControlChanged(Control& control, Property property) {
  if (!awake_) return;
  if (const auto it = by_control_.find(&control); it != by_control_.end()) {
    Update(*it->second, property);
  }
}

void FormWindow::Update(ControlRecord& r, Property p) {
  const Control& c = *r.control;
  r.syncing = true;
  switch (p) {
    case Property::kVisible:
      r.widget->setVisible(c.Visible());
      break;
    case Property::kEnabled:
      if (r.widget->testAttribute(Qt::WA_ForceDisabled) != c.Enabled()) break;
      r.widget->setEnabled(c.Enabled());
      // Disabled, it and the controls inside it are drawn in their disabled colours.
      ShowColours(*r.widget, c);
      if (awake_) KeepOwnLooks(*r.widget, Property::kBackColor);
      break;
    case Property::kLeft:
    case Property::kTop:
    case Property::kWidth:
    case Property::kHeight:
      r.widget->setGeometry(TwipsToPixels(c.Left(), dpi_), TwipsToPixels(c.Top(), dpi_),
                            TwipsToPixels(c.Width(), dpi_), TwipsToPixels(c.Height(), dpi_));
      break;
    case Property::kBackColor:
    case Property::kForeColor:
      if (ShowColours(*r.widget, c) && awake_) KeepOwnLooks(*r.widget, Property::kBackColor);
      break;
    case Property::kFontName:
      if (ShowFont(*r.widget, c.FontName(), kPointSize) && awake_) {
        KeepOwnLooks(*r.widget, Property::kFontName);
      }
      break;
    default:
      break;
  }
  ViewOf(c.kind()).update(r, p);
  r.syncing = false;
}

// The colours or font of `container` changed: the controls inside it that showed their own by
// inheriting the old ones take them explicitly (the new ones reached them, and their contents).
void FormWindow::KeepOwnLooks(const QWidget& container, Property property) {
  for (ControlRecord* r : tree_order_) {
    if (r->widget->parentWidget() != &container || r->control == nullptr) continue;
    if (property == Property::kFontName) {
      ShowFont(*r->widget, r->control->FontName(), kPointSize);
    } else {
      ShowColours(*r->widget, *r->control);
    }
    KeepOwnLooks(*r->widget, property);
  }
}

void FormWindow::FormChanged(Property property) {
  if (form_ == nullptr || !awake_) return;
  ShowForm(property);
  if (property == Property::kBackColor || property == Property::kFontName) {
    KeepOwnLooks(*this, property);
  }
}

void FormWindow::ShowForm(Property property) {
  switch (property) {
    case Property::kCaption:
      setWindowTitle(ToQString(form_->Caption()));
      break;
    case Property::kWidth:
    case Property::kHeight:
      setFixedSize(TwipsToPixels(form_->Width(), dpi_), TwipsToPixels(form_->Height(), dpi_));
      break;
    case Property::kBackColor:
      ShowWindowColour(*this, form_->BackColor());
      break;
    case Property::kFontName:
      ShowFont(*this, form_->FontName(), kPointSize);
      break;
    default:
      break;
  }
}

void FormWindow::ShowFocus(Control* control) {
  if (form_ == nullptr || control == nullptr || !awake_) return;
  if (QWidget* input = InputWidgetOf(*control)) {
    if (!input->hasFocus()) input->setFocus(Qt::OtherFocusReason);
  }
}

// The model may refuse a focus the person gave a widget: the keyboard goes back where the model
// has it, once Qt has finished moving it.
void FormWindow::SyncFocusLater() {
  QTimer::singleShot(0, this, [this] {
    if (form_ == nullptr) return;
    ShowFocus(form_->ActiveControl());
  });
}

void FormWindow::FocusIn(ControlRecord& r) {
  if (form_ == nullptr || r.control == form_->ActiveControl()) return;
  forms::user::Focus(*r.control);
  if (form_ != nullptr && form_->ActiveControl() != r.control) SyncFocusLater();
}

bool FormWindow::Key(ControlRecord& r, QKeyEvent* event) {
  Control& c = *r.control;
  const int16_t shift = ShiftState(event->modifiers());
  const bool command = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  // Dropping a list down is the box's own business.
  if (auto* combo = qobject_cast<QComboBox*>(r.widget);
      combo != nullptr &&
      (event->key() == Qt::Key_F4 || (event->key() == Qt::Key_Down && (shift & 4) != 0))) {
    combo->showPopup();
    return true;
  }
  if (event->key() == Qt::Key_Backtab ||
      (event->key() == Qt::Key_Tab && shift == forms::keys::kShiftMask)) {
    forms::user::KeyDown(c, forms::keys::kKeyTab, forms::keys::kShiftMask);
    return true;
  }
  if (const int16_t ch = ControlCharacterOf(event->key()); ch != 0 && !command) {
    if (event->key() == Qt::Key_Tab || ch != forms::keys::kTab) forms::user::Key(c, ch);
    return true;
  }
  const QString text = event->text();
  if (!command && !text.isEmpty() && text[0].isPrint()) {
    forms::user::Type(c, ToUtf8(text));
    return true;
  }
  if (const int16_t code = KeyCodeOf(event->key()); code != 0) {
    forms::user::KeyDown(c, code, shift);
  }
  return true;
}

bool FormWindow::Mouse(ControlRecord& r, QEvent* event) {
  auto* me = static_cast<QMouseEvent*>(event);
  Control& c = *r.control;
  const auto [button, shift, x, y] = ArgsOf(*me, dpi_);
  const bool text_kind = forms::IsTextKind(c.kind());
  if (text_kind) {
    if (me->button() == Qt::MiddleButton) {
      // No paste of the X selection: what goes in goes through the field's rules.
      if (event->type() == QEvent::MouseButtonPress) forms::user::MouseDown(c, button, shift, x, y);
      if (event->type() == QEvent::MouseButtonRelease) forms::user::MouseUp(c, button, shift, x, y);
      return true;
    }
    if (me->button() != Qt::RightButton) {
      // The edit field places the caret and selects; the model hears the buttons, and a text
      // box its clicks (a list's Click is the choice of a row, made by the list itself).
      if (c.kind() == ControlKind::kTextBox) {
        Clicks(r, event);
      } else if (event->type() == QEvent::MouseButtonPress) {
        forms::user::MouseDown(c, button, shift, x, y);
      } else if (event->type() == QEvent::MouseButtonRelease) {
        forms::user::MouseUp(c, button, shift, x, y);
      }
      return false;
    }
    // The right button opens the edit menu; its Paste goes through the model.
    if (event->type() != QEvent::MouseButtonRelease) return true;
    QMenu menu(this);
    QAction* paste = menu.addAction(QObject::tr("&Paste"));
    paste->setEnabled(c.Enabled() && !c.Locked());
    const QPoint at = me->globalPosition().toPoint();
    if (menu.exec(at) == paste && form_ != nullptr) {
      forms::user::MenuPaste(c, c.form().app().clipboard().Text());
    } else if (form_ != nullptr) {
      forms::user::MouseDown(c, button, shift, x, y);
      if (form_ != nullptr) forms::user::MouseUp(c, button, shift, x, y);
    }
    return true;
  }
  if (c.kind() == ControlKind::kComboBox || c.kind() == ControlKind::kDataList) return false;
  if (event->type() == QEvent::MouseButtonPress && c.CanFocus() && me->button() == Qt::LeftButton) {
    forms::user::Focus(c);
  }
  if (form_ != nullptr) Clicks(r, event);
  return true;
}

// Qt reports a double click as press, release, double click, release: the first release is the
// Click, the double click is the second press (DblClick, or a second Click where the control has
// none), and the release that ends it clicks nothing more.
void FormWindow::Clicks(ControlRecord& r, QEvent* event) {
  auto* me = static_cast<QMouseEvent*>(event);
  Control& c = *r.control;
  const auto [button, shift, x, y] = ArgsOf(*me, dpi_);
  const bool left = me->button() == Qt::LeftButton;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      forms::user::MouseDown(c, button, shift, x, y);
      break;
    case QEvent::MouseButtonDblClick:
      if (left) {
        r.double_clicked = true;
        forms::user::DoubleClick(c);
      }
      break;
    case QEvent::MouseButtonRelease: {
      const bool ends_double_click = left && std::exchange(r.double_clicked, false);
      forms::user::MouseUp(c, button, shift, x, y);
      if (form_ != nullptr && left && !ends_double_click &&
          r.widget->rect().contains(me->position().toPoint())) {
        forms::user::Click(c);
      }
      break;
    }
    default:
      break;
  }
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  ControlRecord* r = RecordOf(watched);
  if (r == nullptr) return QWidget::eventFilter(watched, event);
  if (form_ == nullptr) {
    // Unloaded, not yet deleted: the person can no longer act on it.
    switch (event->type()) {
      case QEvent::KeyPress:
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::InputMethod:
        return true;
      default:
        return false;
    }
  }
  switch (event->type()) {
    case QEvent::KeyPress:
      return Key(*r, static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
      return true;
    case QEvent::InputMethod: {
      // Composed text (an input method) is typed as its characters.
      const QString text = static_cast<QInputMethodEvent*>(event)->commitString();
      if (!text.isEmpty()) forms::user::Type(*r->control, ToUtf8(text));
      return true;
    }
    case QEvent::FocusIn: {
      FollowSelection(*r);
      const auto reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason != Qt::OtherFocusReason && reason != Qt::ActiveWindowFocusReason &&
          reason != Qt::PopupFocusReason) {
        FocusIn(*r);
      }
      return false;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      return Mouse(*r, event);
    case QEvent::ContextMenu:
      return true;
    default:
      return false;
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (form_ == nullptr) {
    event->accept();
    return;
  }
  // The model decides (QueryUnload may cancel); the window goes when the form is unloaded.
  event->ignore();
  forms::user::CloseBox(*form_);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  event->accept();
}

}  // namespace nvrandom::qt
