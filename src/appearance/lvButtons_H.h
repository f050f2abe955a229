// The button of the program: a push button, a check box or an option button that draws itself, changes its look while
// the pointer is over it, and can have slanted sides. It knows nothing of the program.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "appearance/ButtonCanvas.h"
#include "appearance/ButtonHost.h"
#include "appearance/ButtonLayout.h"
#include "appearance/ButtonLook.h"
#include "platform/Signal.h"

namespace vantrel {

struct ButtonMouse {
  int Button = 0;  // 1 left, 2 right, 4 middle
  int Shift = 0;   // 1 shift, 2 control, 4 alt
  float X = 0;
  float Y = 0;
};

struct ButtonPicture {
  enum class Kind { none, bitmap, icon };
  Kind kind = Kind::none;
  int width = 0;  // pixels
  int height = 0;
  std::string name{};  // what it is kept under

  bool operator==(const ButtonPicture&) const = default;
};

// What a form keeps of a button: the texts of its properties under their keys.
using PropertyBag = std::map<std::string, std::string>;

class lvButtons_H {
 public:
  static constexpr int hoverTimer = 237;    // its number
  static constexpr int hoverInterval = 50;  // milliseconds

  // All of it must outlive the button. `designTime`: on a form that is being drawn; only then does a property that
  // cannot take effect say so.
  struct Site {
    ButtonHost& host;
    ButtonContainer& container;
    const SystemColors& system;
    bool designTime = false;
  };
  explicit lvButtons_H(Site site);
  lvButtons_H(const lvButtons_H&) = delete;
  lvButtons_H& operator=(const lvButtons_H&) = delete;
  ~lvButtons_H();

  // Lifecycle. `InitProperties` is for a new button, with its display name as the caption.
  void InitProperties(const std::string& displayName, Color containerBack);
  void ReadProperties(const PropertyBag& bag);
  PropertyBag WriteProperties() const;
  void ambientDisplayAsDefault(bool isDefault);
  void resize(int width, int height);

  // The properties. A value outside its range is ignored. Where a text is returned, it tells at design time why nothing
  // was changed; otherwise it is empty.
  int ButtonStyle() const { return buttonStyle_; }  // 0 to 7
  void setButtonStyle(int style);
  int Mode() const { return mode_; }  // 0 command, 1 check, 2 option
  void setMode(int mode);
  const std::string& Caption() const { return caption_; }
  void setCaption(const std::string& caption);
  int CaptionAlign() const { return captionAlign_; }  // 0 left, 1 right, 2 centre
  std::string setCaptionAlign(int align);
  int CaptionStyle() const { return captionStyle_; }  // 0 plain, 1 and 2 in relief
  void setCaptionStyle(int style);
  int CustomClick() const { return customClick_; }  // 0 to 8
  std::string setCustomClick(int direction);
  int ButtonShape() const { return buttonShape_; }  // 0 to 8
  std::string setButtonShape(int shape);
  const ButtonPicture& Picture() const { return picture_; }
  std::string setPicture(const ButtonPicture& picture);
  int PictureAlign() const { return pictureAlign_; }  // 0 to 5
  void setPictureAlign(int align);
  int PictureSize() const { return pictureSize_; }  // 0 to 4: 16 to 48 pixels in steps of 8
  std::string setPictureSize(int size);
  bool Enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  bool ShowFocusRect() const { return showFocusRect_; }
  std::string setShowFocusRect(bool show);
  bool Value() const { return value_; }
  std::string setValue(bool value);
  int MousePointer() const { return mousePointer_; }
  void setMousePointer(int pointer) { mousePointer_ = pointer; }
  const std::string& MouseIcon() const { return mouseIcon_; }
  std::string setMouseIcon(const std::string& file);
  const std::string& Font() const { return font_; }
  void setFont(const std::string& font);
  int FontStyle() const { return fontStyle_; }  // bits: 2 bold, 4 italic, 8 underline
  void setFontStyle(int style);
  Color ForeColor() const { return foreColor_; }
  void setForeColor(Color color);
  Color BackColor() const { return backColor_; }
  void setBackColor(Color color);
  Color GradientColor() const { return gradientColor_; }
  void setGradientColor(Color color);
  int GradientMode() const { return gradientMode_; }  // 0 none, 1 to 4
  void setGradientMode(int mode);
  bool ResetDefaultColors() const { return false; }
  void setResetDefaultColors(bool reset);
  int HoverColorLocks() const { return hoverColorLocks_; }  // 0 to 3: bit 1 the back, bit 2 the fore colour is its own
  void setHoverColorLocks(int locks);
  Color HoverForeColor() const { return hoverForeColor_; }
  void setHoverForeColor(Color color);
  Color HoverBackColor() const { return hoverBackColor_; }
  void setHoverBackColor(Color color);

  void Refresh();
  void DelayDrawing(bool bDelay);

  Signal<const ButtonMouse&> MouseDown;
  Signal<const ButtonMouse&> MouseUp;
  Signal<const ButtonMouse&> MouseMove;
  Signal<int, int> KeyDown;  // key code, shift
  Signal<int> KeyPress;
  Signal<int, int> KeyUp;
  Signal<bool> MouseOnButton;
  Signal<> Click;
  Signal<int> DblClick;

  // What the platform tells. `keyDown` and `keyUp` are true when the key was taken.
  void mouseDown(const ButtonMouse& mouse);
  void mouseUp(const ButtonMouse& mouse);
  void mouseMove(const ButtonMouse& mouse);
  void click();
  void dblClick(const ButtonMouse& mouse);
  bool keyDown(int keyCode, int shift);
  void keyPress(int ascii) { KeyPress.fire(ascii); }
  bool keyUp(int keyCode, int shift);
  void accessKeyPress(int ascii);
  void gotFocus();
  void hoverTick();

  // Draws it as it was at its last redraw. `screenWidth`, `screenHeight`: of the screen, in pixels.
  void draw(ButtonCanvas& canvas, const ButtonMeasure& measure, int screenWidth, int screenHeight) const;
  ButtonLook look() const;
  const ButtonOutline& outline() const { return outline_; }
  const ButtonCaption& shownCaption() const { return shown_; }
  ButtonParts parts() const;

  unsigned status() const { return status_; }
  bool inControl() const { return inControl_; }
  bool heldDown() const { return heldDown_; }
  int lastButton() const { return lastButton_; }
  ButtonContainer& container() const { return site_.container; }

 private:
  bool isCustomShape() const { return buttonShape_ >= 7; }
  std::string refusal(const char* message) const;
  void readColors(const PropertyBag& bag);
  void followColors();
  void redraw();
  void layOutline();
  void moveWithPress();
  void leave();
  Color captionColor() const;
  void drawFace(ButtonCanvas& canvas, int screenWidth, int screenHeight) const;
  void drawEdges(ButtonCanvas& canvas, Color fill) const;
  void drawCaption(ButtonCanvas& canvas, const ButtonBox& box, Color fill) const;

  Site site_;
  int buttonStyle_ = 0;
  int mode_ = 0;
  std::string caption_;
  int captionAlign_ = 2;
  int captionStyle_ = 0;
  int customClick_ = 0;
  int buttonShape_ = 0;
  ButtonPicture picture_;
  int pictureAlign_ = 0;
  int pictureSize_ = 0;
  bool enabled_ = true;
  bool showFocusRect_ = true;
  bool value_ = false;
  int mousePointer_ = 0;
  std::string mouseIcon_;
  std::string font_;
  int fontStyle_ = 0;
  Color foreColor_ = 0x80000012;
  Color backColor_ = 0x8000000F;
  Color gradientColor_ = 0x8000000F;
  int gradientMode_ = 0;
  int hoverColorLocks_ = 0;
  Color hoverForeColor_ = 0x80000012;
  Color hoverBackColor_ = 0x8000000F;

  unsigned status_ = 0;
  bool inControl_ = false;
  bool heldDown_ = false;
  bool delayDraw_ = false;
  std::int16_t lastButton_ = 0;
  ButtonCaption shown_;
  ButtonOutline outline_;
  ButtonColors colors_;
  ButtonLook drawn_;  // as it was at the last redraw: what the platform paints later is that
};

}  // namespace vantrel
