#include "desktop/adapters/CurlRequest.h"

#include <curl/curl.h>

#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "core/Text.h"

namespace vantrel {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int pollTime = 100;                    // milliseconds; data ends it at once
constexpr std::size_t mostQueued = 1 << 20;      // bytes; the server waits while nobody takes them
constexpr std::size_t blockSize = 256 * 1024;    // bytes
constexpr std::size_t largestHead = 256 * 1024;  // bytes
constexpr long mostRedirects = 20;
constexpr const char* protocols = "http,https";
constexpr const char* userAgent = "VantrelCE";

// Once in a program, before there are threads.
void startLibrary() {
  static std::once_flag started;
  std::call_once(started, [] { curl_global_init(CURL_GLOBAL_ALL); });
}

}  // namespace

// What the thread and the one who waits have in common. The curl handles are the thread's alone, but for the wake-up.
struct CurlRequest::Shared {
  std::mutex mutex;
  std::condition_variable changed;
  std::string head;
  bool headIsThere = false;
  std::deque<std::string> blocks;
  std::size_t queued = 0;
  bool over = false;
  bool failed = false;
  bool abandoned = false;
  bool gone = false;  // the thread is at its end
  CURLM* multi = nullptr;
  CurlPatience patience;

  // The thread's own.
  CURL* easy = nullptr;
  Clock::time_point lastData;
  std::string line;  // of the head that comes in

  void run(const std::string& url, const std::string& headers);
  void setUp(const std::string& url, curl_slist* lines);
  CURLcode drive();
  void finish(CURLcode result);
  std::size_t takeHeader(const char* bytes, std::size_t size);
  std::size_t takeBody(const char* bytes, std::size_t size);
  bool isLastHead() const;
};

namespace {

curl_slist* listOf(const std::string& headers) {
  curl_slist* list = nullptr;
  for (std::size_t start = 0, end; (end = headers.find("\r\n", start)) != std::string::npos; start = end + 2) {
    list = curl_slist_append(list, headers.substr(start, end - start).c_str());
  }
  return list;
}

}  // namespace

CurlRequest::CurlRequest(const std::string& url, const std::string& headers, const CurlPatience& patience)
    : shared_(std::make_shared<Shared>()) {
  shared_->patience = patience;
  startLibrary();
  try {
    std::thread([shared = shared_, url, headers] { shared->run(url, headers); }).detach();
  } catch (const std::system_error&) {  // The system has no thread to give.
    shared_->finish(CURLE_OUT_OF_MEMORY);
  }
}

CurlRequest::~CurlRequest() {
  end({});
}

void CurlRequest::end(std::chrono::milliseconds time) {
  std::unique_lock lock(shared_->mutex);
  shared_->abandoned = true;
  if (shared_->multi != nullptr) {
    curl_multi_wakeup(shared_->multi);
  }
  shared_->changed.notify_all();
  shared_->changed.wait_for(lock, time, [this] { return shared_->gone; });
}

bool CurlRequest::waitForHead(std::chrono::milliseconds time) {
  std::unique_lock lock(shared_->mutex);
  return shared_->changed.wait_for(lock, time, [this] { return shared_->headIsThere || shared_->over; });
}

std::string CurlRequest::head() {
  const std::lock_guard lock(shared_->mutex);
  return shared_->headIsThere ? shared_->head : std::string();
}

CurlRequest::Wait CurlRequest::waitForBlock(std::chrono::milliseconds time, std::string& block) {
  std::unique_lock lock(shared_->mutex);
  shared_->changed.wait_for(lock, time, [this] { return !shared_->blocks.empty() || shared_->over; });
  if (!shared_->blocks.empty()) {
    block = std::move(shared_->blocks.front());
    shared_->blocks.pop_front();
    shared_->queued -= block.size();
    shared_->changed.notify_all();
    return Wait::data;
  }
  if (!shared_->over) {
    return Wait::notYet;
  }
  return shared_->failed ? Wait::failed : Wait::end;
}

void CurlRequest::Shared::run(const std::string& url, const std::string& headers) {
  curl_slist* const lines = listOf(headers);
  easy = curl_easy_init();
  CURLM* const own = curl_multi_init();
  CURLcode result = CURLE_OUT_OF_MEMORY;
  if (easy != nullptr && own != nullptr) {
    setUp(url, lines);
    {
      const std::lock_guard lock(mutex);
      multi = own;
    }
    curl_multi_add_handle(own, easy);
    result = drive();
    finish(result);
    curl_multi_remove_handle(own, easy);
  }
  finish(result);
  {
    const std::lock_guard lock(mutex);
    multi = nullptr;
  }
  curl_easy_cleanup(easy);
  curl_multi_cleanup(own);
  curl_slist_free_all(lines);
  const std::lock_guard lock(mutex);
  gone = true;
  changed.notify_all();
}

void CurlRequest::Shared::setUp(const std::string& url, curl_slist* lines) {
  using Callback = std::size_t (*)(char*, std::size_t, std::size_t, void*);
  const Callback header = [](char* bytes, std::size_t size, std::size_t count, void* shared) {
    return static_cast<Shared*>(shared)->takeHeader(bytes, size * count);
  };
  const Callback body = [](char* bytes, std::size_t size, std::size_t count, void* shared) {
    return static_cast<Shared*>(shared)->takeBody(bytes, size * count);
  };
  curl_easy_setopt(easy, CURLOPT_URL, url.c_str());
  curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, protocols);
  curl_easy_setopt(easy, CURLOPT_REDIR_PROTOCOLS_STR, protocols);
  curl_easy_setopt(easy, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_1);  // whose head says so in its first line
  curl_easy_setopt(easy, CURLOPT_FOLLOWLOCATION, 1L);
  curl_easy_setopt(easy, CURLOPT_MAXREDIRS, mostRedirects);
  curl_easy_setopt(easy, CURLOPT_USERAGENT, userAgent);
  curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(easy, CURLOPT_BUFFERSIZE, static_cast<long>(blockSize));
  curl_easy_setopt(easy, CURLOPT_HTTPHEADER, lines);
  curl_easy_setopt(easy, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
  curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, header);
  curl_easy_setopt(easy, CURLOPT_HEADERDATA, this);
  curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, body);
  curl_easy_setopt(easy, CURLOPT_WRITEDATA, this);
}

CURLcode CurlRequest::Shared::drive() {
  const auto start = Clock::now();
  lastData = start;
  for (;;) {
    int running = 0;
    curl_multi_perform(multi, &running);
    if (running == 0) {
      int left = 0;
      const CURLMsg* const message = curl_multi_info_read(multi, &left);
      return message == nullptr ? CURLE_RECV_ERROR : message->data.result;
    }
    {
      const std::lock_guard lock(mutex);
      const auto now = Clock::now();
      if (abandoned || (headIsThere ? now - lastData > patience.stall : now - start > patience.head)) {
        return CURLE_OPERATION_TIMEDOUT;
      }
    }
    curl_multi_poll(multi, nullptr, 0, pollTime, nullptr);
  }
}

// A body that the server ends too early ends here as well: how much of it there is, is the reader's to judge.
void CurlRequest::Shared::finish(CURLcode result) {
  const std::lock_guard lock(mutex);
  if (!over) {
    over = true;
    failed = !headIsThere || (result != CURLE_OK && result != CURLE_PARTIAL_FILE);
    changed.notify_all();
  }
}

std::size_t CurlRequest::Shared::takeHeader(const char* bytes, std::size_t size) {
  const std::string_view text(bytes, size);
  if (text.starts_with("HTTP/")) {
    line.clear();
  }
  if (line.size() + size > largestHead) {
    return 0;
  }
  line += text;
  if ((text == "\r\n" || text == "\n") && isLastHead()) {
    const std::lock_guard lock(mutex);
    if (!headIsThere) {  // Lines behind a body in chunks come here, too.
      head = line;
      headIsThere = true;
      lastData = Clock::now();
      changed.notify_all();
    }
  }
  return size;
}

// Not one behind which another one comes.
bool CurlRequest::Shared::isLastHead() const {
  long status = 0;
  curl_easy_getinfo(easy, CURLINFO_RESPONSE_CODE, &status);
  const bool redirects = status >= 300 && status < 400 && lowerCase(line).find("\nlocation:") != std::string::npos;
  return status >= 200 && !redirects;
}

std::size_t CurlRequest::Shared::takeBody(const char* bytes, std::size_t size) {
  std::unique_lock lock(mutex);
  if (!headIsThere) {  // A body without a head that was understood.
    head = line;
    headIsThere = true;
  }
  changed.wait(lock, [this] { return queued < mostQueued || abandoned; });
  if (abandoned) {
    return 0;
  }
  blocks.emplace_back(bytes, size);
  queued += size;
  lastData = Clock::now();
  changed.notify_all();
  return size;
}

}  // namespace vantrel
