#include "export/Entities.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr int firstSign = 160;
constexpr std::string_view signNames[] = {"nbsp",  "iexcl",  "cent", "pound", "curren", "yen",    "brvbar", "sect",
                                          "uml",   "copy",   "ordf", "laquo", "not",    "shy",    "reg",    "macr",
                                          "deg",   "plusmn", "sup2", "sup3",  "acute",  "micro",  "para",   "middot",
                                          "cedil", "sup1",   "ordm", "raquo", "frac14", "frac12", "frac34", "iquest"};

constexpr int firstSmallLetter = 224;
constexpr std::string_view letterNames[] = {
    "agrave", "aacute", "acirc",  "atilde", "auml",   "aring", "aelig",  "ccedil", "egrave", "eacute", "ecirc",
    "euml",   "igrave", "iacute", "icirc",  "iuml",   "eth",   "ntilde", "ograve", "oacute", "ocirc",  "otilde",
    "ouml",   "divide", "oslash", "ugrave", "uacute", "ucirc", "uuml",   "yacute", "thorn",  "yuml"};
constexpr int toCapital = -32;

struct Named {
  std::string_view name;
  int code;
};
constexpr Named others[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"times", 215}, {"szlig", 223}};

constexpr int none = -1;

// A half goes to the even neighbour.
int numericCode(std::string_view text) {
  try {
    const double code = std::nearbyint(toNumber(text));
    return code >= 0 && code <= 255 ? static_cast<int>(code) : none;
  } catch (const Failure&) {  // It is beyond all numbers, so there is no such character either.
    return none;
  }
}

// The two forms of a letter share one name, but for its own capitals.
int letterCode(std::string_view name, bool isCapital) {
  const auto* const found = std::find(std::begin(letterNames), std::end(letterNames), name);
  if (found == std::end(letterNames)) {
    return none;
  }
  const int code = firstSmallLetter + static_cast<int>(found - std::begin(letterNames));
  const bool hasCapital = name != "divide" && name != "yuml";
  return isCapital && hasCapital ? code + toCapital : code;
}

int namedCode(std::string_view name, bool isCapital) {
  for (const Named& other : others) {
    if (other.name == name) {
      return other.code;
    }
  }
  const auto* const sign = std::find(std::begin(signNames), std::end(signNames), name);
  if (sign != std::end(signNames)) {
    return firstSign + static_cast<int>(sign - std::begin(signNames));
  }
  return letterCode(name, isCapital);
}

}  // namespace

std::string decodeEntity(std::string_view name) {
  const std::string lower = lowerCase(name);
  std::string_view known = lower;
  if (known.starts_with('#')) {
    known.remove_prefix(1);
  }
  const int code = isNumeric(known) ? numericCode(known) : namedCode(known, name != lower);
  return code == none ? std::string() : std::string(1, static_cast<char>(code));
}

}  // namespace vantrel
