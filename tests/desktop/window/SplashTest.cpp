#include "desktop/window/SplashWindow.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QScreen>
#include <QTest>

#include "desktop/adapters/QtLoop.h"
#include "desktop/controls/ProgramIcon.h"

namespace vantrel {
namespace {

struct Splash : ::testing::Test {
  Splash() {
    model.title.set("The title \xA9");
    model.picNewSplash.set(true);
    model.lblVer.caption.set("Vantrel CE 1.0");
    model.lblVersion.caption.set("Version 1.0.0");
    model.Label1.caption.set("Loading ...");
  }

  QString shown(const char* name) const { return window.findChild<QLabel*>(name)->text(); }

  QtLoop loop;
  frmSplash model{loop};
  SplashWindow window{model};
};

TEST_F(Splash, is_seen_in_the_middle_of_the_screen_with_all_that_it_says_as_long_as_the_model_wants) {
  EXPECT_FALSE(window.isVisible());
  model.visible.set(true);
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(window.windowTitle(), QString::fromUtf8("The title ©"));
  const QPoint away = window.geometry().center() - window.screen()->availableGeometry().center();
  EXPECT_LE(away.manhattanLength(), 2);
  EXPECT_EQ(shown("lblVer"), "Vantrel CE 1.0");
  EXPECT_EQ(shown("lblVersion"), "Version 1.0.0");
  model.Label1.caption.set("Nearly there ...");
  EXPECT_EQ(shown("Label1"), "Nearly there ...");
  for (const QLabel* const label : window.findChildren<QLabel*>()) {
    EXPECT_GE(label->width(), label->sizeHint().width()) << label->objectName().toStdString() << " is cut";
  }
  model.visible.set(false);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(Splash, neither_a_click_nor_the_window_manager_closes_it_and_it_takes_no_focus) {
  model.visible.set(true);
  QTest::mouseClick(&window, Qt::LeftButton);
  QTest::mouseClick(window.childAt(window.rect().center()), Qt::LeftButton);
  window.close();
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(window.windowFlags() & Qt::WindowDoesNotAcceptFocus);
  EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST(ProgramIcon, shows_its_lit_row_in_every_size_on_a_disc_with_free_corners) {
  const QIcon icon = programIcon();
  for (const int side : {16, 20, 22, 24, 32, 40, 48, 64, 96, 128, 256}) {
    const QImage image = icon.pixmap(side).toImage();
    ASSERT_EQ(image.width(), side);
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << side;
    EXPECT_EQ(image.pixelColor(side - 1, side - 1).alpha(), 0) << side;
    const QColor lamp = image.pixelColor(side * 18 / 64, side / 2 - (side % 2 == 0 ? 1 : 0));
    EXPECT_GT(lamp.green(), lamp.red() + 40) << side;
    EXPECT_GT(image.pixelColor(side * 40 / 64, side / 2 - 1).lightness(), 200) << side;
  }
}

}  // namespace
}  // namespace vantrel
