// Where the caption and the picture of a button stand, and the outline of a slanted one.
#pragma once

#include <string>

#include "appearance/ButtonCanvas.h"

namespace vantrel {

// A caption as it is shown: "&&" is an ampersand, "&" marks the access key, two bars are a line end.
struct ButtonCaption {
  std::string text;
  char accessKey = 0;   // in upper case; 0 for none
  int underlined = -1;  // the number of its byte in `text`
};
ButtonCaption readCaption(const std::string& caption);

// The limits of a slanted outline. A slanted button is widened in steps of five pixels until its slants have room.
struct ButtonOutline {
  int width = 0;
  int height = 0;
  int slant = 0;       // of both sides, where they are slanted
  int shapeInset = 0;  // where the lower edge begins
  int shapeRight = 0;  // where the upper edge ends
};
ButtonOutline buttonOutline(int shape, int width, int height);

struct ButtonParts {
  ButtonOutline outline = {};
  int shape = 0;
  int captionAlign = 2;
  int captionStyle = 0;
  int pictureAlign = 0;
  int pictureSize = 16;  // 16, 24, 32; 40 stretches it over the button, 48 scales it to fit
  int pictureWidth = 0;  // its own, in pixels; 0 where there is no picture
  int pictureHeight = 0;
};

struct ButtonLayout {
  ButtonBox caption;
  ButtonBox picture;
};
// `text`: of `readCaption`.
ButtonLayout layOut(const ButtonParts& parts, const std::string& text, const ButtonMeasure& measure);

}  // namespace vantrel
