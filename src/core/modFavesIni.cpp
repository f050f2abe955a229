#include "core/modFavesIni.h"

#include "core/FailureStyles.h"
#include "core/Numbers.h"
#include "core/Text.h"

namespace vantrel {

std::int16_t modFavesIni::readCount(const std::string& file, const StoreFormat& format) {
  c_.profiles.requireReadable(file);
  const std::string text = c_.profiles.ReadIniValue(file, format.countSection, format.countKey);
  return trimBlanks(text).empty() ? std::int16_t{0} : toInteger16(text);
}

void modFavesIni::writeCount(const std::string& file, const StoreFormat& format, std::int16_t count) {
  c_.profiles.WriteIniValue(file, format.countSection, format.countKey, std::to_string(count));
}

// The number of the item to add. Where the file holds an item of that number already, its count is wrong, and a copy
// keeps what the new item writes over.
std::int16_t modFavesIni::nextNumber(const std::string& file, const StoreFormat& format) {
  const std::int16_t number = addInteger16(readCount(file, format), 1);
  if (c_.profiles.content(file).hasSection(std::to_string(number))) {
    c_.profiles.keepCopy(file);
  }
  return number;
}

void modFavesIni::LoadFaves() {
  const std::string file = c_.folder.path("\\favorites.ini");
  const std::int16_t count = readCount(file, favoritesFormat);
  for (int i = 1; i <= count; ++i) {
    const std::string section = std::to_string(i);
    FavoriteItem item;
    item.gametype = c_.profiles.ReadIniValue(file, section, "gametype");
    item.password = c_.profiles.ReadIniValue(file, section, "password");
    item.hostname = c_.profiles.ReadIniValue(file, section, "hostname");
    item.name = c_.profiles.ReadIniValue(file, section, "name");
    c_.mainWindow.myFaves1.add(item);
  }
  c_.profiles.noteLoaded(file);
}

void modFavesIni::LoadBuddies() {
  FavoritesList& list = c_.buddies.myFaves1;
  if (list.count() > 0) {
    return;
  }
  const std::string file = c_.folder.path("\\buddies.ini");
  if (c_.profiles.isDrafted(file)) {
    return;
  }
  const std::int16_t count = readCount(file, buddiesFormat);
  for (int i = 1; i <= count; ++i) {
    const std::string section = std::to_string(i);
    FavoriteItem item;
    item.hostname = c_.profiles.ReadIniValue(file, section, "lastserver");
    item.name = c_.profiles.ReadIniValue(file, section, "buddyname");
    list.add(item);
  }
  c_.profiles.noteLoaded(file);
}

void modFavesIni::LoadMirrors() {
  const std::string file = c_.folder.path("\\mirrors.ini");
  const std::int16_t count = readCount(file, mirrorsFormat);
  for (int i = 1; i <= count; ++i) {
    std::string mirror = c_.profiles.ReadIniValue(file, std::to_string(i), "Mirror");
    if (mirror.ends_with('/')) {
      c_.mirror.lstMirrors.add(mirror);
    } else if (mirror.size() >= 2) {
      c_.mirror.lstMirrors.add(mirror + "/");
    }
  }
  c_.profiles.noteLoaded(file);
}

void modFavesIni::writeFave(const std::string& file, const std::string& section, const FavoriteItem& item) {
  c_.profiles.WriteIniValue(file, section, "name", item.name);
  c_.profiles.WriteIniValue(file, section, "hostname", item.hostname);
  c_.profiles.WriteIniValue(file, section, "gametype", item.gametype);
  c_.profiles.WriteIniValue(file, section, "password", item.password);
}

void modFavesIni::writeFave(const std::string& file, const FavoriteItem& item) {
  const std::int16_t number = nextNumber(file, favoritesFormat);
  writeFave(file, std::to_string(number), item);
  writeCount(file, favoritesFormat, number);
}

void modFavesIni::AddFave(const std::string& file, const std::string& name, const std::string& password,
                          const std::string& hostname, const std::string& gametype) {
  writeFave(file, {gametype, password, hostname, name});
}

void modFavesIni::AddFaveCurrent(const std::string& file) {
  const std::string hostname = c_.mainWindow.txtIP.text.get() + ":" + c_.mainWindow.txtPort.text.get();
  writeFave(file, {"Undefined", "", hostname, hostname});
}

FavoriteItem modFavesIni::editedFave() const {
  const frmMain& window = c_.mainWindow;
  return {window.cmbGameType.text.get(), window.txtPass.text.get(),
          window.txtIP2.text.get() + ":" + window.txtPort2.text.get(), window.txtServerName.text.get()};
}

void modFavesIni::AddFaveEdited(const std::string& file) {
  writeFave(file, editedFave());
}

void modFavesIni::UpdateFave(const std::string& file) {
  c_.profiles.requireReadable(file);
  const std::int16_t number = toInteger16(c_.mainWindow.txtID.text.get());
  writeFave(file, std::to_string(number), editedFave());
}

std::int16_t modFavesIni::storedBuddies() {
  return readCount(c_.folder.path("\\buddies.ini"), buddiesFormat);
}

void modFavesIni::AddBuddyEntry(const std::string& file, const std::string& buddyname, const std::string& lastserver) {
  const std::int16_t number = nextNumber(file, buddiesFormat);
  const std::string section = std::to_string(number);
  c_.profiles.WriteIniValue(file, section, "buddyname", buddyname);
  c_.profiles.WriteIniValue(file, section, "lastserver", lastserver);
  writeCount(file, buddiesFormat, number);
}

void modFavesIni::AddBuddy(const std::string& buddyname, const std::string& lastserver) {
  reportAndEnd([&] { AddBuddyEntry(c_.folder.path("\\buddies.ini"), buddyname, lastserver); },
               [this](const Failure& failure) {
                 c_.notices.popUpBalloon("Problem Adding Buddy: Error " + std::to_string(failure.number) +
                                             " - Description: " + failure.description +
                                             ".\r\nTry deleting your favorites.ini in the Vantrel folder.",
                                         "");
               });
}

void modFavesIni::AddMirrorEntry(const std::string& file, const std::string& mirror) {
  const std::int16_t number = nextNumber(file, mirrorsFormat);
  c_.profiles.WriteIniValue(file, std::to_string(number), "Mirror", mirror);
  writeCount(file, mirrorsFormat, number);
}

void modFavesIni::WriteServerCache(const std::string& file, std::int16_t number, const ServerEntry& server) {
  if (number < 1) {
    throw failures::subscriptOutOfRange();
  }
  const auto write = [&](const std::string& section, const char* key, const std::string& value) {
    c_.profiles.WriteIniValue(file, section, key, value, WritePace::whenGrown);
  };
  const std::string section = std::to_string(number);
  write(section, "name", server.name);
  write(section, "ip", server.ip);
  write(section, "port", server.port);
  write(section, "mapname", server.mapname);
  write(section, "players", server.players);
  write(section, "gametype", server.gametype);
  write(section, "password", server.password);
  write("SERVERCOUNT", "Servers", section);
  write("SERVERCOUNT", "Time", c_.loop.dateAndTime());
}

void modFavesIni::NewFaves(const std::string& file) {
  c_.profiles.appendLine(file, favoritesFormat.header);
  writeCount(file, favoritesFormat, 0);
}

void modFavesIni::NewBuddies(const std::string& file) {
  c_.profiles.appendLine(file, buddiesFormat.header);
  writeCount(file, buddiesFormat, 0);
}

void modFavesIni::NewMirrors(const std::string& file) {
  c_.profiles.appendLine(file, mirrorsFormat.header);
  if (c_.mirror.lstMirrors.count() > 0) {
    writeCount(file, mirrorsFormat, 0);
    return;
  }
  writeCount(file, mirrorsFormat, 1);
  c_.profiles.WriteIniValue(file, "1", "mirror", c_.site.mirror);
  c_.profiles.WriteIniValue(file, "1", "mirrorurl", c_.site.mirrorSite);
}

void modFavesIni::NewSettings(const std::string& file) {
  c_.profiles.appendLine(file, "[SETTINGS]");
  c_.profiles.WriteIniValue(file, "FAVESPIC", "picture", "");
}

}  // namespace vantrel
