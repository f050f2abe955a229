// The windows in which a map is installed: what the user does goes to the model, and what the model holds is seen.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <string>

#include "desktop/controls/MirrorListView.h"
#include "desktop/window/MapsWindow.h"
#include "desktop/window/MirrorWindow.h"

namespace vantrel {
namespace {

TEST(MirrorWindowTest, a_mirror_is_chosen_by_mouse_and_keys_and_only_then) {
  frmMirror model;
  MirrorWindow window(model, nullptr);
  std::string told;
  const Connection clicks =
      model.mirrorClicked.connect([&] { told += std::to_string(model.lstMirrors.selected()) + " "; });
  const Connection presses = model.pressed.connect(
      [&](MirrorCommand command) { told += "c" + std::to_string(static_cast<int>(command)) + " "; });
  for (const char* address : {"http://a/", "http://b/", "http://c/"}) {
    model.lstMirrors.add(address);
  }
  model.visible.set(true);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto& list = *window.findChild<MirrorListView*>();
  list.setFocus();
  EXPECT_EQ(model.lstMirrors.selected(), -1);
  model.lstMirrors.select(0);
  EXPECT_EQ(list.currentRow(), 0);
  EXPECT_EQ(told, "");
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(2)).center());
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(2)).center());
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(told, "1 2 2 ");
  model.lstMirrors.swap(2, 1);
  EXPECT_EQ(list.currentItem()->text(), "http://c/");
  QTest::keyClick(&list, Qt::Key_Delete);
  model.cmdRemove.enabled.set(false);
  QTest::keyClick(&list, Qt::Key_Delete);
  window.findChild<QPushButton*>("cmdDL")->click();
  window.findChild<QPushButton*>("cmdPause")->click();
  EXPECT_EQ(told, "1 2 2 c5 c0 c1 ");
  model.lstMirrors.clear();
  EXPECT_EQ(list.count(), 0);
}

TEST(MirrorWindowTest, the_progress_and_the_site_are_seen_where_there_are_any) {
  frmMirror model;
  MirrorWindow window(model, nullptr);
  model.pb1.set(40);
  model.lblURL.visible.set(false);
  model.lblInfo.caption.set("<b>x</b>");
  model.visible.set(true);
  EXPECT_EQ(window.findChild<QProgressBar*>()->value(), 40);
  EXPECT_FALSE(window.findChild<QPushButton*>("lblURL")->isVisible());
  model.lblURL.visible.set(true);
  EXPECT_TRUE(window.findChild<QPushButton*>("lblURL")->isVisible());
  EXPECT_FALSE(window.findChild<QWidget*>("chkCache")->isVisible());
  EXPECT_EQ(window.findChild<QLabel*>("lblInfo")->textFormat(), Qt::PlainText);
}

TEST(MapsWindowTest, a_map_is_picked_and_the_window_closed) {
  frmMaps model;
  MapsWindow window(model, nullptr);
  std::string told;
  const Connection downloads = model.downloadPressed.connect([&] { told += model.cmbMaps.text.get() + " "; });
  const Connection closing = model.closed.connect([&] { told += "closed"; });
  model.cmbMaps.items.set({"a", "b"});
  model.cmbMaps.text.set("a");
  model.visible.set(true);
  EXPECT_TRUE(window.isModal());
  auto& maps = *window.findChild<QComboBox*>();
  maps.setFocus();
  QTest::keyClick(&maps, Qt::Key_Down);
  window.findChild<QPushButton*>("cmdDL")->click();
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(told, "b closed");
}

}  // namespace
}  // namespace vantrel
