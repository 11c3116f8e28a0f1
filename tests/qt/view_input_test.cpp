// The view against a small form of its own: what a person does to the widgets reaches the model
// through the runtime, and what the model then holds is what the widgets show.
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <array>
#include <memory>

#include "form_window.h"
#include "forms/application.h"
#include "forms/form.h"
#include "qt_fonts.h"
#include "qt_services.h"
#include "qt_units.h"
#include "qt_view.h"

namespace nvrandom::qt {
namespace {

using K = forms::ControlKind;

const forms::FormDesign kDesign{"frmProbe", "Probe", 6000, 4000, false};

// A control of the probe form: 2000 x 315 twips unless its design gives its own size.
constexpr forms::ControlDesign At(int32_t left, int32_t top, forms::ControlDesign design) {
  design.left = left;
  design.top = top;
  if (design.width == 0) design.width = 2000;
  if (design.height == 0) design.height = 315;
  return design;
}

const std::array<forms::ControlDesign, 10> kControls = {{
    At(120, 120, {.kind = K::kTextBox, .name = "txtUpper", .max_length = 6, .tab_index = 0}),
    At(120, 540, {.kind = K::kLabel, .name = "lblPlain", .caption = "&Plain text:", .width = 1300}),
    At(1500, 540, {.kind = K::kTextBox, .name = "txtPlain", .width = 2600, .tab_index = 1}),
    At(120, 960, {.kind = K::kTextBox, .name = "txtSecret", .tab_index = 2}),
    At(120, 1380, {.kind = K::kCheckBox, .name = "chkTick", .caption = "&Tick", .tab_index = 3}),
    At(2400, 1380, {.kind = K::kFrame, .name = "fraChoice", .width = 3000, .height = 1200}),
    At(120, 300,
       {.kind = K::kOptionButton, .name = "optOne", .container = "fraChoice", .tab_index = 4}),
    At(120, 700,
       {.kind = K::kOptionButton, .name = "optTwo", .container = "fraChoice", .tab_index = 5}),
    At(3000, 2700, {.kind = K::kDataList, .name = "dlCountry", .width = 2400, .tab_index = 8}),
    At(120, 2700, {.kind = K::kCommandButton, .name = "cmdOK", .caption = "&OK", .tab_index = 7}),
}};

// Its handlers change and refuse keys, move on when a field is full, refuse a paste, count clicks.
class ProbeForm final : public forms::Form {
 public:
  explicit ProbeForm(forms::Application& app) : forms::Form(app, kDesign, kControls) {
    On("txtUpper").KeyPress = [](int16_t& key) {
      if (key >= '0' && key <= '9') key = 0;
      if (key >= 'a' && key <= 'z') key = static_cast<int16_t>(key - 32);
    };
    On("txtUpper").Change = [this] {
      if (Ctl("txtUpper").Text().size() == 6) this->app().SetFocus(Ctl("txtPlain"));
    };
    On("txtSecret").KeyPress = [](int16_t& key) {
      if (key == 22) key = 0;  // no paste into the secret
    };
    On("cmdOK").Click = [this] { ++clicks; };
  }
  void Form_Load() override {
    Ctl("txtSecret").SetPasswordChar("*");
    Ctl("dlCountry").SetColumnHeadings({"Country", "Code"});
    Ctl("dlCountry").SetBoundColumn(1);
    Ctl("dlCountry").SetRows({{"Canada", "CA"}, {"France", "FR"}, {"Japan", "JP"}});
  }
  int clicks = 0;
};

class ViewInputTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<QtClipboardService> clipboard_;
  std::unique_ptr<forms::Application> app_;
  std::unique_ptr<QtView> view_;
  std::shared_ptr<ProbeForm> form_;

  FormWindow& Window() { return *view_->WindowOf(*form_); }
  template <typename W>
  W* Widget(std::string_view name) {
    return qobject_cast<W*>(Window().WidgetOf(name));
  }
  forms::Control& Ctl(std::string_view name) { return form_->Ctl(name); }
  // The control and its edit field both hold `text`.
  bool Holds(std::string_view name, const char* text) {
    auto* edit = Widget<QLineEdit>(name);
    return Ctl(name).Text() == text && edit != nullptr && edit->text() == QString::fromUtf8(text);
  }
  // The control has the focus, in the model and in the widgets.
  bool HasFocus(std::string_view name) {
    return app_->Focused() == &Ctl(name) && QApplication::focusWidget() == Window().WidgetOf(name);
  }

 private slots:
  void init() {
    InstallDialogFonts();
    clipboard_ = std::make_unique<QtClipboardService>();
    app_ = std::make_unique<forms::Application>(*clipboard_);
    view_ = std::make_unique<QtView>(*app_);
    form_ = std::make_shared<ProbeForm>(*app_);
    form_->Show(false);
    QVERIFY(QTest::qWaitForWindowExposed(&Window()));
  }
  void cleanup() {
    if (form_->IsLoaded()) form_->Unload();
    form_.reset();
    view_.reset();
    app_.reset();
  }

  // Each key goes to the widget that has the focus when it is typed: after the handlers changed
  // or refused it, and after they moved the focus on. Editing keys and the selection agree too.
  void typingAndEditingGoThroughTheHandlersAndBack() {
    QCOMPARE(QApplication::focusWidget(), Widget<QLineEdit>("txtUpper"));
    for (const char c : std::string_view("ab1cdefgh")) {
      QTest::keyClick(QApplication::focusWidget(), c);
    }
    QVERIFY(Holds("txtUpper", "ABCDEF"));
    QVERIFY(HasFocus("txtPlain"));
    QVERIFY(Holds("txtPlain", "gh"));
    QLineEdit* edit = Widget<QLineEdit>("txtPlain");
    QTest::keyClicks(edit, "ello");
    QTest::keyClick(edit, Qt::Key_Home);
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClick(edit, Qt::Key_End);
    QTest::keyClick(edit, Qt::Key_Backspace);
    QVERIFY(Holds("txtPlain", "hell"));
    QCOMPARE(edit->cursorPosition(), 4);
    Ctl("txtPlain").SetSelection(1, 2);
    QCOMPARE(edit->selectedText(), QString("el"));
    edit->setSelection(0, 1);  // as the mouse selects
    QCOMPARE(Ctl("txtPlain").SelStart(), 0);
    QCOMPARE(Ctl("txtPlain").SelLength(), 1);
  }

  // Alt with an underlined letter is the model's access key; Qt's own mnemonic, which would tick
  // the box behind the model's back, does not act.
  void accessKeysGoThroughTheModel() {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_T, Qt::AltModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_O, Qt::AltModifier);
    QTest::qWait(300);  // past a mnemonic's animated click
    QCOMPARE(Ctl("chkTick").Value(), 1);
    QCOMPARE(Widget<QCheckBox>("chkTick")->checkState(), Qt::Checked);
    QCOMPARE(form_->clicks, 1);
    QVERIFY(HasFocus("cmdOK"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_P, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), Widget<QLineEdit>("txtPlain"));
    // The label also names the input for assistive tools; an input with no label has no name.
    QCOMPARE(Widget<QLineEdit>("txtPlain")->accessibleName(), QString("Plain text:"));
    QVERIFY(Widget<QLineEdit>("txtUpper")->accessibleName().isEmpty());
  }

  // The widget shows the mask, the model holds the text; a paste the handler refuses puts nothing
  // in, one it allows puts the clipboard's text in.
  void maskedTextAndPastesReachTheModel() {
    QLineEdit* secret = Widget<QLineEdit>("txtSecret");
    QTest::mouseClick(secret, Qt::LeftButton);
    QTest::keyClicks(secret, "s3");
    QCOMPARE(Ctl("txtSecret").Text(), "s3");
    QCOMPARE(secret->text(), QString("**"));
    QApplication::clipboard()->setText("pasted");
    QTest::keyClick(secret, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(Ctl("txtSecret").Text(), "s3");
    QLineEdit* plain = Widget<QLineEdit>("txtPlain");
    QTest::mouseClick(plain, Qt::LeftButton);
    QTest::keyClick(plain, Qt::Key_V, Qt::ControlModifier);
    QVERIFY(Holds("txtPlain", "pasted"));
  }

  // Text an input method commits is typed as its characters; an edit Qt would make on its own, as
  // a drop or a pasted X selection does, leaves the field showing the model's text.
  void qtsOwnEditsGoThroughTheModel() {
    QLineEdit* plain = Widget<QLineEdit>("txtPlain");
    QTest::mouseClick(plain, Qt::LeftButton);
    QInputMethodEvent composed;
    composed.setCommitString(QString::fromUtf8("été 東京"));
    QApplication::sendEvent(plain, &composed);
    QVERIFY(Holds("txtPlain", "été 東京"));
    plain->insert("zz");
    QVERIFY(Holds("txtPlain", "été 東京"));
  }

  void clicksAndChoicesReachTheModel() {
    QTest::mouseClick(Widget<QCheckBox>("chkTick"), Qt::LeftButton);
    QCOMPARE(Ctl("chkTick").Value(), 1);
    QCOMPARE(Widget<QCheckBox>("chkTick")->checkState(), Qt::Checked);
    QTest::mouseClick(Widget<QRadioButton>("optOne"), Qt::LeftButton);
    QTest::mouseClick(Widget<QRadioButton>("optTwo"), Qt::LeftButton);
    QCOMPARE(Ctl("optTwo").Value(), -1);
    QVERIFY(!Widget<QRadioButton>("optOne")->isChecked());
    QTest::mouseClick(Widget<QPushButton>("cmdOK"), Qt::LeftButton);
    QCOMPARE(form_->clicks, 1);
  }

  // A data list drops down its rows in columns under their headings, read from the model; a
  // row chosen there is the model's choice, by its code.
  void aDataListShowsItsRowsAndTakesAChoice() {
    auto* list = Widget<QComboBox>("dlCountry");
    list->showPopup();
    auto* table = qobject_cast<QTableView*>(list->view());
    QVERIFY(table != nullptr);
    QCOMPARE(table->model()->rowCount(), 3);
    QCOMPARE(table->model()->headerData(1, Qt::Horizontal).toString(), QString("Code"));
    list->hidePopup();
    emit list->activated(2);
    QCOMPARE(Ctl("dlCountry").BoundText(), "JP");
    QCOMPARE(list->lineEdit()->text(), QString("Japan"));
    Ctl("dlCountry").SetRows({{"Peru", "PE"}});
    QCOMPARE(list->model()->rowCount(), 1);
    QCOMPARE(list->model()->index(0, 1).data().toString(), QString("PE"));
  }

  // The widgets follow the model's focus, and a frame's state reaches the widgets inside it.
  // Hiding the focused control moves the focus on, in the widgets too.
  void focusAndStatesFollowTheModel() {
    form_->app().SetFocus(Ctl("txtSecret"));
    QVERIFY(HasFocus("txtSecret"));
    Ctl("fraChoice").SetEnabled(false);
    QVERIFY(!Widget<QRadioButton>("optOne")->isEnabled());
    Ctl("txtSecret").SetVisible(false);
    QVERIFY(!Widget<QLineEdit>("txtSecret")->isVisible());
    QVERIFY(HasFocus("chkTick"));
  }

  // Each widget shows its control's colours in every state it is drawn in, whether its palette is
  // its own or its container's; a container's later colour does not reach the controls inside
  // it that had the same colour until then.
  void eachWidgetKeepsItsOwnColours() {
    constexpr uint32_t kWhite = 0xFFFFFF;
    constexpr uint32_t kRed = 0x0000FF;
    const auto shows = [this](std::string_view name, QPalette::ColorRole role, uint32_t colour) {
      QWidget* widget = Window().WidgetOf(name);
      const QColor wanted = ToQColor(colour, QApplication::palette());
      const QPalette::ColorGroup drawn =
          widget->isEnabled() ? QPalette::Active : QPalette::Disabled;
      return widget->palette().color(drawn, role) == wanted &&
             widget->palette().color(QPalette::Inactive, role) == wanted;
    };
    form_->SetBackColor(kWhite);
    QCOMPARE(Window().palette().color(QPalette::Window), QColor(Qt::white));
    QVERIFY(shows("lblPlain", QPalette::Window, forms::colors::kButtonFace));
    Ctl("fraChoice").SetBackColor(kRed);
    QVERIFY(shows("optTwo", QPalette::Window, forms::colors::kButtonFace));
    Ctl("optTwo").SetBackColor(kRed);
    Ctl("fraChoice").SetBackColor(forms::colors::kButtonFace);
    QVERIFY(shows("optTwo", QPalette::Window, kRed));
    // Disabled, a control is drawn in its own colours, not the style's disabled ones.
    Ctl("txtPlain").SetForeColor(kRed);
    Ctl("txtPlain").SetEnabled(false);
    QVERIFY(shows("txtPlain", QPalette::Base, forms::colors::kWindowBackground));
    QVERIFY(shows("txtPlain", QPalette::Text, kRed));
    Ctl("fraChoice").SetEnabled(false);
    QVERIFY(shows("optOne", QPalette::WindowText, forms::colors::kWindowText));
  }

  void aDestroyedHostParentTakesTheWindowAndAShowMakesANewOne() {
    form_->Unload();
    auto parent = std::make_unique<QWidget>();
    parent->resize(800, 600);
    parent->show();
    view_->SetEmbedParent(parent.get());
    form_->Show(false);
    QCOMPARE(Window().parentWidget(), parent.get());
    QCOMPARE(form_->hWnd(), static_cast<int64_t>(Window().winId()));
    QTest::keyClicks(Widget<QLineEdit>("txtUpper"), "ab");
    parent.reset();
    QVERIFY(view_->WindowOf(*form_) == nullptr);
    QCOMPARE(Ctl("txtUpper").Text(), "AB");  // the model keeps what was typed
    form_->Hide();
    form_->Show(false);
    QVERIFY(QTest::qWaitForWindowExposed(&Window()));
    QCOMPARE(Widget<QLineEdit>("txtUpper")->text(), QString("AB"));
  }

  void aModalShowRunsUntilTheFormCloses() {
    form_->Unload();
    QTimer::singleShot(0, this, [this] {
      QVERIFY(Window().isModal());
      QTest::keyClicks(Widget<QLineEdit>("txtUpper"), "zz");
      QTest::mouseClick(Widget<QPushButton>("cmdOK"), Qt::LeftButton);
      form_->Hide();
    });
    form_->Show(true);
    QCOMPARE(form_->clicks, 1);
    QCOMPARE(Ctl("txtUpper").Text(), "ZZ");
    QVERIFY(form_->IsLoaded());
  }

  void messageBoxesAnswerWithTheirButtons() {
    QtMessageBoxService boxes;
    boxes.on_shown = [&](QMessageBox& box) {
      QCOMPARE(box.defaultButton(), box.button(QMessageBox::No));
      box.button(QMessageBox::Yes)->click();
    };
    QCOMPARE(boxes.Show("Is this biller for an international payment?",
                        msgbox::kYesNo | msgbox::kInformation | msgbox::kDefaultButton2, "Biller"),
             msgbox::kYes);
    boxes.on_shown = [](QMessageBox& box) { box.reject(); };  // Escape, or the close box
    QCOMPARE(boxes.Show("Sure?", msgbox::kOKCancel | msgbox::kQuestion, "Biller"), msgbox::kCancel);
  }
};

}  // namespace
}  // namespace nvrandom::qt

QTEST_MAIN(nvrandom::qt::ViewInputTest)
#include "view_input_test.moc"
