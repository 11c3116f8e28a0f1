// One update function per kind of control: what the model holds, written into the widget.
#include <QAbstractTableModel>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <algorithm>
#include <string>

#include "control_record.h"
#include "picture_resources.h"
#include "platform/utf8.h"
#include "qt_units.h"
#include "widget_looks.h"

namespace nvrandom::qt {

using forms::Control;
using forms::ControlKind;
using forms::Property;

namespace {

// Data lists show this many rows at once when dropped down.
constexpr int kVisibleListRows = 15;

// The mask of a password field shows as many characters as its text has.
QString Masked(const Control& control) {
  const QString mask = ToQString(control.PasswordChar()).left(1);
  return QString(static_cast<qsizetype>(utf8::Length(control.Text())),
                 mask.isEmpty() ? u'*' : mask[0]);
}

// Only a change is written: moving the caret, even where it already is, updates the input
// method's and the accessibility's view of the field.
void ShowSelection(QLineEdit& edit, const Control& control) {
  if (control.SelLength() > 0) {
    const int end = control.SelStart() + control.SelLength();
    if (edit.selectionStart() != control.SelStart() ||
        edit.selectionLength() != control.SelLength() || edit.cursorPosition() != end) {
      edit.setSelection(control.SelStart(), control.SelLength());
    }
  } else if (edit.hasSelectedText() || edit.cursorPosition() != control.SelStart()) {
    edit.setCursorPosition(control.SelStart());
  }
}

void ShowEditText(QLineEdit& edit, const Control& control) {
  const QString shown = ShownText(control);
  if (edit.text() != shown) edit.setText(shown);
  ShowSelection(edit, control);
}

// Labels --------------------------------------------------------------------------------------

QWidget* CreateLabel(ControlRecord&, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return label;
}

void UpdateLabel(ControlRecord& r, Property p) {
  auto* label = static_cast<QLabel*>(r.widget);
  if (p == Property::kCaption) label->setText(WithoutAccessKeys(r.control->Caption()));
  if (p == Property::kBackStyle) ShowOpaque(*label, r.control->BackStyle() != 0);
}

// Hyperlinks: a label drawn as a link; its click goes to the model like any other.
QWidget* CreateHyperLink(ControlRecord&, QWidget* parent) {
  auto* label = new QLabel(parent);
  QFont font = label->font();
  font.setUnderline(true);
  label->setFont(font);
  label->setCursor(Qt::PointingHandCursor);
  label->setStyleSheet(QStringLiteral("color: #0000EE;"));
  return label;
}

void UpdateHyperLink(ControlRecord& r, Property p) {
  if (p == Property::kCaption) {
    static_cast<QLabel*>(r.widget)->setText(WithoutAccessKeys(r.control->Caption()));
  }
}

// Text boxes ----------------------------------------------------------------------------------

QWidget* CreateTextBox(ControlRecord& r, QWidget* parent) {
  auto* edit = new QLineEdit(parent);
  // The person's context menu is the model's: its Paste goes through the runtime. Text comes in
  // typed or pasted, through the field's rules: not dropped.
  edit->setContextMenuPolicy(Qt::NoContextMenu);
  edit->setAcceptDrops(false);
  r.input = edit;
  return edit;
}

void UpdateTextBox(ControlRecord& r, Property p) {
  auto* edit = static_cast<QLineEdit*>(r.widget);
  switch (p) {
    case Property::kText:
    case Property::kPasswordChar:
      ShowEditText(*edit, *r.control);
      break;
    case Property::kSelection:
      ShowSelection(*edit, *r.control);
      break;
    case Property::kLocked:
      edit->setReadOnly(r.control->Locked());
      break;
    default:
      break;
  }
}

// Combo boxes and data lists: an editable box whose edit field takes the keys -----------------

// A data list's rows model is set before this: made editable, the box makes its completer on
// the model it has then. It is made editable by handing it an edit field: setEditable() would
// also make the drop-down list at once (and its item delegate twice), which is otherwise made
// when the list first drops down, the same list.
QComboBox* SetUpCombo(ControlRecord& r, QComboBox* combo) {
  auto* edit = new QLineEdit(combo);
  edit->setPalette(combo->palette());  // as setEditable() gives it
  combo->setLineEdit(edit);
  combo->setInsertPolicy(QComboBox::NoInsert);
  combo->setMaxVisibleItems(kVisibleListRows);
  combo->lineEdit()->setContextMenuPolicy(Qt::NoContextMenu);
  combo->lineEdit()->setAcceptDrops(false);
  // The model follows typing to the row it names; the box's own completion would type for it.
  combo->setCompleter(nullptr);
  r.input = combo->lineEdit();
  return combo;
}

void UpdateComboCommon(ControlRecord& r, QComboBox& combo, Property p) {
  switch (p) {
    case Property::kListIndex:
      combo.setCurrentIndex(r.control->ListIndex());
      ShowEditText(*combo.lineEdit(), *r.control);
      break;
    case Property::kText:
    case Property::kSelection:
      ShowEditText(*combo.lineEdit(), *r.control);
      break;
    case Property::kLocked:
      combo.lineEdit()->setReadOnly(r.control->Locked());
      break;
    default:
      break;
  }
}

QWidget* CreateComboBox(ControlRecord& r, QWidget* parent) {
  return SetUpCombo(r, new QComboBox(parent));
}

void UpdateComboBox(ControlRecord& r, Property p) {
  auto* combo = static_cast<QComboBox*>(r.widget);
  if (p == Property::kList) {
    QStringList items;
    items.reserve(r.control->ListCount());
    for (int i = 0; i < r.control->ListCount(); ++i) items.append(ToQString(r.control->List(i)));
    combo->clear();
    combo->addItems(items);
    combo->setCurrentIndex(r.control->ListIndex());
    ShowEditText(*combo->lineEdit(), *r.control);
  }
  UpdateComboCommon(r, *combo, p);
}

// Data lists drop down a table with the named column headings.
// A data list's columns are sized to their contents when it drops down, not at each fill: the
// country list's rows are measured only once somebody looks at them.
class DataListBox final : public QComboBox {
 public:
  using QComboBox::QComboBox;
  void ListFilled() { sized_ = false; }
  void showPopup() override {
    if (!sized_) {
      auto* table = qobject_cast<QTableView*>(view());
      if (table == nullptr) {
        // The table of columns is made when the list first drops down.
        table = new QTableView(this);
        table->setSelectionBehavior(QAbstractItemView::SelectRows);
        table->setEditTriggers(QAbstractItemView::NoEditTriggers);
        table->verticalHeader()->hide();
        table->horizontalHeader()->setStretchLastSection(true);
        table->setShowGrid(false);
        setView(table);
      }
      table->resizeColumnsToContents();
      int width = 0;
      for (int c = 0; c < model()->columnCount(); ++c) width += table->columnWidth(c);
      table->setMinimumWidth(width + 24);
      sized_ = true;
    }
    QComboBox::showPopup();
  }

 private:
  bool sized_ = false;
};

// The rows of a data list as the drop-down's table reads them: straight from the control, cell
// by cell when they are drawn, with no copy of the list in the view.
class RowsModel final : public QAbstractTableModel {
 public:
  RowsModel(const ControlRecord& record, QObject* parent)
      : QAbstractTableModel(parent), record_(record) {}

  // The control's rows or headings changed (or it is going away: nullptr).
  void Reset() {
    beginResetModel();
    const Control* c = record_.control;
    rows_ = c != nullptr ? c->ListCount() : 0;
    columns_ = 0;
    for (int i = 0; c != nullptr && i < rows_; ++i) {
      columns_ = std::max(columns_, static_cast<int>(c->Row(i).size()));
    }
    if (c != nullptr) columns_ = std::max(columns_, static_cast<int>(c->ColumnHeadings().size()));
    endResetModel();
  }
  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : columns_;
  }
  QVariant data(const QModelIndex& index, int role) const override {
    const Control* c = record_.control;
    if ((role != Qt::DisplayRole && role != Qt::EditRole) || c == nullptr ||
        index.row() >= c->ListCount()) {
      return {};
    }
    const auto& row = c->Row(index.row());
    const auto column = static_cast<size_t>(index.column());
    return column < row.size() ? QVariant(ToQString(row[column])) : QVariant();
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    const Control* c = record_.control;
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || c == nullptr ||
        section >= static_cast<int>(c->ColumnHeadings().size())) {
      return {};
    }
    return ToQString(c->ColumnHeadings()[static_cast<size_t>(section)]);
  }

 private:
  const ControlRecord& record_;
  int rows_ = 0;
  int columns_ = 0;
};

QWidget* CreateDataList(ControlRecord& r, QWidget* parent) {
  auto* combo = new DataListBox(parent);
  combo->setModel(new RowsModel(r, combo));
  return SetUpCombo(r, combo);
}

void UpdateDataList(ControlRecord& r, Property p) {
  auto* combo = static_cast<DataListBox*>(r.widget);
  auto* model = static_cast<RowsModel*>(combo->model());
  switch (p) {
    case Property::kList: {
      model->Reset();
      combo->setModelColumn(r.control->DisplayColumn());
      combo->ListFilled();
      combo->setCurrentIndex(r.control->ListIndex());
      ShowEditText(*combo->lineEdit(), *r.control);
      break;
    }
    case Property::kColumnHeadings:
      model->Reset();
      break;
    case Property::kDisplayColumn:
      combo->setModelColumn(r.control->DisplayColumn());
      ShowEditText(*combo->lineEdit(), *r.control);
      break;
    default:
      break;
  }
  UpdateComboCommon(r, *combo, p);
}

// Check boxes, option buttons, buttons, frames, images ----------------------------------------

// The caption with its access key underlined. The key itself is the model's (Alt+letter reaches
// it as a key press): Qt's own mnemonic would click the widget behind the model's back.
void SetButtonCaption(QAbstractButton& button, const std::string& caption) {
  button.setText(ToQString(caption));
  button.setShortcut(QKeySequence());
}

QWidget* CreateCheckBox(ControlRecord&, QWidget* parent) {
  auto* box = new QCheckBox(parent);
  box->setTristate(true);
  return box;
}

void UpdateCheckBox(ControlRecord& r, Property p) {
  auto* box = static_cast<QCheckBox*>(r.widget);
  if (p == Property::kCaption) SetButtonCaption(*box, r.control->Caption());
  if (p == Property::kValue) {
    const int v = r.control->Value();
    box->setCheckState(v == 1 ? Qt::Checked : v == 2 ? Qt::PartiallyChecked : Qt::Unchecked);
  }
}

QWidget* CreateOptionButton(ControlRecord&, QWidget* parent) {
  auto* button = new QRadioButton(parent);
  // The model keeps the buttons of a container exclusive.
  button->setAutoExclusive(false);
  return button;
}

void UpdateOptionButton(ControlRecord& r, Property p) {
  auto* button = static_cast<QRadioButton*>(r.widget);
  if (p == Property::kCaption) SetButtonCaption(*button, r.control->Caption());
  if (p == Property::kValue) button->setChecked(r.control->Value() != 0);
}

QWidget* CreateCommandButton(ControlRecord&, QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setAutoDefault(false);
  return button;
}

void UpdateCommandButton(ControlRecord& r, Property p) {
  auto* button = static_cast<QPushButton*>(r.widget);
  if (p == Property::kCaption) SetButtonCaption(*button, r.control->Caption());
  if (p == Property::kButtonStyle || p == Property::kBackColor || p == Property::kForeColor) {
    // A graphical button shows its own colours; a standard one the system's.
    if (r.control->ButtonStyle() == 1) {
      const QColor back = ToQColor(r.control->BackColor(), button->palette());
      const QColor fore = ToQColor(r.control->ForeColor(), button->palette());
      button->setStyleSheet(QStringLiteral("QPushButton { background-color: %1; color: %2; "
                                           "border: 1px solid #808080; }")
                                .arg(back.name(), fore.name()));
    } else {
      button->setStyleSheet(QString());
    }
    // A styled button's style 2 is the flat look of the modern form styles.
    button->setFlat(r.control->kind() == ControlKind::kStyledButton &&
                    r.control->ButtonStyle() == 2);
  }
}

QWidget* CreateFrame(ControlRecord&, QWidget* parent) {
  return new QGroupBox(parent);
}

void UpdateFrame(ControlRecord& r, Property p) {
  if (p == Property::kCaption) {
    static_cast<QGroupBox*>(r.widget)->setTitle(WithoutAccessKeys(r.control->Caption()));
  }
}

QWidget* CreateImage(ControlRecord& r, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setScaledContents(true);
  const QPixmap picture = PictureOf(*r.control);
  if (!picture.isNull()) label->setPixmap(picture);
  return label;
}

void UpdateImage(ControlRecord& r, Property p) {
  if (p == Property::kWidth || p == Property::kHeight) {
    const QPixmap picture = PictureOf(*r.control);
    if (!picture.isNull()) static_cast<QLabel*>(r.widget)->setPixmap(picture);
  }
}

}  // namespace

QString ShownText(const Control& control) {
  if (!control.PasswordChar().empty()) return Masked(control);
  return ToQString(control.Text());
}

const KindView& ViewOf(ControlKind kind) {
  static const KindView kLabelView{CreateLabel, UpdateLabel};
  static const KindView kTextBoxView{CreateTextBox, UpdateTextBox};
  static const KindView kComboView{CreateComboBox, UpdateComboBox};
  static const KindView kDataListView{CreateDataList, UpdateDataList};
  static const KindView kCheckView{CreateCheckBox, UpdateCheckBox};
  static const KindView kOptionView{CreateOptionButton, UpdateOptionButton};
  static const KindView kButtonView{CreateCommandButton, UpdateCommandButton};
  static const KindView kFrameView{CreateFrame, UpdateFrame};
  static const KindView kImageView{CreateImage, UpdateImage};
  static const KindView kLinkView{CreateHyperLink, UpdateHyperLink};
  switch (kind) {
    case ControlKind::kLabel:
      return kLabelView;
    case ControlKind::kTextBox:
      return kTextBoxView;
    case ControlKind::kComboBox:
      return kComboView;
    case ControlKind::kDataList:
      return kDataListView;
    case ControlKind::kCheckBox:
      return kCheckView;
    case ControlKind::kOptionButton:
      return kOptionView;
    case ControlKind::kCommandButton:
    case ControlKind::kStyledButton:
      return kButtonView;
    case ControlKind::kFrame:
      return kFrameView;
    case ControlKind::kImage:
      return kImageView;
    case ControlKind::kHyperLink:
      return kLinkView;
  }
  return kLabelView;
}

}  // namespace nvrandom::qt
