#include "desktop/adapters/QtLoop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <ctime>

#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

std::string localTime(const char* form) {
  const std::time_t now = std::time(nullptr);
  const std::tm* const local = std::localtime(&now);
  char text[128] = "";
  if (local == nullptr || std::strftime(text, sizeof text, form, local) == 0) {
    return {};
  }
  return toCp1252(QString::fromLocal8Bit(text));
}

}  // namespace

QtLoop::QtLoop() {
  clock_.start();
}

QtLoop::~QtLoop() {
  while (!timers_.empty()) {
    stopTimer(timers_.begin()->first);
  }
}

std::uint64_t QtLoop::tickCount() const {
  return static_cast<std::uint64_t>(clock_.elapsed());
}

void QtLoop::wait(int milliseconds) {
  if (ending_) {
    return;
  }
  if (milliseconds <= 0) {
    QCoreApplication::processEvents();
    return;
  }
  // The wait is over when the tick count says so: waits that follow one another keep in step with the ticks, however
  // long the work between them took, as long as it is short of a tick.
  constexpr std::int64_t tick = 1'000'000;  // nanoseconds
  const std::int64_t now = clock_.nsecsElapsed();
  const std::int64_t end = (now / tick + milliseconds) * tick;
  QEventLoop loop;
  const ArrivalNesting::Wait nested(nesting_);
  waits_.push_back(&loop);
  PosixAlarm& alarm = alarmOfDepth(waits_.size());
  if (!alarm.start(end - now)) {
    QTimer::singleShot(milliseconds + 1, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  }
  loop.exec();
  alarm.stop();
  waits_.pop_back();
}

// Each depth of nested waits has one alarm, used again and again.
PosixAlarm& QtLoop::alarmOfDepth(std::size_t depth) {
  while (alarms_.size() < depth) {
    const std::size_t level = alarms_.size();
    alarms_.push_back(std::make_unique<PosixAlarm>([this, level] { waits_[level]->quit(); }));
  }
  return *alarms_[depth - 1];
}

TimerId QtLoop::startTimer(int milliseconds, TimerKind kind, std::function<void()> due) {
  const TimerId id = ++lastTimer_;
  arm(id, timers_.emplace(id, Running{milliseconds, kind, std::move(due), nullptr}).first->second);
  return id;
}

// A toolkit's timer does not fire again inside its own signal, so each call has a timer of its own.
void QtLoop::arm(TimerId id, Running& running) {
  running.timer = new QTimer;
  running.timer->setTimerType(Qt::PreciseTimer);
  running.timer->setSingleShot(true);
  connect(running.timer, &QTimer::timeout, this, [this, id] { fire(id); });
  running.timer->start(running.milliseconds);
}

void QtLoop::fire(TimerId id) {
  const auto found = timers_.find(id);
  if (found == timers_.end()) {
    return;
  }
  // A copy, as the call may stop its timer.
  const std::function<void()> due = found->second.due;
  found->second.timer->deleteLater();
  if (found->second.kind == TimerKind::repeating) {
    arm(id, found->second);
  } else {
    timers_.erase(found);
  }
  due();
}

void QtLoop::stopTimer(TimerId timer) {
  const auto found = timers_.find(timer);
  if (found != timers_.end()) {
    found->second.timer->stop();
    found->second.timer->deleteLater();
    timers_.erase(found);
  }
}

std::string QtLoop::dateAndTime() const {
  return localTime("%x-%X");
}

std::string QtLoop::generalDate() const {
  return localTime("%x %X");
}

std::string QtLoop::fixedDate() const {
  return localTime("%m-%d-%Y");
}

void QtLoop::beginEnding() {
  ending_ = true;
  for (QEventLoop* const wait : waits_) {
    wait->quit();
  }
}

}  // namespace vantrel
