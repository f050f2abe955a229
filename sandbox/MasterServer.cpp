#include "sandbox/MasterServer.h"

#include <netinet/tcp.h>
#include <sys/epoll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <string_view>

#include "sandbox/Random.h"
#include "sandbox/Validation.h"

namespace vantrel::sandbox {
namespace {

constexpr std::string_view kGameKey = "k7Wm2Q";
constexpr std::string_view kEndMark = "\\final\\";
constexpr std::string_view kGreetingStart = "\\basic\\\\secure\\";
constexpr std::size_t kChallengeLength = 6;
constexpr std::size_t kRecordLength = 6;
constexpr std::size_t kGarbageGreetingLength = 100;
constexpr std::size_t kSplitOff = 3;
constexpr std::chrono::milliseconds kSplitPause{20};

std::string makeChallenge(Random random) {
  std::string challenge;
  while (challenge.size() < kChallengeLength) {
    const char character = static_cast<char>(random.between('!', '~'));
    challenge += character == '\\' ? "" : std::string(1, character);
  }
  return challenge;
}

std::string expectedMessage(const std::string& challenge) {
  return "\\basic\\gamename\\halom\\location\\0\\validate\\" + validationString(challenge, kGameKey) +
         "\\final\\queryid\\1.1\\\\list\\cmp\\gamename\\halom\\final\\";
}

std::string recordOf(const Endpoint& endpoint) {
  std::string record;
  for (const int shift : {24, 16, 8, 0}) {
    record += static_cast<char>(endpoint.address >> shift & 0xFF);
  }
  record += static_cast<char>(endpoint.port >> 8);
  record += static_cast<char>(endpoint.port & 0xFF);
  return record;
}

// Random bytes, but for the first of every six: a client that takes them for records must find loopback addresses
// only, or it would send its queries to strangers.
std::string randomBytes(std::size_t count, Random random) {
  std::string bytes(count, static_cast<char>(127));
  for (std::size_t i = 0; i < count; ++i) {
    if (i % kRecordLength != 0) {
      bytes[i] = static_cast<char>(random.next() & 0xFF);
    }
  }
  return bytes;
}

std::deque<std::string> cutInto(const std::string& text, std::size_t size) {
  if (size == 0) {
    return {text};
  }
  std::deque<std::string> chunks;
  for (std::size_t i = 0; i < text.size(); i += size) {
    chunks.push_back(text.substr(i, size));
  }
  return chunks;
}

}  // namespace

void FaultSwitch::set(const MasterFault& fault) {
  const std::lock_guard lock(mutex_);
  fault_ = fault;
}

MasterFault FaultSwitch::fault() const {
  const std::lock_guard lock(mutex_);
  return fault_;
}

MasterServer::MasterServer(const WorldSettings& settings, const FaultSwitch& faults, EventLoop& loop, QueryLog& log)
    : settings_(settings),
      faults_(faults),
      loop_(loop),
      log_(log),
      listener_(openListener(loopbackEndpoint(settings.masterAddress, settings.masterPort))),
      endpoint_(localEndpoint(listener_)) {}

void MasterServer::serve(const std::vector<GameServer>& servers) {
  for (const GameServer& server : servers) {
    records_ += recordOf(server.endpoint);
  }
  loop_.watch(listener_.number(), EPOLLIN, [this](std::uint32_t) { accept(); });
}

void MasterServer::accept() {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  Descriptor socket(
      accept4(listener_.number(), reinterpret_cast<sockaddr*>(&address), &size, SOCK_NONBLOCK | SOCK_CLOEXEC));
  if (socket.number() < 0) {
    return;
  }
  // Each send shall be an arrival of its own.
  const int yes = 1;
  setsockopt(socket.number(), IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
  const int descriptor = socket.number();
  const std::uint64_t number = ++accepted_;
  Conversation& conversation = conversations_[number];
  conversation.socket = std::move(socket);
  conversation.client = endpointOf(address);
  log_.add(LogEvent::MasterNote, conversation.client, endpoint_, "connected from " + conversation.client.text());
  loop_.watch(descriptor, EPOLLIN, [this, number](std::uint32_t events) { handle(number, events); });
  greet(number, conversation);
}

void MasterServer::greet(std::uint64_t number, Conversation& conversation) {
  const Random random(settings_.seed, endpoint_.address, number);
  std::string greeting(kGreetingStart);
  switch (faults_.fault().kind) {
    case FaultKind::NeverAnswer:
      return;
    case FaultKind::ResetAfterAccept: {
      const linger abort{1, 0};
      setsockopt(conversation.socket.number(), SOL_SOCKET, SO_LINGER, &abort, sizeof abort);
      return end(number, "reset");
    }
    case FaultKind::CloseAfterAccept:
      return end(number, "closed after the accept");
    case FaultKind::GarbageGreeting:
      greeting = randomBytes(kGarbageGreetingLength, random);
      break;
    case FaultKind::NoChallenge:
      // The challenge exists all the same, and so no message of the client can be the right one.
      conversation.expected = expectedMessage(makeChallenge(random));
      break;
    default: {
      const std::string challenge = makeChallenge(random);
      conversation.expected = expectedMessage(challenge);
      greeting += challenge;
    }
  }
  log_.add(LogEvent::MasterSent, endpoint_, conversation.client, greeting);
  conversation.outbox.push_back(greeting);
  sendOutbox(number);
}

void MasterServer::handle(std::uint64_t number, std::uint32_t events) {
  if ((events & ~static_cast<std::uint32_t>(EPOLLOUT)) != 0 && !readFrom(number, conversations_.at(number))) {
    return;
  }
  if ((events & EPOLLOUT) != 0) {
    sendOutbox(number);
  }
}

// Returns whether the conversation goes on.
bool MasterServer::readFrom(std::uint64_t number, Conversation& conversation) {
  char buffer[4096];
  const ssize_t size = recv(conversation.socket.number(), buffer, sizeof buffer, 0);
  if (size < 0 && errno == EAGAIN) {
    return true;
  }
  if (size <= 0) {
    end(number, size == 0 ? "closed by the client" : "reset by the client");
    return false;
  }
  const std::string_view arrival(buffer, static_cast<std::size_t>(size));
  log_.add(LogEvent::MasterReceived, conversation.client, endpoint_, arrival);
  if (conversation.expected.empty()) {
    return true;
  }
  conversation.received += arrival;
  if (!conversation.expected.starts_with(conversation.received)) {
    end(number, "closed: the message is wrong");
    return false;
  }
  if (conversation.received == conversation.expected) {
    queueList(conversation);
    sendOutbox(number);
    return conversations_.contains(number);
  }
  return true;
}

void MasterServer::queueList(Conversation& conversation) {
  const MasterFault fault = faults_.fault();
  std::string list = records_ + std::string(kEndMark);
  std::string splitOff;
  if (fault.kind == FaultKind::TruncatedList) {
    list.resize(list.size() - std::min(fault.amount, list.size()));
  } else if (fault.kind == FaultKind::RandomData) {
    list = randomBytes(fault.amount << 20, Random(settings_.seed, endpoint_.address, accepted_));
  } else if (fault.kind == FaultKind::SplitEndMark) {
    splitOff = list.substr(list.size() - kSplitOff);
    list.resize(list.size() - kSplitOff);
  }
  conversation.expected.clear();
  conversation.pause = settings_.listChunkPause;
  conversation.outbox = cutInto(list, settings_.listChunkBytes);
  if (!splitOff.empty()) {
    conversation.pause = std::max(conversation.pause, kSplitPause);
    conversation.outbox.push_back(splitOff);
  }
  log_.add(LogEvent::MasterSent, endpoint_, conversation.client,
           "a list of " + std::to_string(list.size() + splitOff.size()) +
               " bytes, sends: " + std::to_string(conversation.outbox.size()));
}

void MasterServer::sendOutbox(std::uint64_t number) {
  const auto found = conversations_.find(number);
  if (found == conversations_.end()) {
    return;  // It ended while a pause ran.
  }
  Conversation& conversation = found->second;
  const int socket = conversation.socket.number();
  while (!conversation.outbox.empty()) {
    const std::string& first = conversation.outbox.front();
    const ssize_t size = send(socket, first.data() + conversation.sent, first.size() - conversation.sent, MSG_NOSIGNAL);
    if (size < 0) {
      return errno == EAGAIN ? loop_.watchFor(socket, EPOLLIN | EPOLLOUT) : end(number, "reset by the client");
    }
    conversation.sent += static_cast<std::size_t>(size);
    if (conversation.sent < first.size()) {
      continue;
    }
    conversation.outbox.pop_front();
    conversation.sent = 0;
    if (!conversation.outbox.empty() && conversation.pause.count() > 0) {
      loop_.callAt(EventLoop::Clock::now() + conversation.pause, [this, number] { sendOutbox(number); });
      break;
    }
  }
  loop_.watchFor(socket, EPOLLIN);
}

void MasterServer::end(std::uint64_t number, const std::string& reason) {
  const auto found = conversations_.find(number);
  log_.add(LogEvent::MasterNote, found->second.client, endpoint_, reason);
  loop_.forget(found->second.socket.number());
  conversations_.erase(found);
}

}  // namespace vantrel::sandbox
