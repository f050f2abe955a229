// What goes wrong while an archive is unpacked, and how far that reaches.
#pragma once

#include <cerrno>
#include <string>
#include <system_error>

namespace vantrel {

// The numbers are for those who compare; what the user reads is the sentence.
enum class ZipCode {
  ok = 0,
  passedOver = 1,  // a member that may not be placed; the others are
  damagedMember = 2,
  noArchive = 3,  // it is not there, is no archive, or is cut short
  noMatch = 11,   // it has none of the members asked for
  target = 50,    // the folder or the disk
  stopped = 80,
  password = 82,
  busy = 90,
};

enum class ZipReach { member, archive };

// Thrown by value.
struct ZipTrouble {
  ZipCode code;
  std::string why;  // half a sentence, in small letters
  ZipReach reach = ZipReach::member;
};

// A disk or a folder that refuses one file refuses the next one too.
inline ZipTrouble targetTrouble(const std::string& what, int error) {
  const std::string why =
      error == ENOSPC || error == EDQUOT ? "the disk is full" : std::generic_category().message(error);
  return {ZipCode::target, what + ": " + why, ZipReach::archive};
}

inline ZipTrouble stoppedTrouble() {
  return {ZipCode::stopped, "it was stopped", ZipReach::archive};
}

}  // namespace vantrel
