// Starts the program on the screen there is.

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "app/Places.h"
#include "app/Program.h"
#include "desktop/adapters/DiskFiles.h"
#include "desktop/adapters/PosixEndSignals.h"
#include "desktop/adapters/XdgSchemes.h"
#include "desktop/controls/ProgramIcon.h"
#include "desktop/controls/Theme.h"
#include "desktop/text/Cp1252.h"
#include "platform/Failure.h"

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

// Behind the program's name, as one text.
std::string commandLine() {
  return vantrel::toCp1252(QCoreApplication::arguments().mid(1).join(' '));
}

// What an uninstall calls: the desktop does not know the program for links any more.
int withdrawFromLinks() {
  const vantrel::Places places = vantrel::findPlaces();
  vantrel::DiskFiles files;
  try {
    vantrel::XdgSchemes(files, {places.dataHome, places.configHome, places.program}).withdraw("halo");
    return 0;
  } catch (const vantrel::Failure& failure) {
    std::fprintf(stderr, "%s\n", failure.description.c_str());
    return 1;
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--withdraw-links") {
    const QCoreApplication application(argc, argv);
    return withdrawFromLinks();
  }
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
    const vantrel::Places places = vantrel::findPlaces();
    vantrel::fillAppDir(places);
    vantrel::PosixEndSignals endSignals;  // kept to the end, so that a second request does not cut off the last write
    vantrel::Program program({VANTREL_MASTER_HOST, VANTREL_MIRROR, VANTREL_MIRROR_SITE, VANTREL_MAKER_SITE,
                              VANTREL_MAKER_NAME, VANTREL_AUTHOR_SITE},
                             {VANTREL_VERSION_MAJOR, VANTREL_VERSION_MINOR, VANTREL_VERSION_REVISION}, places,
                             commandLine());
    const vantrel::Connection ended = endSignals.received.connect([&program] { program.end(); });
    program.run();
  }
  // The stores are on disk. The toolkit would now wait for a name lookup that is still under way, for as long as the
  // name server is silent.
  std::quick_exit(0);
}
