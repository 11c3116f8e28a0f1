#include "paint_watch.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace nvrandom::bench {

PaintWatch::PaintWatch() {
  qApp->installEventFilter(this);
}

PaintWatch::~PaintWatch() {
  qApp->removeEventFilter(this);
}

void PaintWatch::Arm(std::function<bool(QWidget&)> matches, std::function<void()> done) {
  matches_ = std::move(matches);
  done_ = std::move(done);
  armed_ = true;
}

bool PaintWatch::eventFilter(QObject* watched, QEvent* event) {
  if (armed_ && event->type() == QEvent::Paint && watched->isWidgetType() &&
      matches_(*static_cast<QWidget*>(watched))) {
    armed_ = false;
    // The paint that follows this event is part of the same repaint: the time is taken when
    // the event loop turns again.
    QTimer::singleShot(0, this, [this] {
      painted_ = Clock::now();
      if (done_) done_();
    });
  }
  return false;
}

bool WaitFor(const bool& painted) {
  const auto give_up = Clock::now() + std::chrono::seconds(10);
  while (!painted && Clock::now() < give_up) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  return painted;
}

}  // namespace nvrandom::bench
