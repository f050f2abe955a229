#pragma once

#include <cstdint>
#include <string>

namespace vantrel::sandbox {

/// What goes wrong at the web mirror. The bytes that are counted are those of the body.
enum class WebFaultKind {
  None,
  Status,        ///< the status `amount` (403, 500, 302, ...), with a Location if `location` is not empty
  RedirectLoop,  ///< 302 to the very address that was asked for
  StallAtOnce,   ///< no answer at all; the connection stays open
  StallAfter,    ///< nothing comes behind `amount` bytes; the connection stays open
  ShortBody,     ///< the connection closes behind `amount` bytes; the whole length has been told
  LongBody,      ///< `amount` bytes come behind the length that has been told, then the connection closes
  NoLength,      ///< no length is told; the body ends with the connection
  Chunked,       ///< the body comes in chunks of `amount` bytes (0: of 4000)
  ResetAfter,    ///< the connection is reset behind `amount` bytes; 0: before the head
  Slow,          ///< `amount` bytes in a second
  EndlessBody,   ///< an index page of `amount` megabytes (0: of 100), without a length
  PartialHead,   ///< the connection closes behind `amount` bytes of the head (0: behind half of it)
  OldProtocol,   ///< the answer is one of HTTP/1.0; the connection closes behind it
};

struct WebFault {
  WebFaultKind kind = WebFaultKind::None;
  std::uint64_t amount = 0;
  std::string location = {};
};

}  // namespace vantrel::sandbox
