#include "appearance/WindowLayout.h"

namespace vantrel {
namespace {

constexpr float besideBackground = 3900;   // twips that PicBG leaves of the window's width
constexpr float outsideBackground = 1410;  // and of its height

}  // namespace

WindowLayout::WindowLayout(frmMain& window)
    : window_(window), resized_(window.resized.connect([this] { followSize(); })) {}

void WindowLayout::layoutPanels() {
  frmMain& w = window_;
  const Placement lists = w.ListView5.place.get();
  Placement detail = w.ListView1.place.get();
  detail.Left = lists.Left;
  detail.Top = lists.Top;
  w.ListView1.place.set(detail);
  w.ListView2.place.set(detail);
  w.ListView4.place.set(detail);

  Placement background = w.PicBG.place.get();
  background.Width = w.Width - besideBackground;
  background.Height = w.Height - outsideBackground;
  const auto& [left, top, width, height] = background;
  const Placement score = w.picScore.place.get();
  w.PicBG.place.set(background);
  w.picSettings.place.set(background);
  w.PicAbout.place.set({left, top, w.Width, height});
  w.PicChat.place.set(background);
  w.picRef.place.set({score.Left, score.Top, width, height});
  w.picTools.place.set({0, top, w.Width, height});
  w.PicServers.place.set({left, top, w.PicServers.place.get().Width, height});
  w.picFaves.place.set(background);
  const Placement editor = w.picFaves2.place.get();
  w.picFaves2.place.set({score.Left, score.Top, editor.Width, editor.Height});
}

void WindowLayout::followSize() {
  if (window_.backColor.get() != colors::black && window_.windowState.get() == WindowState::normal) {
    layoutPanels();
  }
}

}  // namespace vantrel
