#include "appearance/ButtonLayout.h"

#include <algorithm>
#include <cctype>

namespace vantrel {
namespace {

constexpr int margin = 4;       // beside the caption and the picture
constexpr int marginBelow = 5;  // the caption
constexpr int gapAbove = 2;     // between picture and caption, where one stands above the other
constexpr int stretched = 40;
constexpr int fitted = 48;

struct Area {
  int left = 0;
  int width = 0;
};

// A slanted side costs the parts that stand in it a third of its slant.
Area drawingArea(const ButtonParts& parts) {
  const ButtonOutline& outline = parts.outline;
  const int left = outline.shapeInset - outline.shapeInset / 3 + 3;
  const int right = outline.shapeRight + (outline.width - outline.shapeRight) / 3;
  switch (parts.shape) {
    case 1:
      return {left, outline.width - left};
    case 2:
      return {0, right};
    case 3:
      return {left, right - left};
    default:
      return {0, outline.shapeRight};
  }
}

bool hasPicture(const ButtonParts& parts) {
  return parts.pictureWidth > 0 && parts.pictureHeight > 0;
}

// The place of a picture that is a mode, not a size.
ButtonBox wholePicture(const ButtonParts& parts) {
  const ButtonOutline& outline = parts.outline;
  if (parts.pictureSize == stretched) {
    const int inset = parts.shape == 6 ? 1 : 3;
    return {inset, inset, outline.width - 2 * inset, outline.height - 2 * inset};
  }
  const double room = std::min((outline.width - 12) / static_cast<double>(parts.pictureWidth),
                               (outline.height - 12) / static_cast<double>(parts.pictureHeight));
  const int width = static_cast<int>(parts.pictureWidth * std::max(room, 0.0));
  const int height = static_cast<int>(parts.pictureHeight * std::max(room, 0.0));
  return {(outline.width - width) / 2, (outline.height - height) / 2, width, height};
}

int captionLeft(const ButtonParts& parts, const Area& area, int reservedLeft, int reservedRight, int width) {
  const int left = area.left + reservedLeft;
  const int right = area.left + area.width - reservedRight;
  switch (parts.captionAlign) {
    case 0:
      return left + margin;
    case 1:
      return right - margin - width;
    default:
      return left + (right - left - width) / 2;
  }
}

int pictureLeft(const ButtonParts& parts, const Area& area, const ButtonBox& caption, bool hasCaption) {
  const int size = parts.pictureSize;
  const int atLeft = area.left + margin;
  const int atRight = area.left + area.width - margin - size;
  switch (parts.pictureAlign) {
    case 0:
      return atLeft;
    case 1:
      return hasCaption ? caption.left - margin - size : atLeft;
    case 2:
      return atRight;
    case 3:
      return hasCaption ? caption.right() + margin : atRight;
    default:
      return area.left + (area.width - size) / 2;
  }
}

void keepInside(ButtonBox& caption, const Area& area, int height) {
  const int right = area.left + area.width - margin;
  caption.left = std::max(caption.left, area.left + margin);
  caption.top = std::max(caption.top, margin);
  caption.width = std::max(0, std::min(caption.width, right - caption.left));
  caption.height = std::max(0, std::min(caption.height, height - marginBelow - caption.top));
}

}  // namespace

ButtonCaption readCaption(const std::string& caption) {
  ButtonCaption read;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    const bool isPair = at + 1 < caption.size() && caption[at] == caption[at + 1];
    if (caption[at] == '|' && isPair) {
      read.text += "\r\n";
      ++at;
    } else if (caption[at] == '&' && isPair) {
      read.text += '&';
      ++at;
    } else if (caption[at] == '&') {
      if (read.accessKey == 0 && at + 1 < caption.size()) {
        read.accessKey = static_cast<char>(std::toupper(static_cast<unsigned char>(caption[at + 1])));
        read.underlined = static_cast<int>(read.text.size());
      }
    } else {
      read.text += caption[at];
    }
  }
  return read;
}

ButtonOutline buttonOutline(int shape, int width, int height) {
  ButtonOutline outline{.width = width, .height = height, .slant = 0, .shapeInset = 0, .shapeRight = width};
  if (shape < 1 || shape > 3) {
    return outline;
  }
  outline.slant = height + 1;
  while (outline.width < outline.slant + 5) {
    outline.width += 5;
  }
  outline.shapeInset = shape == 2 ? 0 : outline.slant;
  outline.shapeRight = shape == 1 ? outline.width : outline.width - outline.slant;
  return outline;
}

ButtonLayout layOut(const ButtonParts& parts, const std::string& text, const ButtonMeasure& measure) {
  const Area area = drawingArea(parts);
  const int height = parts.outline.height;
  const bool isBeside = hasPicture(parts) && parts.pictureSize < stretched;
  const int size = isBeside ? parts.pictureSize : 0;
  const bool isAbove = parts.pictureAlign == 4;
  const bool isBelow = parts.pictureAlign == 5;
  const int reservedLeft = parts.pictureAlign <= 1 ? size : 0;
  const int reservedRight = parts.pictureAlign == 2 || parts.pictureAlign == 3 ? size : 0;
  const int reservedHeight = isAbove || isBelow ? size : 0;

  ButtonLayout layout;
  ButtonBox& caption = layout.caption;
  if (!text.empty()) {
    const int room = std::max(1, area.width - 2 * margin - reservedLeft - reservedRight);
    const int thick = parts.captionStyle != 0 ? 2 : 0;
    caption = measure.extentOf(text, room);
    caption.width = std::min(caption.width, room) + thick;
    caption.height = std::min(caption.height, std::max(0, height - 2 * margin - reservedHeight)) + thick;
    caption.left = captionLeft(parts, area, reservedLeft, reservedRight, caption.width);
  }
  const int gap = reservedHeight > 0 && !text.empty() ? gapAbove : 0;
  const int block = caption.height + reservedHeight + gap;
  caption.top = (height - block) / 2 + (isAbove ? reservedHeight + gap : 0);
  if (isBeside) {
    const int top = isAbove   ? (height - block) / 2
                    : isBelow ? (height - block) / 2 + caption.height + gap
                              : (height - size) / 2;
    layout.picture = {pictureLeft(parts, area, caption, !text.empty()), top, size, size};
  } else if (hasPicture(parts)) {
    layout.picture = wholePicture(parts);
  }
  if (!text.empty()) {
    keepInside(caption, area, height);
  }
  return layout;
}

}  // namespace vantrel
