#include "desktop/text/NoticeLayout.h"

#include <QFontMetrics>
#include <QStringList>
#include <QTextLayout>
#include <algorithm>

namespace vantrel {
namespace {

constexpr qsizetype longestShown = 3000;  // characters; more never fit
constexpr int stackGap = 8;               // between notices that stand beside each other, in pixels
constexpr QChar ellipsis(0x2026);

QString withPlainLineEnds(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  const auto unwanted = [](QChar character) {
    return character != QLatin1Char('\n') && character.category() == QChar::Other_Control;
  };
  std::replace_if(text.begin(), text.end(), unwanted, QLatin1Char(' '));
  return text.trimmed();
}

QString withoutBlanksAtEnd(QString text) {
  while (text.endsWith(QLatin1Char(' '))) {
    text.chop(1);
  }
  return text;
}

void addLinesOf(const QString& paragraph, const QFont& font, const TextRoom& room, QStringList& lines) {
  QTextLayout layout(paragraph, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  const qsizetype before = lines.size();
  while (lines.size() <= room.lines) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) {
      break;
    }
    line.setLineWidth(room.width);
    lines << withoutBlanksAtEnd(paragraph.mid(line.textStart(), line.textLength()));
  }
  layout.endLayout();
  if (lines.size() == before) {
    lines << QString();
  }
}

QString withEllipsis(QString line, const QFont& font, int width) {
  const QFontMetrics metrics(font);
  while (!line.isEmpty() && metrics.horizontalAdvance(line + ellipsis) > width) {
    line.chop(1);
  }
  return line + ellipsis;
}

QList<QPoint> placesBeside(QSize size, const QRect& other) {
  const int leftAligned = other.left();
  const int rightAligned = other.right() + 1 - size.width();
  const int above = other.top() - stackGap - size.height();
  const int below = other.bottom() + 1 + stackGap;
  return {{rightAligned, above},
          {leftAligned, above},
          {leftAligned, below},
          {rightAligned, below},
          {other.left() - stackGap - size.width(), other.top()},
          {other.right() + 1 + stackGap, other.top()}};
}

QPoint movedOnto(const QRect& screen, QSize size, QPoint corner) {
  return {std::max(screen.left(), std::min(corner.x(), screen.right() + 1 - size.width())),
          std::max(screen.top(), std::min(corner.y(), screen.bottom() + 1 - size.height()))};
}

}  // namespace

QString fittedText(const QString& text, const QFont& font, const TextRoom& room) {
  QStringList lines;
  for (const QString& paragraph : withPlainLineEnds(text.left(longestShown)).split(QLatin1Char('\n'))) {
    addLinesOf(paragraph, font, room, lines);
    if (lines.size() > room.lines) {
      break;
    }
  }
  if (lines.size() > room.lines || text.size() > longestShown) {
    lines = lines.mid(0, room.lines);
    lines.last() = withEllipsis(lines.last(), font, room.width);
  }
  return lines.join(QLatin1Char('\n'));
}

QPoint freePlace(QSize size, const QList<QPoint>& wishes, const QRect& screen, const QList<QRect>& taken) {
  QList<QPoint> places = wishes;
  for (const QRect& other : taken) {
    places << placesBeside(size, other);
  }
  const auto isFree = [&](QPoint corner) {
    const QRect place(corner, size);
    return screen.contains(place) &&
           std::none_of(taken.begin(), taken.end(), [&](const QRect& other) { return other.intersects(place); });
  };
  const auto found = std::find_if(places.begin(), places.end(), isFree);
  return found == places.end() ? movedOnto(screen, size, wishes.first()) : *found;
}

}  // namespace vantrel
