// The dialog in which the user picks a file, with its two guards; and what is done with the file afterwards.
#pragma once

#include <string>

#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Loop.h"
#include "platform/Shell.h"

namespace vantrel {

// Empty when the user cancels, and when the initial file name has 261 characters or more, which is told in a box with
// `programTitle` in its title. A dialog that comes back at once is shown a second time.
std::string FileDialog(Dialogs& dialogs, const Loop& loop, const std::string& programTitle, FileQuestion question);

// Makes the text with a line end behind it the content of the file. Throws as `Files::replace` does; the old content
// is then untouched.
void SaveTextFile(Files& files, const std::string& text, const std::string& path);

// Asks the desktop to open a file or an address; true when it took the job.
bool GShell(Shell& shell, const std::string& target);

}  // namespace vantrel
