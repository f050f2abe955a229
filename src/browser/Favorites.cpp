#include "browser/Favorites.h"

#include "core/FailureStyles.h"
#include "core/Numbers.h"
#include "core/PumpWait.h"
#include "core/Text.h"

namespace vantrel {
namespace {

constexpr int pauseAfterAdding = 100;  // milliseconds; a second press of a double one comes to nothing meanwhile

constexpr const char* unknownGameType = "Undefined";

}  // namespace

Favorites::Favorites(const FavoritesContext& context)
    : c_(context), window_(context.stores.mainWindow), list_(window_.myFaves1) {
  addCommands();
  connections_.push_back(list_.itemClicked.connect([this](int) {
    ClearFaveEditor();
    ShowFave();
  }));
  for (TextBox* const box :
       {&window_.txtID, &window_.txtServerName, &window_.txtIP2, &window_.txtPort2, &window_.txtPass}) {
    enableClearing(box->text, "");
  }
  enableClearing(window_.cmbGameType.text, unknownGameType);
}

// Clearing disables its own button. It is there again as soon as there is something to clear.
void Favorites::enableClearing(Field<std::string>& text, const std::string& nothing) {
  connections_.push_back(text.changed.connect([this, &text, nothing] {
    if (text.get() != nothing) {
      window_.cmdMenu[command::clearFaveEditor].enabled.set(true);
    }
  }));
}

void Favorites::addCommands() {
  Commands& commands = c_.commands;
  commands.add(command::addCurrentFave, [this] { addCurrent(); });
  commands.add(command::addFave, {
                                     [this] { requireEdited(); },
                                     [this] { addEdited(); },
                                     [this] { c_.storeFiles.AddFaveEdited(file()); },
                                     [this] { ClearFaveEditor(); },
                                     [this] { window_.cmdMenu[command::addFave].enabled.set(false); },
                                     [this] { PumpWait(c_.stores.loop, pauseAfterAdding); },
                                     [this] { window_.cmdMenu[command::addFave].enabled.set(true); },
                                 });
  commands.add(command::editFave, [this] { edit(); });
  const auto tellUpdate = [this] { c_.stores.notices.popUpBalloon(editedHostname() + " was updated", "Success"); };
  commands.add(command::updateFave, {[this] { update(); }, [this] { writeUpdate(); }, [this] { ShowFave(); },
                                     [this, tellUpdate] { clearBehind(tellUpdate); }});
  const auto rewrite = [this] { c_.rewrites.saveFaves(file()); };
  commands.add(command::deleteFave, {[this] { remove(); }, [this, rewrite] { clearBehind(rewrite); }});
  commands.add(command::clearFaveEditor, [this] { ClearFaveEditor(); });
  commands.add(command::setFavePicture, [this] { choosePicture(); });
  commands.add(command::removeFavePicture, [this] {
    list_.picture.set("");
    storePicture("");
  });
}

bool Favorites::IsFave(const std::string& hostname) {
  for (int k = 1; k <= list_.count(); ++k) {
    list_.makeCurrent(k);
    if (list_.current().hostname == hostname) {
      c_.stores.notices.popUpBalloon("It's in your faves already. Favorite # " + std::to_string(k), "");
      return true;
    }
  }
  return false;
}

void Favorites::ClearFaveEditor() {
  window_.List1.clear();
  for (TextBox* const box :
       {&window_.txtIP2, &window_.txtPort2, &window_.txtServerName, &window_.txtPass, &window_.txtID}) {
    box->text.set("");
  }
  window_.cmbGameType.text.set(unknownGameType);
  window_.cmdMenu[command::updateFave].enabled.set(true);
  window_.cmdMenu[command::clearFaveEditor].enabled.set(false);
}

std::vector<std::string> Favorites::editorTexts() const {
  std::vector<std::string> texts{window_.txtID.text.get(),   window_.txtServerName.text.get(),
                                 window_.txtIP2.text.get(),  window_.txtPort2.text.get(),
                                 window_.txtPass.text.get(), window_.cmbGameType.text.get()};
  for (int i = 0; i < window_.List1.count(); ++i) {
    texts.push_back(window_.List1.line(i));
  }
  return texts;
}

// What the user has put into the editor while something waited stays there.
void Favorites::clearBehind(const Commands::Step& wait) {
  const std::vector<std::string> before = editorTexts();
  wait();
  if (editorTexts() == before) {
    ClearFaveEditor();
  }
}

void Favorites::ShowFave() {
  if (list_.selected() <= 0) {
    return;
  }
  list_.makeCurrent(list_.selected());
  const FavoriteItem item = list_.current();
  window_.List1.clear();
  window_.List1.add(item.name);
  window_.List1.add("halo://" + item.hostname + "/");
  window_.List1.add("GameType: " + item.gametype);
  window_.List1.add("Stored Password: " + item.password);
  makeCurrentServer(item.hostname);
  window_.txtID.text.set(std::to_string(list_.selected()));
  window_.cmdMenu[command::updateFave].enabled.set(true);
}

// The box of the address splits off the port. Where there is none, that of another server must not stay.
void Favorites::makeCurrentServer(const std::string& hostname) {
  if (hostname.find(':') == std::string::npos) {
    window_.txtPort.text.set("");
  }
  window_.txtIP.text.set(hostname);
}

void Favorites::addCurrent() {
  const std::string title = "Problem Adding Favorite";
  stopUnless(IsDottedQuad(window_.txtIP.text.get()), "Invalid IP", title);
  stopUnless(isNumeric(window_.txtPort.text.get()), "Invalid Port", title);
  const std::string hostname = window_.txtIP.text.get() + ":" + window_.txtPort.text.get();
  // The first favorite of an empty list has to come through the editor.
  if (list_.count() == 0 || IsFave(hostname)) {
    return;
  }
  list_.add({unknownGameType, "", hostname, window_.lblData.caption.get()});
  c_.storeFiles.AddFaveCurrent(file());
  c_.stores.notices.ShowPopMsg("Server was added as Favorite # " + std::to_string(list_.count()));
}

void Favorites::requireEdited() {
  stopUnless(IsDottedQuad(window_.txtIP2.text.get()), "Valid IP required to add a favorite!", "");
  stopUnless(isNumeric(window_.txtPort2.text.get()), "Valid port required to add a favorite!", "");
}

void Favorites::addEdited() {
  if (window_.txtServerName.text.get().empty()) {
    window_.txtServerName.text.set(editedHostname());
  }
  if (window_.cmbGameType.text.get().empty()) {
    window_.cmbGameType.text.set(unknownGameType);
  }
  list_.add(
      {window_.cmbGameType.text.get(), window_.txtPass.text.get(), editedHostname(), window_.txtServerName.text.get()});
}

void Favorites::edit() {
  requireSelected("Server must be selected to ensure the right one is edited.", "Double Click The Server To Edit");
  list_.makeCurrent(list_.selected());
  const FavoriteItem item = list_.current();
  const std::string number = std::to_string(list_.selected());
  ClearFaveEditor();
  window_.List1.add("Editing: Favorite # " + number);
  window_.cmbGameType.text.set(item.gametype.empty() ? unknownGameType : item.gametype);
  window_.txtServerName.text.set(item.name);
  window_.txtPass.text.set(item.password);
  window_.txtIP2.text.set(item.hostname);
  makeCurrentServer(item.hostname);
  window_.txtID.text.set(number);
}

// The number in the editor counts: the selection may have gone on to another favorite since the editor was filled.
void Favorites::update() {
  requireSelected("To update, you must first select a favorite!", "Error");
  const int number = toInteger16(window_.txtID.text.get());
  if (number != list_.selected()) {
    list_.makeCurrent(number);
  }
  list_.setHostname(number, editedHostname());
  list_.setName(number, window_.txtServerName.text.get());
  list_.setPassword(number, window_.txtPass.text.get());
  list_.setGametype(number, window_.cmbGameType.text.get());
}

// Until a rewrite is complete, the numbers in the file may be those of favorites before one of them was deleted. It
// writes the list, and with it this change.
void Favorites::writeUpdate() {
  if (c_.rewrites.isUnderWay(file())) {
    c_.rewrites.saveFaves(file());
    return;
  }
  // An editor that was never filled takes all away that the favorite held.
  if (window_.txtIP2.text.get().empty()) {
    c_.stores.profiles.keepCopy(file());
  }
  c_.storeFiles.UpdateFave(file());
}

// The later favorites move up, and so does the number of the one in the editor.
void Favorites::remove() {
  if (list_.selected() <= 0) {
    throw Failure{failures::subscriptOutOfRange().number, "No favorite is selected."};
  }
  const int removed = list_.selected();
  list_.remove(removed);
  stopSilently([&] {
    const int edited = toInteger16(window_.txtID.text.get());
    if (edited >= removed) {
      window_.txtID.text.set(edited == removed ? std::string() : std::to_string(edited - 1));
    }
  });
}

// A dialog that was cancelled leaves the picture that is kept.
void Favorites::choosePicture() {
  const std::string present = list_.picture.get();
  FileQuestion question;
  question.title = "Load Background Picture";
  question.filter = "All Suported Types|*.bmp; *.jpg; *.jpeg; *.gif";
  question.folder = present.substr(0, present.find_last_of('/') + 1);
  const SkippingSteps step;
  std::optional<std::string> path;
  step([&] { path = c_.dialogs.askFile(question); });
  if (path) {
    if (*path == present) {  // What the file holds may be another picture now.
      list_.picture.changed.fire();
    }
    list_.picture.set(*path);
    step([&] { storePicture(*path); });
  }
}

void Favorites::storePicture(const std::string& path) {
  if (c_.stores.folder.AppFileExists("\\settings.ini")) {
    c_.stores.profiles.WriteIniValue(c_.stores.folder.path("\\settings.ini"), "FAVESPIC", "picture", path);
  }
}

void Favorites::requireSelected(const std::string& text, const std::string& title) const {
  stopUnless(list_.selected() > 0, text, title);
}

void Favorites::stopUnless(bool condition, const std::string& text, const std::string& title) const {
  if (!condition) {
    c_.stores.notices.popUpBalloon(text, title);
    throw CommandEnded{};
  }
}

std::string Favorites::editedHostname() const {
  return window_.txtIP2.text.get() + ":" + window_.txtPort2.text.get();
}

}  // namespace vantrel
