#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel::sandbox {

/// The bytes of a file that a client asks for.
struct WebRange {
  std::uint64_t first = 0;
  std::optional<std::uint64_t> last;  ///< none: up to the end
};

/// What a client of the web mirror asks for.
struct WebRequest {
  std::string method;
  std::string target;                          ///< as it was sent
  std::string path;                            ///< of the target, with its escapes resolved
  std::string protocol;                        ///< "HTTP/1.1"
  std::map<std::string, std::string> headers;  ///< the names in small letters

  /// The value of a header; empty if there is none.
  std::string header(const std::string& name) const;
  bool keepsOpen() const;
  /// None if the client wants all, or a range of a kind that the mirror does not know.
  std::optional<WebRange> range() const;
};

/// Reads the head of a request, up to the empty line and without it. Returns none if it is not one.
std::optional<WebRequest> requestFrom(std::string_view head);

}  // namespace vantrel::sandbox
