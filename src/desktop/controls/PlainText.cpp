#include "desktop/controls/PlainText.h"

#include <algorithm>

namespace vantrel {
namespace {

constexpr qsizetype longestToolTip = 400;  // characters

}  // namespace

QString oneLine(QString text) {
  std::replace_if(
      text.begin(), text.end(), [](QChar character) { return character.category() == QChar::Other_Control; },
      QLatin1Char(' '));
  return text;
}

// A tool tip takes a text with tags in it for markup, so it is given markup in which none is left.
QString plainToolTip(const QString& text) {
  if (text.isEmpty()) {
    return {};
  }
  const QString shown = text.size() <= longestToolTip ? text : text.left(longestToolTip) + QChar(0x2026);
  return QStringLiteral("<span>%1</span>").arg(oneLine(shown).toHtmlEscaped());
}

}  // namespace vantrel
