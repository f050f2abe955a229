#include "query/StatusReply.h"

#include "core/Text.h"
#include "platform/Failure.h"

namespace vantrel {

const std::string& StatusReply::element(int number) const {
  if (number < 0 || number >= count()) {
    throw failures::subscriptOutOfRange();
  }
  return elements_[static_cast<std::size_t>(number)];
}

StatusReply ParseStatusReply(std::string_view datagram) {
  // The first key opens the reply with a backslash and is at least three characters long, so the backslash that ends
  // it is the fifth character or a later one.
  constexpr std::size_t fifth = 4;
  const std::size_t end = datagram.find('\\', fifth);
  if (end != std::string_view::npos) {
    datagram.remove_prefix(end + 1);
  }
  return StatusReply(split(datagram, '\\'));
}

}  // namespace vantrel
