#include "desktop/window/SplashWindow.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QScreen>
#include <QTest>

#include "desktop/adapters/QtLoop.h"

namespace vantrel {
namespace {

TEST(Splash, is_whole_in_the_middle_of_the_screen_as_long_as_the_model_wants_whatever_the_user_does) {
  QtLoop loop;
  frmSplash model(loop);
  model.picNewSplash.set(true);
  model.lblVer.caption.set("Vantrel CE 1.0");
  model.lblVersion.caption.set("Version 1.0.0");
  SplashWindow window(model);
  EXPECT_FALSE(window.isVisible());
  model.title.set("The title \xA9");
  model.visible.set(true);
  model.Label1.caption.set("Nearly there ...");
  EXPECT_EQ(window.windowTitle(), QString::fromUtf8("The title ©"));
  const QPoint away = window.geometry().center() - window.screen()->availableGeometry().center();
  EXPECT_LE(away.manhattanLength(), 2);
  const std::pair<const char*, const char*> texts[] = {
      {"lblVer", "Vantrel CE 1.0"}, {"lblVersion", "Version 1.0.0"}, {"Label1", "Nearly there ..."}};
  for (const auto& [name, text] : texts) {
    const QLabel& label = *window.findChild<QLabel*>(name);
    EXPECT_EQ(label.text(), text);
    EXPECT_GE(label.width(), label.sizeHint().width()) << name << " is cut";
  }
  QTest::mouseClick(&window, Qt::LeftButton);
  QTest::mouseClick(window.childAt(window.rect().center()), Qt::LeftButton);
  window.close();
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(window.windowFlags() & Qt::WindowDoesNotAcceptFocus);
  EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
  model.visible.set(false);
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace vantrel
