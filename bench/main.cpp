// Measures the program against the targets it has to reach; the exit code tells whether it reached them all.

#include <QApplication>
#include <string_view>

#include "SweepBench.h"
#include "desktop/controls/Theme.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  if (argc > 1 && std::string_view(argv[1]) == "--cold-start") {
    return vantrel::bench::coldStart(argc, argv);
  }
  QApplication application(argc, argv);
  vantrel::applyTheme(application);
  vantrel::bench::Report report;
  if (argc > 1 && std::string_view(argv[1]) == "--maps") {
    vantrel::bench::benchMaps(report);
    return report.allReached() ? 0 : 1;
  }
  if (argc > 1 && std::string_view(argv[1]) == "--face") {
    vantrel::bench::benchFace(report);
    return report.allReached() ? 0 : 1;
  }
  vantrel::bench::benchFace(report);
  vantrel::bench::benchStart(report);
  vantrel::bench::benchDetail(report);
  vantrel::bench::benchFlood(report);
  vantrel::bench::benchMaps(report);
  vantrel::bench::benchBuddies(report);
  vantrel::bench::benchSweeps(report);
  return report.allReached() ? 0 : 1;
}
