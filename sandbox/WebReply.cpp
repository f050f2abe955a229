#include "sandbox/WebReply.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <utility>
#include <vector>

#include "sandbox/IndexPages.h"

namespace vantrel::sandbox {
namespace {

using Kind = WebStep::Kind;

// An answer before anything goes wrong with it.
struct Draft {
  int status = 200;
  std::string type = "text/html";
  std::vector<std::string> headers;
  WebStep body{Kind::Bytes, nullptr, nullptr, 0, 0};
};

constexpr std::uint64_t kUsualChunk = 4000;
constexpr std::uint64_t kUsualMegabytes = 100;

std::string reasonOf(int status) {
  constexpr std::pair<int, const char*> reasons[] = {
      {200, "OK"},
      {206, "Partial Content"},
      {301, "Moved Permanently"},
      {302, "Found"},
      {303, "See Other"},
      {307, "Temporary Redirect"},
      {400, "Bad Request"},
      {308, "Permanent Redirect"},
      {401, "Unauthorized"},
      {403, "Forbidden"},
      {404, "Not Found"},
      {405, "Method Not Allowed"},
      {410, "Gone"},
      {416, "Range Not Satisfiable"},
      {500, "Internal Server Error"},
      {502, "Bad Gateway"},
      {503, "Service Unavailable"},
  };
  const auto* const found = std::ranges::find(reasons, status, &std::pair<int, const char*>::first);
  return found == std::end(reasons) ? "Unknown" : found->second;
}

std::string httpTime(std::time_t time) {
  std::tm parts{};
  gmtime_r(&time, &parts);
  std::array<char, 64> text{};
  return {text.data(), std::strftime(text.data(), text.size(), "%a, %d %b %Y %H:%M:%S GMT", &parts)};
}

WebStep stepOf(Kind kind, std::string bytes) {
  const auto shared = std::make_shared<const std::string>(std::move(bytes));
  return {kind, shared, nullptr, 0, shared->size()};
}

Draft pageOf(int status, const std::string& location = "") {
  const std::string title = std::to_string(status) + " " + reasonOf(status);
  Draft draft{status,
              "text/html",
              {},
              stepOf(Kind::Bytes, "<html>\r\n<head><title>" + title + "</title></head>\r\n<body>\r\n<center><h1>" +
                                      title + "</h1></center>\r\n</body>\r\n</html>\r\n")};
  if (!location.empty()) {
    draft.headers.push_back("Location: " + location);
  }
  if (status == 401) {
    draft.headers.emplace_back("WWW-Authenticate: Basic realm=\"maps\"");
  }
  return draft;
}

std::string typeOf(const std::string& path) {
  constexpr std::pair<const char*, const char*> types[] = {
      {".zip", "application/zip"}, {".html", "text/html"}, {".txt", "text/plain"}};
  for (const auto& [ending, type] : types) {
    if (path.ends_with(ending)) {
      return type;
    }
  }
  return "application/octet-stream";
}

// Leaves the part of the file that the request wants. A file that has changed since the client got its first part is
// sent as a whole.
void applyRange(Draft& draft, const WebRequest& request, const std::string& tag, const std::string& changed) {
  const auto range = request.range();
  const std::string condition = request.header("if-range");
  if (!range || (!condition.empty() && condition != tag && condition != changed)) {
    return;
  }
  const std::uint64_t size = draft.body.left;
  if (range->first >= size) {
    draft = pageOf(416);
    draft.headers.push_back("Content-Range: bytes */" + std::to_string(size));
    return;
  }
  const std::uint64_t last = std::min(range->last.value_or(size - 1), size - 1);
  draft.status = 206;
  draft.body.offset = range->first;
  draft.body.left = last - range->first + 1;
  draft.headers.push_back("Content-Range: bytes " + std::to_string(range->first) + "-" + std::to_string(last) + "/" +
                          std::to_string(size));
}

Draft draftOfFile(const WebRequest& request, const WebFile& file) {
  Draft draft;
  draft.type = typeOf(request.path);
  draft.body = {Kind::Bytes, file.bytes, nullptr, 0, file.size};
  if (!file.bytes) {
    draft.body.kind = Kind::File;
    draft.body.file = std::make_shared<const Descriptor>(open(file.diskPath.c_str(), O_RDONLY | O_CLOEXEC));
    if (draft.body.file->number() < 0) {
      return pageOf(403);
    }
  }
  const std::string tag = "\"" + std::to_string(file.changed) + "-" + std::to_string(file.size) + "\"";
  const std::string changed = httpTime(file.changed);
  draft.headers = {"Last-Modified: " + changed, "ETag: " + tag, "Accept-Ranges: bytes"};
  applyRange(draft, request, tag, changed);
  return draft;
}

Draft draftOf(const WebRequest& request, const WebFiles& files, const Endpoint& server) {
  if (request.method != "GET" && request.method != "HEAD") {
    return pageOf(405);
  }
  if (const auto file = files.file(request.path)) {
    return draftOfFile(request, *file);
  }
  const bool isFolder = request.path.ends_with('/');
  if (const auto entries = files.folder(isFolder ? request.path : request.path + "/")) {
    const IndexPage page = indexPage(request.path, *entries, server);
    return isFolder ? Draft{200, page.type, {}, stepOf(Kind::Bytes, page.html)} : pageOf(301, request.target + "/");
  }
  return pageOf(404);
}

// A page that lists a small number of files over and over again.
Draft endlessPage(std::uint64_t megabytes, const Endpoint& server) {
  std::vector<WebEntry> entries;
  for (int number = 1000; number < 2000; ++number) {
    entries.push_back({"map" + std::to_string(number) + ".zip", false, 123456, 0});
  }
  const IndexPage page = indexPage("/maps/", entries, server);
  Draft draft{200, page.type, {}, stepOf(Kind::Bytes, page.html)};
  draft.body.left = megabytes << 20;
  return draft;
}

Draft faultyDraft(const WebRequest& request, const WebFiles& files, const Endpoint& server, const WebFault& fault) {
  switch (fault.kind) {
    case WebFaultKind::Status:
      return pageOf(static_cast<int>(fault.amount), fault.location);
    case WebFaultKind::RedirectLoop:
      return pageOf(302, request.target);
    case WebFaultKind::EndlessBody:
      return endlessPage(fault.amount == 0 ? kUsualMegabytes : fault.amount, server);
    default:
      return draftOf(request, files, server);
  }
}

bool tellsLength(WebFaultKind kind) {
  return kind != WebFaultKind::NoLength && kind != WebFaultKind::EndlessBody && kind != WebFaultKind::Chunked;
}

bool closesBehind(WebFaultKind kind) {
  return kind == WebFaultKind::ShortBody || kind == WebFaultKind::LongBody || kind == WebFaultKind::NoLength ||
         kind == WebFaultKind::EndlessBody || kind == WebFaultKind::OldProtocol || kind == WebFaultKind::PartialHead;
}

std::string headOf(const Draft& draft, WebFaultKind fault, bool keepsOpen) {
  std::string head = (fault == WebFaultKind::OldProtocol ? "HTTP/1.0 " : "HTTP/1.1 ") + std::to_string(draft.status) +
                     " " + reasonOf(draft.status) + "\r\nServer: sandbox\r\nDate: " + httpTime(std::time(nullptr)) +
                     "\r\nContent-Type: " + draft.type + "\r\n";
  for (const std::string& header : draft.headers) {
    head += header + "\r\n";
  }
  if (tellsLength(fault)) {
    head += "Content-Length: " + std::to_string(draft.body.left) + "\r\n";
  } else if (fault == WebFaultKind::Chunked) {
    head += "Transfer-Encoding: chunked\r\n";
  }
  return head + (keepsOpen ? "Connection: keep-alive\r\n\r\n" : "Connection: close\r\n\r\n");
}

void addChunks(std::deque<WebStep>& steps, WebStep body, std::uint64_t size) {
  std::array<char, 32> length{};
  for (std::uint64_t left = body.left; left > 0; left -= body.left) {
    body.left = std::min(left, size);
    std::snprintf(length.data(), length.size(), "%llx\r\n", static_cast<unsigned long long>(body.left));
    steps.push_back(stepOf(Kind::Head, length.data()));
    steps.push_back(body);
    steps.push_back(stepOf(Kind::Head, "\r\n"));
    body.offset += body.left;
  }
  steps.push_back(stepOf(Kind::Head, "0\r\n\r\n"));
}

void addBody(std::deque<WebStep>& steps, WebStep body, const WebFault& fault) {
  const std::uint64_t part = std::min(fault.amount, body.left);
  switch (fault.kind) {
    case WebFaultKind::Chunked:
      return addChunks(steps, body, fault.amount == 0 ? kUsualChunk : fault.amount);
    case WebFaultKind::StallAfter:
    case WebFaultKind::ResetAfter:
    case WebFaultKind::ShortBody:
      body.left = part;
      steps.push_back(body);
      if (fault.kind != WebFaultKind::ShortBody) {
        steps.push_back({fault.kind == WebFaultKind::StallAfter ? Kind::Wait : Kind::Reset, nullptr, nullptr, 0, 0});
      }
      return;
    case WebFaultKind::LongBody:
      steps.push_back(body);
      steps.push_back(stepOf(Kind::Bytes, std::string(fault.amount, '+')));
      return;
    default:
      steps.push_back(body);
  }
}

}  // namespace

WebReply replyTo(const WebRequest& request, const WebFiles& files, const Endpoint& server) {
  const WebFault fault = files.fault(request.path);
  if (fault.kind == WebFaultKind::StallAtOnce) {
    return {"nothing", {{Kind::Wait, nullptr, nullptr, 0, 0}}, 0};
  }
  if (fault.kind == WebFaultKind::ResetAfter && fault.amount == 0) {
    return {"a reset", {{Kind::Reset, nullptr, nullptr, 0, 0}}, 0};
  }
  const Draft draft = faultyDraft(request, files, server, fault);
  const bool keepsOpen = request.keepsOpen() && !closesBehind(fault.kind);
  WebReply reply{std::to_string(draft.status) + ", " + std::to_string(draft.body.left) + " bytes", {}, 0};
  reply.bytesPerSecond = fault.kind == WebFaultKind::Slow ? fault.amount : 0;
  std::string head = headOf(draft, fault.kind, keepsOpen);
  if (fault.kind == WebFaultKind::PartialHead) {
    head.resize(fault.amount == 0 ? head.size() / 2 : std::min<std::size_t>(head.size(), fault.amount));
  }
  reply.steps.push_back(stepOf(Kind::Head, std::move(head)));
  if (request.method != "HEAD" && fault.kind != WebFaultKind::PartialHead) {
    addBody(reply.steps, draft.body, fault);
  }
  if (!keepsOpen) {
    reply.steps.push_back({Kind::Close, nullptr, nullptr, 0, 0});
  }
  return reply;
}

WebReply replyToNonsense() {
  const Draft draft = pageOf(400);
  return {
      "400",
      {stepOf(Kind::Head, headOf(draft, WebFaultKind::None, false)), draft.body, {Kind::Close, nullptr, nullptr, 0, 0}},
      0};
}

}  // namespace vantrel::sandbox
