// The settings: read once into the controls that stand for them, and from then on written by each control the moment
// it changes.
#pragma once

#include <string>
#include <vector>

#include "core/Commands.h"
#include "core/GameFolder.h"
#include "core/SideWindows.h"
#include "core/frmMain.h"
#include "core/modReg.h"
#include "platform/Notices.h"

namespace vantrel {

class Settings {
 public:
  // All of it must outlive this. From now on a changed control is written.
  Settings(frmMain& window, frmMsg& prompt, modReg& registry, Commands& commands, GameFolder& game, Notices& notices);

  // Pours the settings into the controls and opens the first page: the settings while the game's folder is `notFound`,
  // else the servers.
  void LoadSettings();

  // "1" when the splash is not wanted.
  std::string splash() const { return parameter("splash"); }

  // Writes one value of the parameters.
  void setParameter(const std::string& name, const std::string& value);

 private:
  void writeOnChange(CheckBox& box, const std::string& name);
  void announcementsChanged();

  std::string parameter(const std::string& name) const;
  void loadCheckBox(CheckBox& box, const std::string& name);
  void loadAnnouncements();
  void loadAutoJoin();
  void loadAutoRefresh();
  void loadGamePath();
  void openFirstPage();

  frmMain& window_;
  frmMsg& prompt_;
  modReg& registry_;
  Commands& commands_;
  GameFolder& game_;
  std::vector<Connection> connections_;
};

}  // namespace vantrel
