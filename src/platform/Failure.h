// What went wrong in a conversion or in the outside world: a number that stays the same everywhere and a text for the
// user. Failures are thrown by value and end in one of the three ways of core/FailureStyles.h; none leaves a handler.
#pragma once

#include <string>

namespace vantrel {

struct Failure {
  int number = 0;
  std::string description;

  bool operator==(const Failure& other) const = default;
};

namespace failures {

inline Failure invalidArgument() {
  return {5, "Invalid procedure call or argument"};
}
inline Failure overflow() {
  return {6, "Overflow"};
}
inline Failure subscriptOutOfRange() {
  return {9, "Subscript out of range"};
}
inline Failure outOfMemory() {
  return {7, "Out of memory"};
}
inline Failure divisionByZero() {
  return {11, "Division by zero"};
}
inline Failure typeMismatch() {
  return {13, "Type mismatch"};
}
inline Failure fileNotFound() {
  return {53, "File not found"};
}
inline Failure diskFull() {
  return {61, "Disk full"};
}
inline Failure permissionDenied() {
  return {70, "Permission denied"};
}
inline Failure fileAccess() {
  return {75, "Path/File access error"};
}
inline Failure pathNotFound() {
  return {76, "Path not found"};
}
inline Failure notAProgram() {
  return {193, "Not a program that can run here"};
}
inline Failure noForeignApplication() {
  return {282, "No foreign application responded to a DDE initiate"};
}
inline Failure foreignApplicationRefused() {
  return {286, "Timeout while waiting for DDE response"};
}
inline Failure noConversation() {
  return {293, "DDE method invoked with no channel open"};
}
inline Failure connectionReset() {
  return {10054, "The connection is reset by remote side"};
}
inline Failure sendFailed(const std::string& reason) {
  return {10051, reason};
}

}  // namespace failures
}  // namespace vantrel
