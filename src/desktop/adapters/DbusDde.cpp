#include "desktop/adapters/DbusDde.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QUrl>
#include <atomic>
#include <chrono>
#include <memory>
#include <utility>

#include "desktop/text/Cp1252.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds longest{500};  // that the window waits
constexpr milliseconds answers{400};  // within which the others have to, so that the work is over before the wait is

constexpr QLatin1String clientName("org.hexchat.service");

// Empty when there is no session. The library would look further, and start a bus where it finds none.
QString busAddress() {
  const QString named = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
  if (!named.isEmpty()) {
    return named.contains(QLatin1String("autolaunch:")) ? QString() : named;
  }
  const QString usual = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
  return QFileInfo::exists(usual)
             ? QStringLiteral("unix:path=") + QString::fromLatin1(QUrl::toPercentEncoding(usual, "/", "~"))
             : QString();
}

// A connection of its own for one call. The one that the whole toolkit shares could not be mended once it is broken.
class BusCall {
 public:
  explicit BusCall(const QString& address)
      : deadline_(Clock::now() + answers),
        name_(QStringLiteral("vantrel-dde-%1").arg(reinterpret_cast<quintptr>(this))),
        bus_(QDBusConnection::connectToBus(address, name_)) {}
  BusCall(const BusCall&) = delete;
  BusCall& operator=(const BusCall&) = delete;
  ~BusCall() { QDBusConnection::disconnectFromBus(name_); }

  // The answer, or none. Nothing is sent when connecting took so long that the caller has already been told of a
  // failure.
  QDBusMessage ask(QDBusMessage question) const {
    const auto left = std::chrono::duration_cast<milliseconds>(deadline_ - Clock::now()).count();
    if (left <= 0 || !bus_.isConnected()) {
      return {};
    }
    question.setAutoStartService(false);
    return bus_.call(question, QDBus::Block, static_cast<int>(left));
  }

 private:
  Clock::time_point deadline_;
  QString name_;
  QDBusConnection bus_;
};

// Whether the answer to `question` is as wanted; a thread of its own asks.
template <class Wanted>
bool isAnswered(Errand& errand, const QDBusMessage& question, Wanted wanted) {
  const QString address = busAddress();
  if (address.isEmpty()) {
    return false;
  }
  const auto isWanted = std::make_shared<std::atomic<bool>>(false);
  return errand.begin([=] { *isWanted = wanted(BusCall(address).ask(question)); }) && errand.isOverWithin(longest) &&
         *isWanted;
}

bool clientRuns(Errand& errand) {
  const QString bus = QStringLiteral("org.freedesktop.DBus");
  QDBusMessage question =
      QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus, QStringLiteral("NameHasOwner"));
  question << QString(clientName);
  return isAnswered(errand, question, [](const QDBusMessage& answer) {
    return answer.type() == QDBusMessage::ReplyMessage && answer.arguments().value(0).toBool();
  });
}

bool clientTakes(Errand& errand, const QString& command) {
  QDBusMessage question =
      QDBusMessage::createMethodCall(clientName, QStringLiteral("/org/hexchat/Remote"),
                                     QStringLiteral("org.hexchat.plugin"), QStringLiteral("Command"));
  question << command;
  return isAnswered(errand, question,
                    [](const QDBusMessage& answer) { return answer.type() == QDBusMessage::ReplyMessage; });
}

// The client hands a line break on to the server, where it ends one command and begins another.
QString withoutControls(QString text) {
  constexpr QChar colour(3);
  text.removeIf([colour](QChar c) { return c.category() == QChar::Other_Control && c != colour; });
  return text;
}

}  // namespace

void DbusDde::open(const std::string& topic) {
  close();
  const bool isKnown = fromCp1252(topic).compare(QLatin1String("mirc|command"), Qt::CaseInsensitive) == 0;
  if (!isKnown || !clientRuns(errand_)) {
    throw failures::noForeignApplication();
  }
  isOpen_ = true;
}

void DbusDde::poke(const std::string& /*item*/, const std::string& text) {
  if (!isOpen_) {
    throw failures::noConversation();
  }
  const QString command = withoutControls(fromCp1252(text));
  if (!command.startsWith(u'/') || !clientTakes(errand_, command.mid(1))) {
    throw failures::foreignApplicationRefused();
  }
}

}  // namespace vantrel
