// Rewriting a whole store from the list on screen.
//
// A rewrite takes its time in pauses. Until it is complete the file keeps its old content, in memory and on disk, so
// that whatever reads or adds to the store meanwhile, or ends the program, finds a whole one; then the new content
// takes its place in one step. A second rewrite of a file that is asked for during the first runs once behind it.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "core/modFavesIni.h"

namespace vantrel {

class StoreRewrites {
 public:
  // `stores` must outlive this.
  StoreRewrites(const StoreContext& context, modFavesIni& stores) : c_(context), stores_(stores) {}

  // Each takes the file's full path, and throws failure 6 when the list is longer than a store can be; the file then
  // keeps its old content.
  void saveFaves(const std::string& m_File);
  void saveBuddies(const std::string& b_File);
  void saveMirrors(const std::string& m2_File);

  // True while a rewrite of the file waits in one of its pauses.
  bool isUnderWay(const std::string& file) const { return underWay_.contains(file); }

 private:
  struct Steps {
    const StoreFormat& format;
    int pauseAfterDeletion;                                  // milliseconds
    std::function<void(const std::string& draft)> create;    // the new file
    std::function<void(const std::string& draft)> addItems;  // all of the list
  };

  void rewrite(const std::string& file, const Steps& steps);
  void rewriteOnce(const std::string& file, const Steps& steps);
  bool holdsMoreThanIsRead(const std::string& file, const StoreFormat& format);
  std::map<std::string, std::string> readMirrorSites(const std::string& file);
  void addMirrors(const std::string& file, const std::string& draft);

  StoreContext c_;
  modFavesIni& stores_;
  std::map<std::string, bool> underWay_;  // file -> another rewrite of it was asked for
};

}  // namespace vantrel
