// Starts the program on the screen there is.

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "app/Places.h"
#include "app/Program.h"
#include "desktop/adapters/PosixEndSignals.h"
#include "desktop/controls/ProgramIcon.h"
#include "desktop/controls/Theme.h"

namespace {

// The toolkit ends the process when its platform finds no display, without a word that a user could act on.
bool hasDisplay() {
#ifdef __linux__
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
  return true;
#endif
}

}  // namespace

int main(int argc, char** argv) {
  if (!hasDisplay()) {
    std::fputs("Vantrel CE needs a graphical display, and neither DISPLAY nor WAYLAND_DISPLAY is set.\n", stderr);
    return 1;
  }
  QApplication::setApplicationName("vantrel-ce");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setDesktopFileName("vantrel-ce");
  QApplication::setWindowIcon(vantrel::programIcon());
  vantrel::applyTheme(application);
  {
    vantrel::PosixEndSignals endSignals;  // kept to the end, so that a second request does not cut off the last write
    vantrel::Program program({VANTREL_MASTER_HOST, VANTREL_MIRROR, VANTREL_MIRROR_SITE, VANTREL_MAKER_SITE},
                             {VANTREL_VERSION_MAJOR, VANTREL_VERSION_MINOR, VANTREL_VERSION_REVISION},
                             vantrel::findPlaces());
    const vantrel::Connection ended = endSignals.received.connect([&program] { program.end(); });
    program.run();
  }
  // The stores are on disk. The toolkit would now wait for a name lookup that is still under way, for as long as the
  // name server is silent.
  std::quick_exit(0);
}
