#include "join/GameLaunch.h"

#include <optional>
#include <utility>

#include "core/FailureStyles.h"
#include "core/Numbers.h"
#include "core/PathText.h"
#include "core/Text.h"
#include "core/modReg.h"

namespace vantrel {
namespace {

constexpr const char* checkQuery = "\\";
constexpr const char* gameProgram = "haloce.exe";

std::string switchText(const CheckBox& box, const char* text) {
  return box.isChecked() ? text : " ";
}

}  // namespace

GameLaunch::GameLaunch(const Context& context) : c_(context) {
  addCommand();
  c_.wsPass.onArrival([this](const Datagram& datagram) { arrive(datagram); });
  c_.wsPass.onError(
      [this](const Failure& failure, const std::string& ip, int port) { handleError(failure, ip, port); });
}

GameLaunch::~GameLaunch() {
  c_.wsPass.onArrival({});
  c_.wsPass.onError({});
}

void GameLaunch::addCommand() {
  c_.commands.add(command::launchGame, {[this] {
                                          if (c_.mainWindow.txtIP.text.get().empty()) {
                                            c_.notices.ShowPopMsg("Please select a server to join.");
                                            throw CommandEnded{};
                                          }
                                          if (c_.holdBack()) {
                                            throw CommandEnded{};
                                          }
                                        },
                                        [this] { JoinCheck(); }, [this] { minimizeBuddies(); }});
}

void GameLaunch::JoinCheck() {
  const std::string& ip = c_.mainWindow.txtIP.text.get();
  const std::string& port = c_.mainWindow.txtPort.text.get();
  if (!ip.empty() && !port.empty()) {
    checkedIp_ = trimBlanks(ip);
    checkedPort_ = toPort(port);
    c_.wsPass.send(checkedIp_, checkedPort_, checkQuery);
    checking_ = true;
  }
}

void GameLaunch::minimizeBuddies() {
  if (c_.buddies.visible.get()) {
    c_.buddies.windowState.set(WindowState::minimized);
  }
}

void GameLaunch::arrive(const Datagram& datagram) {
  if (std::exchange(checking_, false)) {
    launch(&datagram);
  }
}

// The refusal of a server that was to be joined before says nothing of this one.
void GameLaunch::handleError(const Failure& failure, const std::string& ip, int port) {
  const bool isChecked = ip == checkedIp_ && port == checkedPort_;
  if (failure.number == failures::connectionReset().number && isChecked && std::exchange(checking_, false)) {
    c_.mainWindow.cmdMenu[command::autoJoinOn].value.set(0);
    c_.notices.ShowPopMsg("Server may not be up anymore. Launching Halo CE.");
    launch(nullptr);
  }
}

void GameLaunch::launch(const Datagram* datagram) {
  const SkippingSteps step;
  std::string passArg = " ";
  std::optional<StatusReply> reply;
  step([&] {
    if (datagram != nullptr) {
      reply = ParseStatusReply(datagram->bytes);
    }
  });
  step([&] {
    const std::string password = reply ? storedPassword(*reply) : std::string();
    passArg = password.empty() ? passArg : " -password " + password + " ";
  });
  if (c_.mainWindow.txtHaloPath.text.get() == notFound) {
    c_.notices.ShowPopMsg("Please go to Settings, and locate HaloCE.exe");
    return;
  }
  minimizeBuddies();
  step([&] {
    if (reply && !c_.mainWindow.txtIP.text.get().empty()) {
      announce(*datagram, *reply);
    }
  });
  startGame(passArg);
}

// Empty when the server wants none, or no favorite of exactly this address has one. The user's selection stays.
std::string GameLaunch::storedPassword(const StatusReply& reply) const {
  const FavoritesList& faves = c_.mainWindow.myFaves1;
  const std::string server = c_.mainWindow.txtIP.text.get() + ":" + c_.mainWindow.txtPort.text.get();
  for (int i = 1; i < reply.count(); ++i) {
    if (reply.element(i) != "password" || reply.element(i + 1) != "1") {
      continue;
    }
    for (int number = 1; number <= faves.count(); ++number) {
      const FavoriteItem& fave = faves.at(number);
      if (!fave.password.empty() && fave.hostname == server) {
        return fave.password;
      }
    }
  }
  return {};
}

void GameLaunch::announce(const Datagram& datagram, const StatusReply& reply) {
  c_.notices.ShowPopMsg("Joining: " + reply.element(0));
  c_.announcer.announceJoin(reply.element(0), datagram.ip + ":" + std::to_string(datagram.port));
}

std::string GameLaunch::commandLine(const std::string& passArg) const {
  const frmMain& window = c_.mainWindow;
  // Blanks around them would part them into more than one argument.
  const std::string ip(trimBlanks(window.txtIP.text.get()));
  const std::string port(trimBlanks(window.txtPort.text.get()));
  const std::string connectArg = port.empty() ? "" : ip.empty() ? " " : " -connect " + ip + ":" + port;
  return switchText(window.chkOptions[1], " -console") + switchText(window.chkOptions[0], " -screenshot") +
         switchText(window.chkOptions[3], " -novideo") + switchText(window.chkOptions[2], " -nojoystick") + passArg +
         " " + std::string(trimBlanks(window.cmbVid.text.get())) + connectArg;
}

// On a disk that minds capitals the folder and the program are looked for without regard to them.
void GameLaunch::startGame(const std::string& passArg) {
  std::string dir;
  for (const std::string& part : split(c_.mainWindow.txtHaloPath.text.get(), pathSeparator)) {
    dir += part + pathSeparator;
  }
  reportAndEnd(
      [&] {
        const std::string program = dir + gameProgram;
        c_.watch.watch(c_.processes.start({.application = c_.files.find(program).value_or(program),
                                           .commandLine = commandLine(passArg),
                                           .directory = c_.files.find(dir).value_or(dir),
                                           .priority = ProcessPriority::high}));
      },
      [&](const Failure&) {
        c_.notices.ShowPopMsg("Unable to launch game \r\nDirectory: " + pathText(dir) + "\r\nExe: " + gameProgram);
      });
}

}  // namespace vantrel
