// Draws a button with the toolkit, and measures its caption. Lines are whole pixels at 100 %, so that they are crisp at
// every device pixel ratio.
#pragma once

#include <QFont>
#include <QIcon>
#include <optional>

#include "appearance/ButtonCanvas.h"

class QPainter;

namespace vantrel {

class FontMeasure : public ButtonMeasure {
 public:
  explicit FontMeasure(const QFont& font) : font_(font) {}
  ButtonBox extentOf(const std::string& text, int width) const override;

 private:
  QFont font_;
};

class PainterCanvas : public ButtonCanvas {
 public:
  // What lies behind a caption that must be readable; nothing where the caption is shown as it is.
  using Ground = std::optional<QColor>;
  // `painter` must outlive this.
  PainterCanvas(QPainter& painter, const QIcon& picture, Ground ground)
      : painter_(painter), picture_(picture), ground_(std::move(ground)) {}

  void fill(const ButtonBox& box, Color color) override;
  void line(int fromX, int fromY, int toX, int toY, Color color) override;
  void text(const ButtonBox& box, const std::string& text, int underlined, Color color) override;
  void picture(const ButtonBox& box, bool isEnabled) override;
  void focusRectangle(const ButtonBox& box) override;

 private:
  QPainter& painter_;
  QIcon picture_;
  Ground ground_;
};

}  // namespace vantrel
