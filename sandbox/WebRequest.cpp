#include "sandbox/WebRequest.h"

#include <charconv>

namespace vantrel::sandbox {
namespace {

std::string inSmallLetters(std::string_view text) {
  std::string result(text);
  for (char& character : result) {
    if (character >= 'A' && character <= 'Z') {
      character = static_cast<char>(character - 'A' + 'a');
    }
  }
  return result;
}

std::string_view trimmed(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t");
  return start == std::string_view::npos ? "" : text.substr(start, text.find_last_not_of(" \t") - start + 1);
}

// Takes the text up to `end` off the front; all of it if it has no `end`.
std::string_view take(std::string_view& text, std::string_view end) {
  const std::size_t at = text.find(end);
  const std::string_view taken = text.substr(0, at);
  text.remove_prefix(at == std::string_view::npos ? text.size() : at + end.size());
  return taken;
}

template <class Number>
std::optional<Number> numberFrom(std::string_view text, int base) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

std::string withoutEscapes(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto code = text[i] == '%' && i + 2 < text.size() ? numberFrom<std::uint8_t>(text.substr(i + 1, 2), 16)
                                                            : std::optional<std::uint8_t>();
    result += code ? static_cast<char>(*code) : text[i];
    i += code ? 2 : 0;
  }
  return result;
}

}  // namespace

std::string WebRequest::header(const std::string& name) const {
  const auto found = headers.find(name);
  return found == headers.end() ? "" : found->second;
}

bool WebRequest::keepsOpen() const {
  const std::string wish = inSmallLetters(header("connection"));
  return protocol == "HTTP/1.1" ? wish != "close" : wish == "keep-alive";
}

std::optional<WebRange> WebRequest::range() const {
  const std::string value = header("range");
  std::string_view rest = value;
  if (take(rest, "=") != "bytes" || rest.find('-') == std::string_view::npos) {
    return std::nullopt;
  }
  const auto first = numberFrom<std::uint64_t>(take(rest, "-"), 10);
  const auto last = numberFrom<std::uint64_t>(rest, 10);
  if (!first || (!rest.empty() && (!last || *last < *first))) {
    return std::nullopt;
  }
  return WebRange{*first, last};
}

std::optional<WebRequest> requestFrom(std::string_view head) {
  WebRequest request;
  std::string_view line = take(head, "\r\n");
  request.method = take(line, " ");
  request.target = take(line, " ");
  request.protocol = line;
  if (!request.target.starts_with('/') || !request.protocol.starts_with("HTTP/1.")) {
    return std::nullopt;
  }
  request.path = withoutEscapes(request.target.substr(0, request.target.find_first_of("?#")));
  while (!head.empty()) {
    line = take(head, "\r\n");
    const std::string_view name = take(line, ":");
    request.headers[inSmallLetters(name)] = trimmed(line);
  }
  return request;
}

}  // namespace vantrel::sandbox
