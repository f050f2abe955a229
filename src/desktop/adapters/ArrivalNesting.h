// How deep the handlers of arrivals are nested, and when a socket has to hold back what arrives.
//
// A handler that waits is entered again by the next arrival of its socket. Handlers of one socket that are nested
// directly inside one another are a run. A run that is `maximumNesting` deep closes the socket's gate until it has come
// down entirely, so that a flood cannot keep its outermost handler from ending. But a wait of somebody else on top of a
// run, the walk of a list or a pass of pings, may take long, and the socket must not be deaf for as long: there a new
// run begins. All runs together are at most `maximumDepth` deep.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace vantrel {

class ArrivalNesting {
 public:
  static constexpr int maximumDepth = 512;

  ArrivalNesting() = default;
  ArrivalNesting(const ArrivalNesting&) = delete;
  ArrivalNesting& operator=(const ArrivalNesting&) = delete;

  // The gate of one socket; may be destroyed inside `run`. `nesting` must outlive it.
  class Gate {
   public:
    // `changed` is called when the gate opens or closes.
    Gate(ArrivalNesting& nesting, std::function<void()> changed);
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;
    ~Gate();

    // While it is closed the socket enters no handler.
    bool isOpen() const { return open_; }
    // Runs a handler of an arrival, one level deeper.
    void run(const std::function<void()>& handler);

   private:
    friend class ArrivalNesting;

    ArrivalNesting& nesting_;
    std::function<void()> changed_;
    std::uint64_t id_;
    bool open_ = true;
  };

  // Lives as long as one wait of the loop.
  class Wait {
   public:
    explicit Wait(ArrivalNesting& nesting);
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;
    ~Wait();

   private:
    ArrivalNesting& nesting_;
    bool outerInnermostIsWait_;
    bool beganRun_ = false;
  };

 private:
  struct Run {
    std::uint64_t gate;  // 0 for the wait of something that is no arrival
    int depth;
    bool comingDown;
  };

  void enter(std::uint64_t gate);
  void leave();
  void refresh();

  std::vector<Run> runs_;
  std::vector<Gate*> gates_;
  std::uint64_t lastId_ = 0;
  int depth_ = 0;
  bool innermostIsWait_ = false;
};

}  // namespace vantrel
