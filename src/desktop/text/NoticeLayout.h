// How a notice is fitted to its screen: where its text breaks and ends, and where it stands beside other notices.
#pragma once

#include <QList>
#include <QRect>
#include <QString>

class QFont;

namespace vantrel {

// What a text in a notice may take.
struct TextRoom {
  int width;  // pixels
  int lines;  // 1 or more
};

// The text in lines that fit into the room, joined by "\n". A word that is longer than a line is broken anywhere; what
// finds no room is cut and an ellipsis stands for it. A control character becomes a blank.
QString fittedText(const QString& text, const QFont& font, const TextRoom& room);

// Where the top left corner of a notice goes: to the first of `wishes` with which it is wholly on the screen and on no
// `taken` rectangle, else beside one of those. If there is no such place, to the first wish moved onto the screen.
// REQUIRES: at least one wish.
QPoint freePlace(QSize size, const QList<QPoint>& wishes, const QRect& screen, const QList<QRect>& taken);

constexpr int noticeMargin = 16;  // between a notice and what it keeps away from, in pixels

}  // namespace vantrel
