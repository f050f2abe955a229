#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>

#include "sandbox/Sockets.h"
#include "sandbox/WebFiles.h"
#include "sandbox/WebRequest.h"

namespace vantrel::sandbox {

/// One step of an answer of the web mirror.
struct WebStep {
  enum class Kind {
    Head,   ///< bytes that go out at once
    Bytes,  ///< bytes of the body, as many as are `left`, over and over again if there are not as many
    File,   ///< bytes of a file on the disk
    Wait,   ///< nothing any more; the connection stays open
    Close,
    Reset,
  };
  Kind kind = Kind::Close;
  std::shared_ptr<const std::string> bytes;
  std::shared_ptr<const Descriptor> file;
  std::uint64_t offset = 0;
  std::uint64_t left = 0;
};

/// All that the web mirror does about one request, with the fault of just now in it.
struct WebReply {
  std::string summary;  ///< for the log
  std::deque<WebStep> steps;
  std::uint64_t bytesPerSecond = 0;  ///< of the body; 0: as fast as can be
};

WebReply replyTo(const WebRequest& request, const WebFiles& files, const Endpoint& server);
/// The answer to what is no request.
WebReply replyToNonsense();

}  // namespace vantrel::sandbox
