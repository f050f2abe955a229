// The benchmarks that run the whole program, its window included, against a sandbox world of their own.
#pragma once

#include "Measure.h"
#include "app/Program.h"
#include "desktop/grid/ServerGridView.h"

class QTemporaryDir;

namespace vantrel::bench {

// A click on a row in the middle of the table, and the picture that answers it.
void clickRow(ServerGridView& view, int click);

// The folders of a program in a folder of its own.
Places placesIn(const QTemporaryDir& folder);
// Brings the program up with no splash and with the game's folder known.
void startAtOnce(Program& program);
// Comes up to the painted window and prints the CPU time of the whole process in milliseconds; an exit code.
int coldStart(int argc, char** argv);

void benchStart(Report& report);
void benchDetail(Report& report);
void benchSweeps(Report& report);
void benchBuddies(Report& report);
void benchFlood(Report& report);
void benchMaps(Report& report);
void benchFace(Report& report);

}  // namespace vantrel::bench
