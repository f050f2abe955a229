#include "sandbox/QueryLog.h"

#include <algorithm>

#include "sandbox/CodePage.h"

namespace vantrel::sandbox {
namespace {

struct Mark {
  char sign;
  bool sandboxSends;
};

Mark markOf(LogEvent event) {
  switch (event) {
    case LogEvent::QueryReceived:
    case LogEvent::MasterReceived:
    case LogEvent::WebReceived:
      return {'<', false};
    case LogEvent::ReplySent:
    case LogEvent::MasterSent:
    case LogEvent::WebSent:
      return {'>', true};
    case LogEvent::QueryLost:
      return {'x', false};
    case LogEvent::ReplyLost:
      return {'x', true};
    case LogEvent::MasterNote:
      break;
  }
  return {'-', false};
}

}  // namespace

std::string lineOf(const LogEntry& entry) {
  const Mark mark = markOf(entry.event);
  std::string time = std::to_string(entry.milliseconds);
  time.insert(0, 4 - std::min<std::size_t>(4, time.size()), '0');
  return time + " " + (mark.sandboxSends ? entry.from : entry.to) + " " + mark.sign + " " + visibleUtf8(entry.text);
}

void QueryLog::restart() {
  const std::lock_guard lock(mutex_);
  start_ = std::chrono::steady_clock::now();
  entries_.clear();
  counts_ = {};
}

void QueryLog::add(LogEvent event, const Endpoint& from, const Endpoint& to, std::string_view text) {
  LogEntry entry{0, event, from.text(), to.text(), std::string(text.substr(0, 256))};
  const std::lock_guard lock(mutex_);
  const auto elapsed = std::chrono::steady_clock::now() - start_;
  entry.milliseconds =
      static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count());
  entries_.push_back(std::move(entry));
  ++counts_.at(static_cast<std::size_t>(event));
}

std::vector<LogEntry> QueryLog::entries(std::size_t first) const {
  const std::lock_guard lock(mutex_);
  return {entries_.begin() + static_cast<std::ptrdiff_t>(std::min(first, entries_.size())), entries_.end()};
}

std::size_t QueryLog::count(LogEvent event) const {
  const std::lock_guard lock(mutex_);
  return counts_.at(static_cast<std::size_t>(event));
}

}  // namespace vantrel::sandbox
