// A web page as plain text. This is no parser: one pass over the characters keeps a handful of flags, knows a short
// list of tags and lays the text out by simple rules. Its time grows with the size of the page and with nothing else,
// whatever the page.
#pragma once

#include <string>

#include "platform/Files.h"
#include "platform/Loop.h"

namespace vantrel {

class modHTML2Text {
 public:
  // Both must outlive this.
  modHTML2Text(Loop& loop, Files& files) : loop_(loop), files_(files) {}

  // The text of a page in code page 1252. Events run in the meantime; when the program begins to end, what there is so
  // far comes back. Under a path that is not empty the text also becomes the content of that file, with a line end
  // behind it, if it can be written.
  std::string HtmlToText(std::string page, std::string outputFile);

 private:
  Loop& loop_;
  Files& files_;
};

}  // namespace vantrel
