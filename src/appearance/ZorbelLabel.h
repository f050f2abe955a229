// A caption in a framed box.
#pragma once

#include <array>
#include <string>

#include "platform/Controls.h"
#include "platform/Placement.h"

namespace vantrel {

class ZorbelLabel {
 public:
  // Lines of the frame, in pixels; only what follows the control's size.
  struct Shape {
    float Width = 0;
    float Height = 0;

    bool operator==(const Shape& other) const = default;
  };

  Label lblmain;                      // the caption, in `ForeColor`
  float lblmainWidth = 0;             // pixels
  std::array<Shape, 3> Shpmain = {};  // the upper band, the box beneath it and the band's lower line
  Field<Color> BackColor{0x800000};
  Signal<> resized;  // behind a change of the shapes

  ZorbelLabel() { lblmain.foreColor.set(0x800000); }

  const std::string& Caption() const { return lblmain.caption.get(); }
  void setCaption(const std::string& text) { lblmain.caption.set(text); }

  // The caption's colour has two names.
  Color ForeColor() const { return lblmain.foreColor.get(); }
  void setForeColor(Color color) { lblmain.foreColor.set(color); }
  Color LabelColor() const { return ForeColor(); }
  void setLabelColor(Color color) { setForeColor(color); }

  // The control has a new size, in twips. Without a width nothing changes.
  void resize(float width, float height) {
    if (width <= 0) {
      return;
    }
    const float inner = width / twipsPerPixel - 2;
    Shpmain[0].Width = inner;
    Shpmain[2].Width = inner;
    lblmainWidth = inner - 2;
    Shpmain[1].Width = inner - 3;
    Shpmain[1].Height = height / twipsPerPixel - 21;
    resized.fire();
  }
};

}  // namespace vantrel
