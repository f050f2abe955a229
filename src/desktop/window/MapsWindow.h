// The view of frmMaps: the maps that a mirror has, and its index as it came.
#pragma once

#include "core/MirrorWindows.h"
#include "desktop/window/SideWindow.h"

namespace vantrel {

class MapsWindow : public SideWindow {
  Q_OBJECT

 public:
  // `model` must outlive the window, which holds up all others. It comes up beside `owner`.
  MapsWindow(frmMaps& model, QWidget* owner);

 private:
  QWidget* makeMirror();
  QWidget* makeChoice();
  QWidget* makeIndex();

  frmMaps& model_;
};

}  // namespace vantrel
