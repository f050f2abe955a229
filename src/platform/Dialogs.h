// Face of the windows that ask the user something and hold up who called. Events run meanwhile, and the main window
// does not take input.
#pragma once

#include <optional>
#include <string>

namespace vantrel {

enum class FilePurpose { read, write };

struct FileQuestion {
  FilePurpose purpose = FilePurpose::read;
  std::string title = {};        // empty for the platform's own
  std::string filter = {};       // "name|pattern|name|pattern"; patterns of one entry are parted by ";"
  std::string fileName = {};     // what stands in the dialog at first; empty for nothing
  std::string folder = {};       // where it begins; empty for the user's home
  std::string defaultType = {};  // "*.html": the extension that a name without one gets
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // The path that the user chose, in the system's own bytes; nothing when the user cancelled, or the program ends.
  virtual std::optional<std::string> askFile(const FileQuestion& question) = 0;
  // The text that the user entered; nothing when the user cancelled, or the program ends.
  virtual std::optional<std::string> askText(const std::string& title, const std::string& text,
                                             const std::string& preset) = 0;
  // True for "Yes"; false for "No", and when the box was closed or the program ends.
  virtual bool askYesNo(const std::string& title, const std::string& text) = 0;
  // Shows a message until the user has confirmed it, or the program ends. An empty title gives "Vantrel CE".
  virtual void showMessage(const std::string& title, const std::string& text) = 0;
};

}  // namespace vantrel
