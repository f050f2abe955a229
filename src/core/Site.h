// What a distributor of the program sets when it is built.
#pragma once

#include <string>

namespace vantrel {

struct Site {
  std::string masterHost;              // host name or dotted address of the master server
  std::string mirror;                  // base address of the default map mirror, with a slash at its end
  std::string mirrorSite;              // address of that mirror's web site
  std::string makerSite = {};          // address of the web site of who made the program
  std::string makerName = {};          // of who made the program
  std::string authorSite = {};         // address of the author's web site
  std::string cacheServerPrefix = {};  // base address of a cache service in front of the mirrors; empty for none
};

}  // namespace vantrel
