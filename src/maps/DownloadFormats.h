// How fast a download is and how long it will still take, as the user reads it, and where it is kept.
#pragma once

#include <string>

namespace vantrel {

// `rate`: bytes a second. Empty from 1 MB/s on.
std::string FormatRate(float rate);

// `left`: seconds.
std::string FormatTimeLeft(float left);

// The path with the extension of the address. An extension begins behind the first dot of the last six characters;
// without a dot in one of the two, that one has nothing to give or to take: the address leaves the path as it is, and a
// path gets the extension at its end.
std::string KeepFileType(const std::string& url, const std::string& path);

}  // namespace vantrel
