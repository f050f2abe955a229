#include "query/MasterExchange.h"

#include "core/FailureStyles.h"
#include "core/PumpWait.h"
#include "core/Text.h"
#include "query/modGSAlgorithm.h"

namespace vantrel {
namespace {

constexpr const char* gameKey = "k7Wm2Q";
constexpr std::string_view greetingMark = "\\basic";
constexpr int pauseBehindQuery = 10;  // milliseconds

}  // namespace

MasterExchange::MasterExchange(const Context& context) : c_(context) {
  c_.ws1.onArrival([this](const std::string& bytes) { handleArrival(bytes); });
  c_.ws1.onEnded([this] { walk(reader_.finish()); });
}

MasterExchange::~MasterExchange() {
  c_.ws1.onArrival({});
  c_.ws1.onEnded({});
}

void MasterExchange::start() {
  frmMain& window = c_.mainWindow;
  window.grdServers.updating.set(false);
  window.grdServers.clear();
  for (TextBox* const total : {&window.txtPlayers, &window.txtCTF, &window.txtSlayer, &window.txtOther}) {
    total->text.set("0");
  }
  c_.players.lstPlayers.clear();
  c_.players.lblSearchfor.caption.set(window.txtPlayer.text.get());
  window.grdServers.updating.set(true);

  ++exchange_;
  greetingStart_.clear();
  reader_.reset();
  c_.progress.begin();
  c_.ws1.close();
  if (c_.ws1.state() != SocketState::connected) {
    c_.ws1.connect(c_.site.masterHost, port);
  }
}

void MasterExchange::handleArrival(const std::string& bytes) {
  std::string text = bytes;
  if (reader_.untouched()) {
    // The network may cut the greeting inside its first word.
    text = greetingStart_ + bytes;
    if (text.size() < greetingMark.size() && greetingMark.starts_with(text)) {
      greetingStart_ = text;
      return;
    }
    greetingStart_.clear();
  }
  if (text.starts_with(greetingMark)) {
    reader_.reset();
    answer(text);
  } else {
    walk(reader_.read(text));
  }
}

void MasterExchange::answer(const std::string& greeting) {
  const SkippingSteps step;
  const std::string challenge = split(greeting, '\\').back();
  std::string validation;
  step([&] { validation = GSValidate(challenge, gameKey); });
  step([&] {
    c_.ws1.send("\\basic\\gamename\\halom\\location\\0\\validate\\" + validation +
                "\\final\\queryid\\1.1\\\\list\\cmp\\gamename\\halom\\final\\");
  });
}

// A walk ends with its list, with the exchange it belongs to, and with the program.
void MasterExchange::walk(const std::vector<ServerAddress>& addresses) {
  if (addresses.empty()) {
    return;
  }
  const std::uint32_t exchange = exchange_;
  const SkippingSteps step;
  ++walks_;
  c_.progress.listed.set(c_.progress.listed.get() + static_cast<int>(addresses.size()));
  c_.progress.walking.set(true);
  for (const ServerAddress& address : addresses) {
    if (exchange != exchange_ || c_.loop.ending()) {
      break;
    }
    step([&] { c_.sweep.QueryServer(address.ip, address.port); });
    PumpWait(c_.loop, pauseBehindQuery);
  }
  --walks_;
  if (walks_ == 0) {
    c_.progress.walking.set(false);
  }
}

}  // namespace vantrel
