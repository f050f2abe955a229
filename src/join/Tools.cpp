#include "join/Tools.h"

#include <vector>

#include "core/FailureStyles.h"
#include "core/PathText.h"
#include "core/Text.h"

namespace vantrel {
namespace {

constexpr const char* toolsFolder = "\\plugins\\";
#ifdef _WIN32
constexpr const char* toolPattern = "*.exe";
#else
constexpr const char* toolPattern = "*";  // of the files that can be started at all
#endif
constexpr const char* noToolPattern = "*.zorbel";  // meets nothing

}  // namespace

Tools::Tools(const Context& context) : c_(context) {
  c_.commands.add(command::launchTool, [this] { LaunchTool(); });
  clicked_ = c_.mainWindow.lstApps.clicked.connect([this] {
    const ListBox& files = c_.mainWindow.lstApps.files;
    c_.mainWindow.txtExe.text.set(c_.mainWindow.lstApps.path.get() + files.line(files.selected()));
  });
}

void Tools::LoadTools() {
  FileListBox& lstApps = c_.mainWindow.lstApps;
  const std::string folder = c_.folder.path(toolsFolder);
  reportAndEnd(
      [&] {
        const std::vector<FolderEntry> entries = c_.files.list(folder.substr(0, folder.size() - 1));
        lstApps.path.set(folder);
        lstApps.pattern.set(toolPattern);
        lstApps.files.clear();
        for (const FolderEntry& entry : entries) {
          if (entry.canRun) {
            lstApps.files.add(entry.name);
          }
        }
      },
      [&](const Failure& failure) {
        if (failure.number == failures::pathNotFound().number) {
          lstApps.path.set(c_.folder.path(""));
          lstApps.pattern.set(noToolPattern);
          lstApps.files.clear();
          c_.mainWindow.cmdMenu[command::launchTool].enabled.set(false);
          c_.mainWindow.lblText2[9].caption.set("Plugins folder not available");
          c_.mainWindow.lblText2[9].visible.set(true);
        }
      });
}

void Tools::LaunchTool() {
  const std::string tool = c_.mainWindow.txtExe.text.get();
  if (tool.empty()) {
    return;
  }
  const std::size_t name = tool.rfind(pathSeparator) + 1;
  const std::string dir = tool.substr(0, name);
  c_.mainWindow.windowState.set(WindowState::minimized);
  if (c_.buddies.visible.get()) {
    c_.buddies.windowState.set(WindowState::minimized);
  }
  reportAndEnd(
      [&] {
        const GameProcess started = c_.processes.start({.application = tool,
                                                        .commandLine = c_.mainWindow.txtParamProc.text.get(),
                                                        .directory = dir,
                                                        .priority = ProcessPriority::normal});
        c_.processes.close(started.process);
        c_.processes.close(started.thread);
      },
      [&](const Failure&) {
        c_.notices.ShowPopMsg("Unable to launch plugin \r\nDirectory: " + pathText(dir) +
                              "\r\nExe: " + pathText(tool.substr(name)));
      });
}

}  // namespace vantrel
