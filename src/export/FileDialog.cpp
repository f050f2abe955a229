#include "export/FileDialog.h"

namespace vantrel {
namespace {

constexpr std::size_t tooLong = 261;   // characters of a path
constexpr std::uint64_t tooSoon = 20;  // milliseconds

}  // namespace

std::string FileDialog(Dialogs& dialogs, const Loop& loop, const std::string& programTitle, FileQuestion question) {
  if (question.fileName.size() >= tooLong) {
    dialogs.showMessage(programTitle + " - FileDialog Function", "Pfad Length Overflow");
    return {};
  }
  const std::uint64_t opened = loop.tickCount();
  std::string path = dialogs.askFile(question).value_or("");
  if (loop.tickCount() - opened < tooSoon && !loop.ending()) {
    question.fileName.clear();
    path = dialogs.askFile(question).value_or("");
  }
  return path;
}

void SaveTextFile(Files& files, const std::string& text, const std::string& path) {
  files.replace(path, text + "\r\n");
}

bool GShell(Shell& shell, const std::string& target) {
  return shell.open(target);
}

}  // namespace vantrel
