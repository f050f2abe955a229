// The exchange over a message bus keeps the contract, on a bus of the test's own with a client that is not HexChat but
// has its name; and it survives what can become of a bus.
#include "desktop/adapters/DbusDde.h"

#include <signal.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include "desktop/text/Cp1252.h"
#include "support/DdeContract.h"

namespace vantrel {
namespace {

struct StandIn : QDBusVirtualObject {
  QString introspect(const QString& /*path*/) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    if (answers && message.interface() == "org.hexchat.plugin" && message.member() == "Command") {
      taken.push_back("/" + toCp1252(message.arguments().value(0).toString()));
      connection.send(message.createReply());
    }
    return true;
  }

  bool answers = true;
  std::vector<std::string> taken;
};

// The bus would start a program for the client's name, which leaves a file "started".
class DbusHarness {
 public:
  DbusHarness() {
    write("org.hexchat.service.service",
          "[D-BUS Service]\nName=org.hexchat.service\nExec=/usr/bin/touch " + path("started"));
    write("bus.conf", "<busconfig><type>session</type><listen>unix:path=" + path("bus") + "</listen><servicedir>" +
                          folder_.path() +
                          "</servicedir><policy context='default'><allow send_destination='*'/><allow own='*'/>"
                          "<allow receive_sender='*'/></policy></busconfig>");
    qputenv("DBUS_SESSION_BUS_ADDRESS", QFile::encodeName("unix:path=" + path("bus")));
    startBus();
  }
  DbusHarness(const DbusHarness&) = delete;
  DbusHarness& operator=(const DbusHarness&) = delete;
  ~DbusHarness() {
    quitClient();
    stopBus();
    EXPECT_FALSE(QFile::exists(path("started")));
  }

  Dde& dde() { return dde_; }
  void runClient() {
    QDBusConnection bus = QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), "client");
    standIn_.moveToThread(&thread_);
    thread_.start();
    EXPECT_TRUE(bus.registerVirtualObject("/org/hexchat/Remote", &standIn_));
    EXPECT_TRUE(bus.registerService("org.hexchat.service"));
  }
  void quitClient() {
    QDBusConnection::disconnectFromBus("client");
    thread_.quit();
    thread_.wait();
  }
  void hangClient() {
    standIn_.answers = false;
    runClient();
  }
  const std::vector<std::string>& taken() const { return standIn_.taken; }

  void startBus() {
    bus_.start("dbus-daemon", {"--nofork", "--print-address", "--config-file", path("bus.conf")});
    EXPECT_TRUE(bus_.waitForReadyRead()) << "no dbus-daemon: " << bus_.readAllStandardError().toStdString();
  }
  void hangBus() { ::kill(static_cast<pid_t>(bus_.processId()), SIGSTOP); }
  void stopBus() {
    bus_.kill();
    bus_.waitForFinished();
  }

 private:
  QString path(const QString& name) const { return folder_.filePath(name); }
  void write(const QString& name, const QString& text) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0);
  }

  QTemporaryDir folder_;
  QProcess bus_;
  StandIn standIn_;
  QThread thread_;
  DbusDde dde_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Real, DdeContract, DbusHarness);

struct DbusDdeTest : DdeContract<DbusHarness> {};

TEST_F(DbusDdeTest, nothing_but_one_line_that_is_a_command_reaches_the_client) {
  harness.runClient();
  EXPECT_EQ(open("mIRC|Command"), 0);
  EXPECT_EQ(poke(std::string("/me \0a\r\nQUIT\tb\x02\x7f\x8d!", 18)), 0);
  EXPECT_EQ(poke("quit"), 286);
  EXPECT_EQ(poke("\n"), 286);
  EXPECT_EQ(harness.taken(), (std::vector<std::string>{"/me aQUITb!"}));
}

TEST_F(DbusDdeTest, a_bus_may_hang_go_be_missing_and_come_back) {
  harness.hangBus();
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(open(), 282);
  }
  harness.stopBus();
  EXPECT_EQ(open(), 282);
  for (const char* const none : {"", "autolaunch:", "nonsense"}) {
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", none);
    EXPECT_EQ(open(), 282) << none;
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
  }
  harness.startBus();
  harness.runClient();
  EXPECT_EQ(open(), 0);
  EXPECT_EQ(poke("/me is back"), 0);
}

}  // namespace
}  // namespace vantrel
