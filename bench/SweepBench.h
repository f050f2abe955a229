// The benchmarks that run the whole program, its window included, against a sandbox world of their own.
#pragma once

#include "Measure.h"
#include "desktop/grid/ServerGridView.h"

namespace vantrel::bench {

// A click on a row in the middle of the table, and the picture that answers it.
void clickRow(ServerGridView& view, int click);

void benchSweeps(Report& report);
void benchFlood(Report& report);

}  // namespace vantrel::bench
