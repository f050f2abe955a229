// Fetches one address of the web into one file, piece by piece, and tells what it does through signals. It knows
// nothing of maps.
//
// Two calls make a download: `GetFileInformation` asks and reads the head of the answer, `StartDownLoad` puts the body
// of that same answer into the file. Both return only at their end. Events run meanwhile, and from inside of them, the
// signals included, `Pause` and `Cancel` may be called. Nothing is thrown: every failure is a code and a text.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/BinaryFiles.h"
#include "platform/Connectivity.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Inet.h"
#include "platform/Loop.h"
#include "platform/Signal.h"

namespace vantrel {

class DownLoad {
 public:
  // What a failure is told as.
  enum Code : std::int32_t {
    transferError = 1,
    notFoundError = 2,
    headError = 3,
    cancelled = 4,
    noConnection = 5,
    nothingToResume = 6,
    resumeNotSupported = 7,
    unauthorized = 401,
    accessDenied = 403,
  };

  // What it works with; all of it must outlive it.
  struct Context {
    Loop& loop;
    Inet& I1;
    Files& files;
    BinaryFiles& disk;
    Dialogs& dialogs;
    const Connectivity& connectivity;
  };

  explicit DownLoad(const Context& context) : c_(context) {}

  bool InDL() const { return inDL_; }  // from the opening of the file to the end of the transfer
  bool AResume() const { return resumeSupported_; }
  bool CPause() const { return pause_; }
  bool CCancel() const { return cancel_; }                   // asked for and not yet taken up
  bool ResumeSupported() const { return resumeSupported_; }  // the server speaks HTTP/1.1
  bool Connected() const { return connected_; }              // as the last on-line check found it
  bool FileExists() const { return fileExists_; }            // the server knows the file
  std::int32_t FileSize() const { return fileSize_; }        // bytes, as the server tells it

  std::int32_t ROLLBACK = 0;     // bytes; kept for whoever sets it
  bool PromptOverwrite = false;  // asks before a file is replaced
  bool OnlineCheck = false;      // looks for a network first
  bool KeepType = false;         // gives the file the extension of the address
  std::string url = "http://example.invalid/";
  std::int32_t CHUNK = 1024;  // bytes asked for at a time, 1 or more
  std::string SaveLocation = "C:\\brak.tmp";

  Signal<> DLComplete;
  Signal<const std::string&> DLError;
  Signal<std::int32_t> DLECode;
  Signal<std::int32_t> RecievedBytes;
  Signal<std::int32_t> Percent;
  Signal<const std::string&> StatusChange;
  Signal<const std::string&> Rate;
  Signal<const std::string&> TimeLeft;
  Signal<const std::string&> ConnectionState;

  // Asks for the file and reads what the server tells of it. One call ends another that still waits, without a word of
  // that one.
  void GetFileInformation();
  // Receives the body. REQUIRES: `FileSize` is at least 1. Does nothing during another transfer.
  void StartDownLoad();
  // Receives what is missing at the end of a file that is there. REQUIRES: an earlier `GetFileInformation`.
  void DLResume();

  void Pause(bool blnPause);
  void Cancel();

  // As it was when it was made, but for what it was set to. REQUIRES: no transfer is under way.
  void reset();

 private:
  struct Run {
    std::unique_ptr<BinaryFile> file;
    std::int32_t chunk = 0;
    std::string path;
    std::int32_t before = 0;  // bytes that the file had
    std::int32_t total = 0;   // bytes of this run
    int request = 0;
  };

  bool isLatest(int request) const { return request == request_; }
  bool checkOnline();
  bool tellIfNotConnected();
  void execute(const std::string& headers);
  bool waitForHead(int request);
  bool tellIfRefused(const std::string& status);
  void readHead();
  bool makeRoom(std::string& path);
  bool askForPath(std::string& path);
  void begin(Run& run, std::uint64_t position);
  void receive(Run& run);
  void takeChunk(Run& run, const std::string& bytes);
  void tellSpeed(const Run& run);
  void waitWhilePaused();
  void finish(Run& run);
  void takeUpCancel(Run& run);
  void tellTransferError(const Run& run);
  void transfer(Run& run, const std::function<bool()>& prepare);

  Context c_;
  int request_ = 0;
  bool inDL_ = false;
  bool pause_ = false;
  bool cancel_ = false;
  bool resumeSupported_ = false;
  bool connected_ = false;
  bool fileExists_ = false;
  std::int32_t fileSize_ = 0;
  double startTime_ = 0;  // seconds of the clock
};

}  // namespace vantrel
