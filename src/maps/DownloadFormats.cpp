#include "maps/DownloadFormats.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace vantrel {
namespace {

constexpr std::size_t longestEnd = 6;  // with the extension

// A half goes to the even neighbour.
std::int64_t rounded(double number) {
  return static_cast<std::int64_t>(std::nearbyint(number));
}

// At most two places, and no zero at their end.
std::string twoPlaces(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2f", std::nearbyint(number * 100) / 100);
  std::string places = text;
  places.erase(places.find_last_not_of('0') + 1);
  if (places.ends_with('.')) {
    places.pop_back();
  }
  return places;
}

std::size_t dotNearEnd(const std::string& text) {
  return text.find('.', text.size() - std::min(longestEnd, text.size()));
}

}  // namespace

std::string FormatRate(float rate) {
  if (rate >= 0 && rate <= 1023) {
    return std::to_string(rounded(rate)) + " Bytes/S";
  }
  return rate >= 1024 && rate <= 1048575 ? twoPlaces(rate / 1024.0) + " KB/S" : std::string();
}

std::string FormatTimeLeft(float left) {
  const double t = std::clamp<double>(left, -1e12, 1e12);
  if (t >= 0 && t <= 59) {
    return std::to_string(rounded(t)) + " sec";
  }
  if (t >= 60 && t <= 3599) {
    return std::to_string(static_cast<std::int64_t>(t / 60)) + " min " + std::to_string(rounded(t) % 60) + " sec";
  }
  return std::to_string(static_cast<std::int64_t>(t / 3600)) + " hr " + std::to_string(rounded(t / 60) % 60) + " min";
}

std::string KeepFileType(const std::string& url, const std::string& path) {
  const std::size_t urlDot = dotNearEnd(url);
  if (urlDot == std::string::npos) {
    return path;
  }
  const std::size_t pathDot = dotNearEnd(path);
  return (pathDot == std::string::npos ? path : path.substr(0, pathDot + 1)) + url.substr(urlDot + 1);
}

}  // namespace vantrel
