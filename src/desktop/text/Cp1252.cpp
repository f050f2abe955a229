#include "desktop/text/Cp1252.h"

#include <algorithm>
#include <array>

namespace vantrel {

namespace {

// What the bytes 80 to 9F mean; every other byte means the code point of its own number.
constexpr std::array<char16_t, 32> high = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char toByte(char16_t unit) {
  if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) {
    return static_cast<char>(unit);
  }
  const auto found = std::find(high.begin(), high.end(), unit);
  return found == high.end() ? '?' : static_cast<char>(0x80 + (found - high.begin()));
}

}  // namespace

QString fromCp1252(std::string_view text) {
  QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  std::transform(text.begin(), text.end(), result.begin(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return QChar(byte >= 0x80 && byte <= 0x9F ? high[byte - 0x80u] : char16_t{byte});
  });
  return result;
}

std::string toCp1252(const QString& text) {
  std::string result;
  result.reserve(static_cast<std::size_t>(text.size()));
  for (qsizetype i = 0; i < text.size(); ++i) {
    result += toByte(text[i].unicode());
    const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    i += pair ? 1 : 0;
  }
  return result;
}

}  // namespace vantrel
