// The Qt event loop as the program's clock, timers and waiting.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <map>
#include <memory>
#include <vector>

#include "desktop/adapters/ArrivalNesting.h"
#include "desktop/adapters/PosixAlarm.h"
#include "platform/Loop.h"

class QEventLoop;
class QTimer;

namespace vantrel {

// One per program, on the thread of the application object, which must outlive it.
class QtLoop : public QObject, public Loop {
 public:
  QtLoop();
  ~QtLoop() override;

  std::uint64_t tickCount() const override;
  void wait(int milliseconds) override;
  TimerId startTimer(int milliseconds, TimerKind kind, std::function<void()> due) override;
  void stopTimer(TimerId timer) override;
  std::string dateAndTime() const override;
  std::string generalDate() const override;
  std::string fixedDate() const override;
  bool ending() const override { return ending_; }

  // What the sockets of this loop share.
  ArrivalNesting& nesting() { return nesting_; }

  // Ends all waits, and from now on no wait waits. The application calls it when it is about to quit.
  void beginEnding();

 private:
  struct Running {
    int milliseconds;
    TimerKind kind;
    std::function<void()> due;
    QTimer* timer;  // deleted from the event loop, as it may be in its own signal
  };

  void arm(TimerId id, Running& running);
  void fire(TimerId id);
  PosixAlarm& alarmOfDepth(std::size_t depth);

  ArrivalNesting nesting_;
  QElapsedTimer clock_;
  std::map<TimerId, Running> timers_;
  TimerId lastTimer_ = 0;
  std::vector<QEventLoop*> waits_;  // under way, the innermost last
  std::vector<std::unique_ptr<PosixAlarm>> alarms_;
  bool ending_ = false;
};

}  // namespace vantrel
