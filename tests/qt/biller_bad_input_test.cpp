// The biller dialog in its windows under what a host or a person should not do: nothing crashes,
// nothing typed is lost, and the model and the widgets agree afterwards.
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>
#include <vector>

#include "api/cls_random.h"
#include "biller_windows.h"
#include "demo_samples.h"

namespace nvrandom::qt {
namespace {

constexpr int32_t kCancelled = 50000;

class BillerBadInputTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<BillerWindows> windows_;
  QtMessageBoxService* boxes_ = nullptr;

  static std::vector<forms::Form*> BillerForms() { return BillerWindows::Loaded("frmRandomInfo"); }
  FormWindow* WindowOf(forms::Form& form) const { return windows_->WindowOf(form); }
  QLineEdit* Street(forms::Form& form) const {
    FormWindow* window = WindowOf(form);
    return window != nullptr ? qobject_cast<QLineEdit*>(window->WidgetOf("ran_payee_street"))
                             : nullptr;
  }
  // Appends `text` to the street as the person types it, and checks both sides show `expected`.
  void TypeOnStreet(forms::Form& form, const char* text, const char* expected) {
    QLineEdit* street = Street(form);
    QVERIFY(street != nullptr);
    QTest::keyClick(street, Qt::Key_End);
    QTest::keyClicks(street, text);
    QCOMPARE(form.Ctl("ran_payee_street").Text(), expected);
    QCOMPARE(street->text(), QString(expected));
  }
  // Closes every biller dialog still open but `keep`, so that no modal show outlives a failed
  // check.
  void CloseAll(const forms::Form* keep = nullptr) {
    for (forms::Form* form : BillerForms()) {
      FormWindow* window = WindowOf(*form);
      if (form != keep && window != nullptr) window->close();
    }
  }

 private slots:
  void initTestCase() {
    windows_ = std::make_unique<BillerWindows>();
    QVERIFY(windows_->ok());
    boxes_ = BillerWindows::boxes();
  }
  void init() { BillerWindows::ResetRecord(); }
  void cleanup() {
    boxes_->on_shown = nullptr;
    QVERIFY(BillerForms().empty());
  }
  void cleanupTestCase() { windows_.reset(); }

  // A host that calls ShowForm again while a biller dialog is open gets a second dialog over the
  // first; each keeps what was typed into it, and each closes on its own.
  void aSecondShowFormWhileOneIsOpen() {
    ClsRandom first;
    demo::LoadSample(first, "business", windows_->install());
    int32_t inner_result = -1;
    bool checked = false;
    QTimer::singleShot(0, this, [&] {
      const auto close = qScopeGuard([this] { CloseAll(); });
      QCOMPARE(BillerForms().size(), size_t{1});
      forms::Form& outer = *BillerForms().front();
      TypeOnStreet(outer, " b", "100 KING ST W B");
      QTimer::singleShot(0, this, [&] {
        const auto close_inner = qScopeGuard([&] { CloseAll(&outer); });
        QCOMPARE(BillerForms().size(), size_t{2});
        forms::Form& inner = *BillerForms().back();
        QVERIFY(&inner != &outer && WindowOf(inner) != WindowOf(outer));
        TypeOnStreet(inner, " c", "100 KING ST W C");
        QCOMPARE(outer.Ctl("ran_payee_street").Text(), "100 KING ST W B");
        QCOMPARE(Street(outer)->text(), QString("100 KING ST W B"));
      });
      ClsRandom second;
      inner_result = second.ShowForm();
      QCOMPARE(BillerForms().size(), size_t{1});
      QCOMPARE(outer.Ctl("ran_payee_street").Text(), "100 KING ST W B");
      QCOMPARE(Street(outer)->text(), QString("100 KING ST W B"));
      TypeOnStreet(outer, "d", "100 KING ST W BD");
      checked = true;
    });
    const int32_t outer_result = first.ShowForm();
    QVERIFY(checked);
    QCOMPARE(inner_result, kCancelled);
    QCOMPARE(outer_result, kCancelled);
  }

  // The host unloads the dialog while one of its message boxes waits for the person: the box
  // goes with it, the modal show returns, and the typed text is not accepted.
  void theDialogUnloadedUnderItsMessageBox() {
    ClsRandom biller;
    demo::LoadSample(biller, "business", windows_->install());
    QString shown;
    boxes_->on_shown = [&](QMessageBox& box) {
      shown = box.text();
      QPointer<QMessageBox> alive(&box);
      biller.Unload_From_Remote();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      if (alive) alive->reject();
    };
    QTimer::singleShot(0, this, [&] {
      const auto close = qScopeGuard([this] { CloseAll(); });
      forms::Form& form = *BillerForms().front();
      QLineEdit* street = Street(form);
      QVERIFY(street != nullptr);
      // The box opens over the dialog, as it does for a person.
      WindowOf(form)->activateWindow();
      QVERIFY(QTest::qWaitForWindowActive(WindowOf(form)));
      street->selectAll();
      QTest::keyClicks(street, "a");  // too short a street: a message
      QCOMPARE(form.Ctl("ran_payee_street").Text(), "A");
      QTest::mouseClick(WindowOf(form)->WidgetOf("cmd_ok"), Qt::LeftButton);
    });
    biller.ShowForm();
    QVERIFY2(!shown.isEmpty(), "the empty street was accepted");
    QCOMPARE(QString::fromStdString(ToText(biller.Get("PayeeStreet"))), QString("100 KING ST W"));
  }
};

}  // namespace
}  // namespace nvrandom::qt

QTEST_MAIN(nvrandom::qt::BillerBadInputTest)
#include "biller_bad_input_test.moc"
