// Any datagram makes a reply: at least one element, none with a separator in it, and nothing that was not sent.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/Text.h"
#include "query/StatusReply.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view datagram(reinterpret_cast<const char*>(data), size);
  const vantrel::StatusReply reply = vantrel::ParseStatusReply(datagram);
  std::size_t length = 0;
  for (int i = 0; i < reply.count(); ++i) {
    const std::string& element = reply.element(i);
    length += element.size() + 1;
    if (element.find('\\') != std::string::npos || vantrel::capitalizeWords(element).size() != element.size()) {
      std::abort();
    }
  }
  if (reply.count() < 1 || length > size + 1) {
    std::abort();
  }
  return 0;
}
