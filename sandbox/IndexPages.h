#pragma once

#include <string>
#include <vector>

#include "sandbox/Endpoint.h"
#include "sandbox/WebFiles.h"

namespace vantrel::sandbox {

/// The list of a folder as one of the usual web servers writes it.
struct IndexPage {
  std::string html;
  std::string type;  ///< the Content-Type
};

/// The page that `server` shows for the folder `path`: /apache/ a table, /apache-pre/ lines with names cut after 23
/// characters, /lighttpd/ a table of its own; every other folder lines with names cut after 50.
IndexPage indexPage(const std::string& path, const std::vector<WebEntry>& entries, const Endpoint& server);

/// The text with the escapes of HTML.
std::string escapedHtml(const std::string& text);

}  // namespace vantrel::sandbox
