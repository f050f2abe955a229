// The small window of the short messages: it fades in, stays for three seconds and fades out. A message comes up where
// the user has dragged the last one.
#pragma once

#include <optional>
#include <string>

#include "appearance/Office2003_Button.h"
#include "appearance/Office2003_PopupMessage.h"
#include "platform/Registry.h"

namespace vantrel {

class frmPopMsg : private LayeredWindow {
 public:
  static constexpr int timeOnShow = 3000;     // milliseconds from the loading, with the coming up
  static constexpr float firstCorner = 1000;  // twips from the screen's left and upper edge

  // Both must outlive the window.
  frmPopMsg(Loop& loop, Registry& registry);

  // Shows the text, in place of the one that is on show. A window that is fading out comes up again, and stays then
  // until the user closes it when its three seconds are over.
  void ShowPopMsg(const std::string& text);

  // The owner of the window wants it gone. One that can be seen refuses, and goes when it has faded, slowly.
  void requestUnload();

  bool isLoaded() const { return loaded_; }

  // Whose opacity fades; null while there is no such window. It must stay until another one, or null, is set.
  void setLayer(LayeredWindow* layer) { layer_ = layer; }

  Field<bool> visible{false};
  Field<Placement> place;  // Width and Height are the control's and follow it
  Office2003_PopupMessage Office2003_PopupMessage1;
  Office2003_Button Office2003_Button1;  // closes it
  Timer tmrHide;

  Signal<> focusWanted;  // the window comes to the front

 private:
  struct Grip {
    int x;
    int y;
  };

  bool setConstantAlpha(int level) override;
  void load();
  void unload();
  void close();
  void beginDrag(const PopupMouse& mouse);
  void drag(const PopupMouse& mouse);
  void endDrag();
  float stored(const char* key) const;
  void store(const char* key, float twips);

  Registry& registry_;
  LayeredWindow* layer_ = nullptr;
  bool loaded_ = false;
  std::optional<Grip> grip_;       // where the user holds the window while he drags it
  std::optional<Placement> kept_;  // the place to be stored when the drag is over
  std::vector<Connection> connections_;
};

}  // namespace vantrel
