// The Qt view against plain Qt, in one run on the offscreen platform: from the call to ShowForm
// to the biller dialog's first finished paint, against a bare QDialog with the same number and
// kinds of widgets; and a typed character from the key event to the repainted text, against a
// bare QLineEdit in the same place (and a lone one).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <chrono>

#include "api/cls_random.h"
#include "app/thread_context.h"
#include "bare_dialog.h"
#include "component/context.h"
#include "demo_samples.h"
#include "dialogs/biller/random_info_design.h"
#include "form_window.h"
#include "installation_tree.h"
#include "paint_watch.h"
#include "qt_integration.h"
#include "qt_view.h"

namespace nvrandom::bench {
namespace {

constexpr const char* kBiller = "frmRandomInfo";
constexpr const char* kBare = "bare";

double Seconds(Clock::duration d) {
  return std::chrono::duration<double>(d).count();
}

struct Host {
  scenario::InstallationTree tree;
  qt::Integration integration;
};
Host& TheHost() {
  static Host host;
  return host;
}

QWidget* ShownWindow(const char* name) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == QLatin1String(name) && widget->isVisible()) return widget;
  }
  return nullptr;
}

bool InWindow(QWidget& widget, const char* name) {
  return widget.window()->objectName() == QLatin1String(name);
}

// One key pressed and released on `target`, as the window system delivers it.
void PressKey(QWidget& target, int key, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&target, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QApplication::sendEvent(&target, &release);
}

// The time from one key to the end of the edit field's repaint.
double KeyToPaint(PaintWatch& watch, QWidget& edit, int key, const QString& text) {
  bool painted = false;
  watch.Arm([&edit](QWidget& w) { return &w == &edit; }, [&painted] { painted = true; });
  const auto start = Clock::now();
  PressKey(edit, key, text);
  WaitFor(painted);
  return Seconds(watch.painted() - start);
}

// Each iteration types "a" (timed) and takes it back with Backspace (not timed).
void TypeInto(benchmark::State& state, PaintWatch& watch, QWidget& edit) {
  for (auto _ : state) {
    state.SetIterationTime(KeyToPaint(watch, edit, Qt::Key_A, QStringLiteral("a")));
    KeyToPaint(watch, edit, Qt::Key_Backspace, QString());
  }
}

void LoadBusinessSample(ClsRandom& biller) {
  app::ThreadContext().store = ComponentStore{};
  demo::LoadSample(biller, "business", TheHost().tree.install());
}

// From ShowForm to the first finished paint of `biller`'s dialog, which is closed then. Not
// inlined, so that a profile (callgrind) names the two measures apart.
[[gnu::noinline]] double BillerFirstPaint(PaintWatch& watch, ClsRandom& biller) {
  // The close box, once the dialog is painted (or after ten seconds, not to hang the run).
  auto close = [] {
    if (QWidget* window = ShownWindow(kBiller)) window->close();
  };
  watch.Arm([](QWidget& w) { return InWindow(w, kBiller); }, close);
  QTimer guard;
  guard.setSingleShot(true);
  QObject::connect(&guard, &QTimer::timeout, close);
  guard.start(10000);
  const auto start = Clock::now();
  biller.ShowForm();
  const double seconds = Seconds(watch.painted() - start);
  // The closed dialog's window goes now, not during the next measure.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return seconds;
}

// From making the bare dialog to its first finished paint.
[[gnu::noinline]] double BareFirstPaint(PaintWatch& watch) {
  bool painted = false;
  watch.Arm([](QWidget& w) { return InWindow(w, kBare); }, [&painted] { painted = true; });
  const auto start = Clock::now();
  auto dialog = MakeBareDialog(RandomInfoForm(), RandomInfoControls());
  dialog->show();
  WaitFor(painted);
  return Seconds(watch.painted() - start);
}

void BM_FirstPaint_BillerDialog(benchmark::State& state) {
  PaintWatch watch;
  for (auto _ : state) {
    ClsRandom biller;
    LoadBusinessSample(biller);
    state.SetIterationTime(BillerFirstPaint(watch, biller));
  }
}

void BM_FirstPaint_BareDialog(benchmark::State& state) {
  PaintWatch watch;
  for (auto _ : state) state.SetIterationTime(BareFirstPaint(watch));
}

// Both first paints in each iteration, each first in turn, so that the load of a shared machine
// and what one leaves in the caches weigh on both alike: the ratio of their sums is the figure
// the view is held to.
void BM_FirstPaint_BillerOverBare(benchmark::State& state) {
  PaintWatch watch;
  double biller_total = 0;
  double bare_total = 0;
  bool biller_first = true;
  for (auto _ : state) {
    ClsRandom biller;
    LoadBusinessSample(biller);
    const double bare_before = biller_first ? 0.0 : BareFirstPaint(watch);
    const double biller_time = BillerFirstPaint(watch, biller);
    const double bare_time = biller_first ? BareFirstPaint(watch) : bare_before;
    biller_total += biller_time;
    bare_total += bare_time;
    biller_first = !biller_first;
    state.SetIterationTime(biller_time + bare_time);
  }
  using benchmark::Counter;
  state.counters["biller_ms"] = Counter(biller_total * 1e3, Counter::kAvgIterations);
  state.counters["bare_ms"] = Counter(bare_total * 1e3, Counter::kAvgIterations);
  state.counters["ratio"] = bare_total > 0 ? biller_total / bare_total : 0.0;
}

void BM_KeyToPaint_BillerStreet(benchmark::State& state) {
  PaintWatch watch;
  ClsRandom biller;
  LoadBusinessSample(biller);
  biller.ShowForm_Remote();
  auto* window = static_cast<qt::FormWindow*>(ShownWindow(kBiller));
  QWidget* street = window != nullptr ? window->WidgetOf("ran_payee_street") : nullptr;
  if (street == nullptr) {
    state.SkipWithError("the biller dialog did not open");
    return;
  }
  KeyToPaint(watch, *street, Qt::Key_End, QString());
  TypeInto(state, watch, *street);
  biller.Unload_From_Remote();
}

// The same edit field of the bare dialog: the same frames around it to repaint.
void BM_KeyToPaint_BareLineEdit(benchmark::State& state) {
  PaintWatch watch;
  auto dialog = MakeBareDialog(RandomInfoForm(), RandomInfoControls());
  auto* street = dialog->findChild<QLineEdit*>(QStringLiteral("ran_payee_street"));
  if (street == nullptr) {
    state.SkipWithError("the bare dialog has no street");
    return;
  }
  street->setText(QStringLiteral("100 KING ST W"));
  dialog->show();
  street->setFocus();
  KeyToPaint(watch, *street, Qt::Key_End, QString());
  TypeInto(state, watch, *street);
}

// A lone QLineEdit on an empty window: the least a repainted character costs.
void BM_KeyToPaint_LoneLineEdit(benchmark::State& state) {
  PaintWatch watch;
  QWidget window;
  auto* edit = new QLineEdit(QStringLiteral("100 KING ST W"), &window);
  edit->setGeometry(10, 10, 200, 21);
  window.show();
  edit->setFocus();
  KeyToPaint(watch, *edit, Qt::Key_End, QString());
  TypeInto(state, watch, *edit);
}

BENCHMARK(BM_FirstPaint_BillerDialog)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FirstPaint_BareDialog)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FirstPaint_BillerOverBare)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_KeyToPaint_BillerStreet)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_KeyToPaint_BareLineEdit)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_KeyToPaint_LoneLineEdit)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace nvrandom::bench

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  nvrandom::bench::TheHost();  // the dialogs' fonts and the Qt services, before any dialog
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
