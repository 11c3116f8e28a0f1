#pragma once

#include <QObject>
#include <chrono>
#include <functional>

class QWidget;

namespace nvrandom::bench {

using Clock = std::chrono::steady_clock;

// Watches the application's paint events for the first one that `matches` accepts, and notes
// the time once that paint is over (the backing store flushed: the next turn of the event loop),
// then runs `done`.
class PaintWatch final : public QObject {
 public:
  PaintWatch();
  ~PaintWatch() override;

  void Arm(std::function<bool(QWidget&)> matches, std::function<void()> done);
  Clock::time_point painted() const { return painted_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<bool(QWidget&)> matches_;
  std::function<void()> done_;
  Clock::time_point painted_;
  bool armed_ = false;
};

// Runs the event loop until `painted` becomes true, for at most ten seconds (false then).
bool WaitFor(const bool& painted);

}  // namespace nvrandom::bench
