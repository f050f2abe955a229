// The benchmarks that run the whole program, its window included, against a sandbox world of their own.
#pragma once

#include "Measure.h"

namespace vantrel::bench {

void benchSweeps(Report& report);
void benchFlood(Report& report);

}  // namespace vantrel::bench
