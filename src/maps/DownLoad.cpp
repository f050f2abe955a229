#include "maps/DownLoad.h"

#include <algorithm>
#include <cmath>

#include "core/Numbers.h"
#include "core/PumpWait.h"
#include "maps/DownloadFormats.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr int waitTime = 10;  // milliseconds
const std::string receiving = "Recieving File, Inputting DATA to File.";

double seconds(const Loop& loop) {
  return static_cast<double>(loop.tickCount()) / 1000;
}

std::int32_t sumOf(std::int32_t left, std::size_t right) {
  const auto sum = static_cast<std::uint64_t>(left) + right;
  if (sum > INT32_MAX) {
    throw failures::overflow();
  }
  return static_cast<std::int32_t>(sum);
}

std::int32_t percentOf(std::int32_t part, std::int32_t whole) {
  if (whole == 0) {
    throw failures::divisionByZero();
  }
  const double percent = std::nearbyint(static_cast<double>(part) / whole * 100);
  if (std::abs(percent) > INT32_MAX) {
    throw failures::overflow();
  }
  return static_cast<std::int32_t>(percent);
}

}  // namespace

void DownLoad::reset() {
  ++request_;
  c_.I1.cancel();
  pause_ = cancel_ = resumeSupported_ = connected_ = fileExists_ = false;
  fileSize_ = 0;
}

// Each kind of connection is told, also where there is none.
bool DownLoad::checkOnline() {
  const ConnectedState state = c_.connectivity.internetGetConnectedState();
  if ((state.flags & 1) != 0) {
    ConnectionState.fire("Connected Via Modem.");
  }
  if ((state.flags & 2) != 0) {
    ConnectionState.fire("Connected Via LAN.");
  }
  if ((state.flags & 4) != 0) {
    ConnectionState.fire("Connected Through A Proxy.");
  }
  return state.connected;
}

void DownLoad::GetFileInformation() {
  const int request = ++request_;
  cancel_ = false;
  if (OnlineCheck) {
    connected_ = checkOnline();
    if (!connected_) {
      c_.dialogs.showMessage("", "You are not currently connected to the internet!\r\nThe download will be aborted!");
      DLECode.fire(noConnection);
      DLError.fire("No Connection Found!");
      StatusChange.fire("Download aborted, no connection present!");
      return;
    }
  }
  execute("");
  StatusChange.fire("Initiating Connection.");
  if (!waitForHead(request)) {
    return;
  }
  StatusChange.fire("Connection Accepted, Retrieving File Information.");
  if (cancel_) {
    cancel_ = false;
    DLECode.fire(cancelled);
    StatusChange.fire("cancelled.");
    return;
  }
  try {
    readHead();
  } catch (const Failure&) {
    DLError.fire("Error Reading File Headers.");
    StatusChange.fire("Error Reading File Headers!");
    DLECode.fire(headError);
  }
}

void DownLoad::execute(const std::string& headers) {
  c_.I1.execute(url, headers);
}

// False when another request has taken its place.
bool DownLoad::waitForHead(int request) {
  while (isLatest(request) && c_.I1.stillExecuting() && !c_.loop.ending()) {
    PumpWait(c_.loop, waitTime);
  }
  return isLatest(request);
}

void DownLoad::readHead() {
  const std::string head = c_.I1.getHeader();
  if (tellIfRefused(head.size() < 9 ? std::string() : head.substr(9, 3))) {
    return;
  }
  if (head.compare(std::min<std::size_t>(5, head.size()), 3, "1.1") == 0) {
    resumeSupported_ = true;
  }
  fileExists_ = true;
  startTime_ = seconds(c_.loop) - 1;
  fileSize_ = toInteger32(c_.I1.getHeaderValue("Content-Length"));
  StatusChange.fire("Retrieving File Information Complete!");
}

bool DownLoad::tellIfRefused(const std::string& status) {
  if (status != "401" && status != "403" && status != "404") {
    return false;
  }
  fileSize_ = 0;
  fileExists_ = status != "404";
  c_.I1.cancel();
  if (status == "404") {
    DLError.fire("File Not Found!");
    StatusChange.fire("File Not Found!");
    DLECode.fire(notFoundError);
    return true;
  }
  resumeSupported_ = false;
  StatusChange.fire(status == "401" ? "Unauthorized Access, Download Terminated!"
                                    : "Access Denied, Download Terminated!");
  DLECode.fire(status == "401" ? unauthorized : accessDenied);
  DLError.fire(status == "401" ? "Unauthorized Access!" : "Access Denied!");
  return true;
}

bool DownLoad::tellIfNotConnected() {
  if (!OnlineCheck || connected_) {
    return false;
  }
  DLECode.fire(noConnection);
  DLError.fire("No Connection Found!");
  StatusChange.fire("Download aborted, no connection present!");
  c_.I1.cancel();
  return true;
}

// The chunk and the path of the beginning count for all of the transfer.
void DownLoad::transfer(Run& run, const std::function<bool()>& prepare) {
  if (cancel_ || inDL_) {
    return;
  }
  run.request = request_;
  try {
    if (tellIfNotConnected()) {
      return;
    }
    run.chunk = std::max(CHUNK, 1);
    run.path = SaveLocation;
    if (prepare()) {
      receive(run);
    }
  } catch (const Failure&) {
    run.file.reset();
    inDL_ = false;
    tellTransferError(run);
  }
}

void DownLoad::StartDownLoad() {
  Run run;
  transfer(run, [this, &run] {
    if (KeepType) {
      run.path = KeepFileType(url, run.path);
    }
    if (!makeRoom(run.path)) {
      return false;
    }
    begin(run, 0);
    return true;
  });
}

void DownLoad::DLResume() {
  Run run;
  transfer(run, [this, &run] {
    const auto stamp = c_.files.stamp(run.path);
    if (!stamp) {
      DLError.fire("Resume File Not Found!");
      DLECode.fire(nothingToResume);
      StatusChange.fire("Resume File Not Found, Aborting Download!");
      return false;
    }
    if (!resumeSupported_) {
      DLError.fire("Resume Not Supported!");
      DLECode.fire(resumeNotSupported);
      StatusChange.fire("Resume NotSupported, Aborting Download!");
      return false;
    }
    run.before = sumOf(0, stamp->size);
    run.request = ++request_;
    execute("Range: bytes=" + std::to_string(run.before) + "-\r\n");
    if (!waitForHead(run.request)) {
      return false;
    }
    begin(run, stamp->size);
    return true;
  });
}

// False when the user keeps the file that is there.
bool DownLoad::makeRoom(std::string& path) {
  while (c_.files.stamp(path)) {
    const bool replaces = !PromptOverwrite ||
                          c_.dialogs.askYesNo("Overwrite?", "Would you like to overwrite the file at: " + path + " ?");
    if (replaces) {
      c_.files.remove(path);
    } else if (!askForPath(path)) {
      DLECode.fire(cancelled);
      StatusChange.fire("Cancelled.");
      c_.I1.cancel();
      return false;
    }
  }
  return true;
}

// False when there is to be no other path.
bool DownLoad::askForPath(std::string& path) {
  while (!cancel_ && !c_.loop.ending()) {
    const std::string answer =
        c_.dialogs.askText("New File...", "Please type in a new file path and name.\r\nExample: C:\\File2.txt", "")
            .value_or("");
    if (answer.empty()) {
      c_.dialogs.showMessage("Error!", "You didn't specify a file!");
    } else if (answer != path) {
      path = answer;
      return true;
    } else if (!c_.dialogs.askYesNo("Try Again?",
                                    "You typed in the same file! Would you like type in a different file?")) {
      return false;
    }
  }
  return false;
}

void DownLoad::begin(Run& run, std::uint64_t position) {
  run.file = c_.disk.openForBinary(run.path, position);
  StatusChange.fire("Opening " + run.path + " For DATA Input.");
  inDL_ = true;
}

void DownLoad::receive(Run& run) {
  std::size_t length = 0;
  do {
    if (cancel_) {
      takeUpCancel(run);
      return;
    }
    std::string bytes;
    try {
      bytes = c_.I1.getChunk(run.chunk);
    } catch (const Failure&) {
      if (cancel_) {  // It is what has ended the wait for the bytes.
        takeUpCancel(run);
        return;
      }
      throw;
    }
    length = bytes.size();
    takeChunk(run, bytes);
    waitWhilePaused();
  } while (length >= 2);
  finish(run);
}

void DownLoad::takeChunk(Run& run, const std::string& bytes) {
  run.file->write(bytes);
  run.total = sumOf(run.total, bytes.size());
  tellSpeed(run);
  const std::int32_t all = sumOf(run.before, static_cast<std::size_t>(run.total));
  RecievedBytes.fire(all);
  Percent.fire(percentOf(all, fileSize_));
  StatusChange.fire(receiving);
}

// A thousand times a second; the texts are made only for those who read them.
void DownLoad::tellSpeed(const Run& run) {
  const auto rate = static_cast<float>(run.total / (seconds(c_.loop) - startTime_));
  if (rate == 0) {
    throw failures::divisionByZero();
  }
  const auto left = static_cast<float>((fileSize_ - static_cast<double>(run.total)) / rate);
  if (Rate.hasListeners()) {
    Rate.fire(FormatRate(rate));
  }
  if (TimeLeft.hasListeners()) {
    TimeLeft.fire(FormatTimeLeft(left));
  }
}

void DownLoad::waitWhilePaused() {
  while (pause_ && !cancel_ && !c_.loop.ending()) {
    PumpWait(c_.loop, waitTime);
    StatusChange.fire("Paused.");
  }
}

// What a listener begins anew is not ended here.
void DownLoad::finish(Run& run) {
  run.file->close();
  run.file.reset();
  inDL_ = false;
  DLComplete.fire();
  StatusChange.fire("Download Successful!");
  if (isLatest(run.request)) {
    c_.I1.cancel();
  }
}

void DownLoad::takeUpCancel(Run& run) {
  cancel_ = false;
  pause_ = false;
  run.file.reset();
  inDL_ = false;
  DLECode.fire(cancelled);
  StatusChange.fire("Cancelled.");
}

void DownLoad::tellTransferError(const Run& run) {
  DLError.fire("Error Downloading File from : " + url);
  StatusChange.fire("Download Aborted Due To Error In Download!");
  DLECode.fire(transferError);
  if (isLatest(run.request)) {
    c_.I1.cancel();
  }
}

// What waits for the server need not wait any longer.
void DownLoad::Cancel() {
  cancel_ = true;
  StatusChange.fire("Cancelling..");
  c_.I1.cancel();
}

void DownLoad::Pause(bool blnPause) {
  pause_ = blnPause;
  if (!blnPause) {
    StatusChange.fire("Unpausing");
  }
}

}  // namespace vantrel
