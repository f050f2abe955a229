// The program's button on the screen: what is drawn, and what the mouse and the keys do.

#include <gtest/gtest.h>

#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "desktop/controls/LvButton.h"

namespace vantrel {
namespace {

struct LvButtonTest : testing::Test {
  LvButtonTest() {
    auto* const column = new QVBoxLayout(&window);
    button = new LvButton(&window);
    button->setText("&Go");
    other = new QLineEdit(&window);
    column->addWidget(other);
    column->addWidget(button);
    button->setColors(0x400000, 0xF7F7F7, 0xE0E0E0);
    button->setFixedSize(80, 28);
    window.show();
    other->setFocus();
    QCoreApplication::processEvents();
  }
  QImage drawn(qreal ratio) {
    QImage image((QSizeF(button->size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    button->render(&image, {}, {}, QWidget::RenderFlags());
    return image;
  }
  void hover() { QTest::mouseMove(button, {40, 14}); }

  QWidget window;
  LvButton* button;
  QLineEdit* other;
};

TEST_F(LvButtonTest, its_lines_are_whole_pixels_at_every_ratio) {
  for (const int ratio : {1, 2}) {
    const QImage image = drawn(ratio);
    const auto at = [&](int x, int y) { return image.pixelColor(x * ratio, y * ratio); };
    EXPECT_EQ(at(0, 0), QColor(Qt::magenta)) << "the corner is cut";
    EXPECT_EQ(at(0, 14), QColor(0, 0x3C, 0x73));
    EXPECT_EQ(at(79, 14), QColor(0, 0x3C, 0x73));
    EXPECT_EQ(image.pixelColor(ratio - 1, 14 * ratio), at(0, 14)) << "as thick as a pixel at 100 %";
    EXPECT_NE(image.pixelColor(ratio, 14 * ratio), at(0, 14));
    EXPECT_EQ(at(1, 1), QColor(0, 0x3C, 0x73));
    EXPECT_NE(at(6, 5), at(6, 24)) << "the face grows darker";
  }
}

TEST_F(LvButtonTest, hover_press_focus_and_disabled_look_different) {
  std::vector<QImage> looks{drawn(1)};
  hover();
  looks.push_back(drawn(1));
  QTest::mousePress(button, Qt::LeftButton, {}, {40, 14});
  looks.push_back(drawn(1));
  QTest::mouseRelease(button, Qt::LeftButton, {}, {200, 14});
  other->setFocus();
  button->setFocus();
  QTest::mouseMove(other, {2, 2});
  QTest::qWait(120);
  looks.push_back(drawn(1));
  button->setEnabled(false);
  looks.push_back(drawn(1));
  for (std::size_t one = 0; one < looks.size(); ++one) {
    for (std::size_t two = 0; two < one; ++two) {
      EXPECT_NE(looks[one], looks[two]) << two << " and " << one;
    }
  }
}

TEST_F(LvButtonTest, a_press_a_key_and_an_access_key_click_once_each) {
  const QSignalSpy clicks(button, &QPushButton::clicked);
  QTest::mouseClick(button, Qt::LeftButton, {}, {40, 14});
  EXPECT_EQ(clicks.count(), 1);
  QTest::mouseClick(button, Qt::RightButton, {}, {40, 14});
  QTest::mousePress(button, Qt::LeftButton, {}, {40, 14});
  QTest::mouseRelease(button, Qt::LeftButton, {}, {200, 14});
  EXPECT_EQ(clicks.count(), 1) << "a release elsewhere is none";
  button->setFocus();
  QTest::keyClick(button, Qt::Key_Space);
  EXPECT_EQ(clicks.count(), 2);
  QTest::keyPress(button, Qt::Key_Space);
  other->setFocus();
  button->setFocus();
  QTest::keyRelease(button, Qt::Key_Space);
  EXPECT_EQ(clicks.count(), 2) << "the press ended with the focus";
  window.activateWindow();
  other->setFocus();
  QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(clicks.count(), 3);
  button->setEnabled(false);
  QTest::mouseClick(button, Qt::LeftButton, {}, {40, 14});
  EXPECT_EQ(clicks.count(), 3);
}

}  // namespace
}  // namespace vantrel
