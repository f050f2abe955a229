#pragma once

#include <string>
#include <vector>

#include "sandbox/WorldPlan.h"

namespace vantrel::sandbox {

/// The servers as a table in UTF-8: one line for each server below a line of headings.
std::string worldTable(const std::vector<GameServer>& servers);

}  // namespace vantrel::sandbox
