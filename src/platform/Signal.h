// A list of listeners that is told when something happened.
//
// A fire survives everything a listener may do meanwhile: fire again (also while an outer fire waits in it), connect,
// disconnect itself or others, and destroy the signal. A listener that was connected during a fire is first called by
// the next one; a listener that was disconnected is not called any more, not even by a fire already under way.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vantrel {

// The untyped half of a signal's list: what a Connection needs to know of it.
class ListenerList {
 public:
  virtual ~ListenerList() = default;
  virtual void drop(std::uint64_t id) = 0;
};

// Holds a listener's place; the listener is dropped when the Connection is destroyed, assigned over or disconnected.
// It may outlive the signal.
class [[nodiscard]] Connection {
 public:
  Connection() = default;
  Connection(std::weak_ptr<ListenerList> list, std::uint64_t id) : list_(std::move(list)), id_(id) {}
  Connection(Connection&& other) noexcept : list_(std::move(other.list_)), id_(other.id_) { other.list_.reset(); }
  Connection& operator=(Connection&& other) noexcept {
    if (this != &other) {
      disconnect();
      list_ = std::move(other.list_);
      id_ = other.id_;
      other.list_.reset();
    }
    return *this;
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection() { disconnect(); }

  void disconnect() {
    if (const auto list = list_.lock()) {
      list->drop(id_);
    }
    list_.reset();
  }

 private:
  std::weak_ptr<ListenerList> list_;
  std::uint64_t id_ = 0;
};

template <class... Args>
class Signal {
 public:
  using Listener = std::function<void(Args...)>;

  Signal() = default;
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;
  ~Signal() { list_->closed = true; }

  Connection connect(Listener listener) {
    list_->entries.push_back({++list_->lastId, std::make_shared<Listener>(std::move(listener))});
    return {list_, list_->lastId};
  }

  // Whether anybody would hear it: what is told only to listeners need not be made without any.
  bool hasListeners() const { return !list_->entries.empty(); }

  // Calls the listeners in the order in which they were connected. What a listener throws goes to the caller, and the
  // listeners behind it are then not called.
  void fire(Args... args) const {
    const std::shared_ptr<List> list = list_;
    const Nesting nesting(*list);
    const std::size_t count = list->entries.size();
    for (std::size_t i = 0; i < count && !list->closed; ++i) {
      const std::shared_ptr<Listener> listener = list->entries[i].listener;
      if (listener) {
        (*listener)(args...);
      }
    }
  }

 private:
  struct Entry {
    std::uint64_t id;
    std::shared_ptr<Listener> listener;  // empty once dropped
  };

  struct List : ListenerList {
    std::vector<Entry> entries;
    std::uint64_t lastId = 0;
    int depth = 0;  // of the fires under way; entries keep their places while it is not 0
    bool closed = false;

    void drop(std::uint64_t id) override {
      const auto found = std::find_if(entries.begin(), entries.end(), [id](const Entry& e) { return e.id == id; });
      if (found != entries.end()) {
        const std::shared_ptr<Listener> released = std::move(found->listener);
        found->listener.reset();
        compact();
      }
    }

    void compact() {
      if (depth == 0) {
        std::erase_if(entries, [](const Entry& e) { return !e.listener; });
      }
    }
  };

  struct Nesting {
    explicit Nesting(List& l) : list(l) { ++list.depth; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;
    ~Nesting() {
      --list.depth;
      list.compact();
    }
    List& list;
  };

  std::shared_ptr<List> list_ = std::make_shared<List>();
};

}  // namespace vantrel
