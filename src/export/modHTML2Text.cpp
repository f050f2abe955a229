#include "export/modHTML2Text.h"

#include "export/PageWalk.h"
#include "platform/Failure.h"

namespace vantrel {

// Both are its own, as an event may change the caller's.
std::string modHTML2Text::HtmlToText(std::string page, std::string outputFile) {
  std::string text = PageWalk(page, loop_).text();
  if (!outputFile.empty()) {
    try {
      files_.replace(outputFile, text + "\r\n");
    } catch (const Failure&) {  // The text is what the caller wants; the file is a copy.
    }
  }
  return text;
}

}  // namespace vantrel
