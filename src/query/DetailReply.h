// One reply of the current server, and how it fills the detail view step by step.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/frmMain.h"
#include "platform/Notices.h"
#include "query/DetailView.h"
#include "query/StatusReply.h"

namespace vantrel {

class DetailReply {
 public:
  DetailReply(std::string_view datagram, frmMain& window, Notices& notices, const DetailView& view);

  // Throws the first failure that it meets, with all done that stands before it: a key without a value, a number that
  // is none or too large, flags without a comma.
  void show(const std::function<void(const std::string& mapFile)>& checkMap);

  // How many there are and can be. REQUIRES: the reply was shown to its end.
  double players() const;
  double maxPlayers() const;

 private:
  // Both as they are in the reply; 0 is a key that it does not have.
  struct Positions {
    int player = 0;
    int score = 0;
    int team = 0;
    int lastRow = 0;  // of the value behind `fraglimit`
  };

  void checkLastMap(const std::function<void(const std::string& mapFile)>& checkMap) const;
  void gather(int i);
  void showScore() const;
  void showTeams() const;
  void showMisc();
  std::string labelAt(int i);
  void showPlayers() const;
  void showRules() const;
  void showSummary() const;

  StatusReply e_;
  frmMain& window_;
  Notices& notices_;
  const DetailView& view_;
  Positions at_;
  std::int16_t red_ = 0;
  std::int16_t blue_ = 0;
  std::int16_t players_ = 0;
  std::string numplayers_;
  std::string maxplayers_;
  std::string flags_;
  std::string password_;
  std::string map_;  // the last one that was shown; empty for none
};

}  // namespace vantrel
