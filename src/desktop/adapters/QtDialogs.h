// The windows that ask the user something. They wait by the program's own loop, so the sockets go on under them and the
// end of the program closes them; one may open while another is up.
#pragma once

#include "platform/Dialogs.h"
#include "platform/Loop.h"

class QDialog;
class QString;

namespace vantrel {

class QtDialogs : public Dialogs {
 public:
  // `loop` must outlive this.
  explicit QtDialogs(Loop& loop) : loop_(loop) {}

  std::optional<std::string> askFile(const FileQuestion& question) override;
  std::optional<std::string> askText(const std::string& title, const std::string& text,
                                     const std::string& preset) override;
  bool askYesNo(const std::string& title, const std::string& text) override;
  void showMessage(const std::string& title, const std::string& text) override;

 private:
  int run(QDialog& dialog) const;

  Loop& loop_;
};

// "name|pattern;pattern|..." as the toolkit's file dialog wants it, each letter of a pattern in both cases. The dialog
// shows the names alone.
QString toolkitFilter(const std::string& filter);

}  // namespace vantrel
