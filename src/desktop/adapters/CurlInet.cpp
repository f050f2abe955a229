#include "desktop/adapters/CurlInet.h"

#include <QByteArray>
#include <algorithm>
#include <chrono>

#include "core/Text.h"
#include "desktop/text/Cp1252.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr std::uint64_t eventInterval = 8;  // milliseconds
constexpr std::chrono::milliseconds lookTime{4};
constexpr std::chrono::milliseconds endTime{200};
constexpr std::size_t largestPage = 8 << 20;  // bytes
constexpr std::uint64_t pageTime = 60'000;    // milliseconds
constexpr int pagePiece = 64 * 1024;          // bytes

// An address as people write it, with blanks and letters of all kinds, as one that can be sent.
std::string sendable(const std::string& url) {
  const QByteArray bytes = fromCp1252(url).toUtf8();
  return bytes.toPercentEncoding("!#$%&'()*+,/:;=?@[]~").toStdString();
}

}  // namespace

CurlInet::~CurlInet() {
  if (request_) {
    request_->end(endTime);
  }
}

void CurlInet::execute(const std::string& url, const std::string& headers) {
  cancel();
  request_ = std::make_shared<CurlRequest>(sendable(url), headers, patience_);
}

void CurlInet::cancel() {
  request_.reset();
  block_.clear();
  given_ = 0;
}

bool CurlInet::stillExecuting() const {
  return request_ && !request_->waitForHead({});
}

std::string CurlInet::getHeader() const {
  const std::string head = request_ && !stillExecuting() ? request_->head() : std::string();
  if (head.empty()) {
    throw failures::connectionReset();
  }
  return head;
}

std::string CurlInet::getHeaderValue(const std::string& name) const {
  for (const std::string& line : split(getHeader(), '\n')) {
    const std::size_t colon = line.find(':');
    if (colon != std::string::npos && lowerCase(line.substr(0, colon)) == lowerCase(name)) {
      std::string value = line.substr(colon + 1);
      value.erase(value.find_last_not_of('\r') + 1);
      return std::string(trimBlanks(value));
    }
  }
  return {};
}

// An event may have cancelled the request, or begun another one.
void CurlInet::letEventsRun(const std::shared_ptr<CurlRequest>& request) {
  loop_.wait(0);
  lastEvents_ = loop_.tickCount();
  if (request_ != request || loop_.ending()) {
    throw failures::connectionReset();
  }
}

// False at the end of the body.
bool CurlInet::fill(const std::shared_ptr<CurlRequest>& request) {
  for (;;) {
    std::string block;
    switch (request->waitForBlock(lookTime, block)) {
      case CurlRequest::Wait::data:
        block_ = std::move(block);
        given_ = 0;
        return true;
      case CurlRequest::Wait::end:
        return false;
      case CurlRequest::Wait::failed:
        throw failures::connectionReset();
      case CurlRequest::Wait::notYet:
        letEventsRun(request);
    }
  }
}

std::string CurlInet::getChunk(int size) {
  const std::shared_ptr<CurlRequest> request = request_;
  if (!request) {
    throw failures::connectionReset();
  }
  if (loop_.tickCount() - lastEvents_ >= eventInterval) {
    letEventsRun(request);
  }
  const auto wanted = static_cast<std::size_t>(std::max(size, 1));
  std::string chunk = take(wanted);
  try {
    while (chunk.size() < wanted && fill(request)) {
      chunk += take(wanted - chunk.size());
    }
  } catch (const Failure&) {
    if (chunk.size() < 2 || request_ != request) {
      throw;
    }
  }
  return chunk;
}

std::string CurlInet::take(std::size_t most) {
  std::string bytes = block_.substr(given_, most);
  given_ += bytes.size();
  return bytes;
}

std::string CurlInet::openUrl(const std::string& url) {
  execute(url, "");
  const std::shared_ptr<CurlRequest> request = request_;
  const std::uint64_t start = loop_.tickCount();
  std::string page;
  try {
    for (std::string piece = getChunk(pagePiece); !piece.empty() && page.size() < largestPage;
         piece = getChunk(pagePiece)) {
      page += piece;
      if (loop_.tickCount() - start > pageTime) {
        throw failures::connectionReset();
      }
    }
  } catch (const Failure&) {
    page.clear();
  }
  if (request_ == request) {
    cancel();
  }
  page.resize(std::min(page.size(), largestPage));
  return page;
}

}  // namespace vantrel
