// The biller dialog in its windows. As a person sees it: each layout drawn at its designed size,
// every caption readable in the font the view really uses, the dialogs' fonts found, the cheque's
// picture drawn. Unloaded by the host under its message box: nothing crashes and nothing typed
// is accepted.
#include <QAbstractButton>
#include <QApplication>
#include <QFontInfo>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QStyle>
#include <QTest>
#include <QTimer>
#include <vector>

#include "api/cls_random.h"
#include "biller_windows.h"
#include "demo_samples.h"
#include "qt_fonts.h"
#include "qt_units.h"

namespace nvrandom::qt {
namespace {

// Why a shown widget's caption does not fit its designed box ("" when it fits).
QString Clipping(QWidget& widget) {
  const QFontMetrics metrics(widget.font());
  QString text;
  QSize room = widget.size();
  QSize needed;
  if (auto* label = qobject_cast<QLabel*>(&widget)) {
    if (label->text().isEmpty() || !label->pixmap().isNull()) return {};
    text = label->text();
    room = label->contentsRect().size();
    needed = metrics
                 .boundingRect(QRect(0, 0, room.width(), 1 << 20), Qt::TextWordWrap | Qt::AlignLeft,
                               text)
                 .size();
  } else if (auto* button = qobject_cast<QPushButton*>(&widget)) {
    text = button->text().remove(u'&');
    const int margin = widget.style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, &widget);
    needed = {metrics.horizontalAdvance(text) + 2 * margin, 0};
  } else if (auto* box = qobject_cast<QAbstractButton*>(&widget)) {
    // A check box or option button: the box, its spacing and the text, its own size hint.
    text = box->text();
    needed = {widget.sizeHint().width(), 0};
  } else if (auto* frame = qobject_cast<QGroupBox*>(&widget)) {
    // The title and the frame's line on either side of it: the box's own least width.
    text = frame->title().remove(u'&');
    needed = {frame->minimumSizeHint().width(), 0};
  }
  if (needed.width() <= room.width() && needed.height() <= room.height()) return {};
  return QStringLiteral("%1 needs %2 x %3 px for \"%4\", has %5 x %6")
      .arg(widget.objectName())
      .arg(needed.width())
      .arg(needed.height())
      .arg(text)
      .arg(room.width())
      .arg(room.height());
}

// A picture that shows something: more than a handful of colours, and no colour covering
// almost all of it.
bool ShowsSomething(const QImage& image) {
  QHash<QRgb, qsizetype> counts;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
  }
  qsizetype largest = 0;
  for (const qsizetype n : counts) largest = std::max(largest, n);
  const qsizetype all = qsizetype{image.width()} * image.height();
  return counts.size() > 4 && largest < all * 97 / 100;
}

class BillerWindowsTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<BillerWindows> windows_;
  QStringList messages_;

  FormWindow* WindowOf(std::string_view name) const { return windows_->WindowOf(name); }
  FormWindow* WindowOf(forms::Form& form) const { return windows_->WindowOf(form); }
  static std::vector<forms::Form*> BillerForms() { return BillerWindows::Loaded("frmRandomInfo"); }
  // Closes every biller dialog still open, so that no modal show outlives a failed check.
  void CloseAll() {
    for (forms::Form* form : BillerForms()) {
      if (FormWindow* window = WindowOf(*form)) window->close();
    }
  }

  // The biller dialog on a sample, in a window of its own (nullptr when it did not open).
  FormWindow* Open(ClsRandom& biller, const std::string& sample) {
    demo::LoadSample(biller, sample, windows_->install());
    if (biller.ShowForm_Remote() != 0) return nullptr;
    FormWindow* window = WindowOf("frmRandomInfo");
    return window != nullptr && QTest::qWaitForWindowExposed(window) ? window : nullptr;
  }

  // Drawn at its designed size, showing something, with every shown caption fitting its box.
  void CheckDrawing(FormWindow& window) {
    const QImage picture = window.grab().toImage();
    const double dpi = ScreenDpi();
    QCOMPARE(picture.size(), QSize(TwipsToPixels(window.form()->Width(), dpi),
                                   TwipsToPixels(window.form()->Height(), dpi)));
    QVERIFY2(ShowsSomething(picture), qPrintable(window.objectName()));
    QStringList clipped;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      if (!widget->isVisibleTo(&window) || widget->objectName().isEmpty()) continue;
      if (const QString why = Clipping(*widget); !why.isEmpty()) clipped << why;
    }
    QVERIFY2(clipped.isEmpty(), qPrintable(clipped.join(u'\n')));
  }

 private slots:
  void initTestCase() {
    windows_ = std::make_unique<BillerWindows>();
    QVERIFY(windows_->ok());
  }
  void init() {
    app::ThreadContext().store = ComponentStore{};  // as a new host process starts
    // A message box would wait for a person: none is expected unless a test says so.
    BillerWindows::boxes()->on_shown = [this](QMessageBox& box) {
      messages_ << box.text();
      box.reject();
    };
  }
  void cleanup() {
    QVERIFY2(messages_.isEmpty(), qPrintable(messages_.join(u'\n')));
    messages_.clear();
    QVERIFY(BillerForms().empty());
  }
  void cleanupTestCase() { windows_.reset(); }

  // Each layout of the biller dialog, and the dialogs its buttons open (the foreign bank details
  // on the international layout, the sample cheque on the individual one): drawn at its size,
  // nothing clipped, in the dialog's font; the cheque shows its picture, not an empty box.
  void eachDialogIsDrawnWhole_data() {
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("form");
    for (const std::string_view sample : demo::SampleNames()) {
      QTest::newRow(sample.data())
          << QString::fromLatin1(sample.data(), sample.size()) << QString() << QString();
    }
    QTest::newRow("foreign bank") << "international"
                                  << "cmdFXBankingInfo"
                                  << "frmFXBankInfo";
    QTest::newRow("cheque") << "individual"
                            << "cmdCheque"
                            << "frmCheque";
  }
  void eachDialogIsDrawnWhole() {
    QFETCH(QString, sample);
    QFETCH(QString, button);
    QFETCH(QString, form);
    ClsRandom biller;
    const auto unload = qScopeGuard([&] { biller.Unload_From_Remote(); });
    FormWindow* window = Open(biller, sample.toStdString());
    QVERIFY(window != nullptr);
    CheckDrawing(*window);
    QCOMPARE(QFontInfo(window->WidgetOf("lblStreet")->font()).family(), QString("MS Sans Serif"));
    if (button.isEmpty()) return;
    auto* opener = qobject_cast<QPushButton*>(window->WidgetOf(button.toStdString()));
    QVERIFY(opener != nullptr && opener->isVisible() && opener->isEnabled());
    // The dialog the button opens modally, checked while it is open, then closed however the
    // checks end, so that the modal show returns.
    const std::string name = form.toStdString();
    bool checked = false;
    QTimer::singleShot(0, this, [&] {
      const auto close = qScopeGuard([&] {
        if (FormWindow* opened = WindowOf(name)) opened->close();
      });
      FormWindow* opened = WindowOf(name);
      QVERIFY(opened != nullptr && QTest::qWaitForWindowExposed(opened));
      CheckDrawing(*opened);
      if (name == "frmFXBankInfo") {
        QCOMPARE(QFontInfo(opened->WidgetOf("cmd_ok")->font()).family(), QString("Tahoma"));
      } else {
        QWidget* picture = opened->WidgetOf("picture");
        QVERIFY(picture != nullptr && picture->isVisible());
        QVERIFY(ShowsSomething(picture->grab().toImage()));
      }
      checked = true;
    });
    QTest::mouseClick(opener, Qt::LeftButton);
    QVERIFY(checked);
  }

  // The host unloads the dialog while one of its message boxes waits for the person: the box
  // goes with it, the modal show returns, and the typed text is not accepted.
  void theDialogUnloadedUnderItsMessageBox() {
    ClsRandom biller;
    demo::LoadSample(biller, "business", windows_->install());
    QString shown;
    BillerWindows::boxes()->on_shown = [&](QMessageBox& box) {
      shown = box.text();
      QPointer<QMessageBox> alive(&box);
      biller.Unload_From_Remote();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      if (alive) alive->reject();
    };
    QTimer::singleShot(0, this, [&] {
      const auto close = qScopeGuard([this] { CloseAll(); });
      forms::Form& form = *BillerForms().front();
      FormWindow* window = WindowOf(form);
      QVERIFY(window != nullptr);
      auto* street = qobject_cast<QLineEdit*>(window->WidgetOf("ran_payee_street"));
      QVERIFY(street != nullptr);
      // The box opens over the dialog, as it does for a person.
      window->activateWindow();
      QVERIFY(QTest::qWaitForWindowActive(window));
      street->selectAll();
      QTest::keyClicks(street, "a");  // too short a street: a message
      QCOMPARE(form.Ctl("ran_payee_street").Text(), "A");
      QTest::mouseClick(window->WidgetOf("cmd_ok"), Qt::LeftButton);
    });
    biller.ShowForm();
    QVERIFY2(!shown.isEmpty(), "the empty street was accepted");
    QCOMPARE(QString::fromStdString(ToText(biller.Get("PayeeStreet"))), QString("100 KING ST W"));
  }
};

}  // namespace
}  // namespace nvrandom::qt

QTEST_MAIN(nvrandom::qt::BillerWindowsTest)
#include "biller_windows_test.moc"
