#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QPalette>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "desktop/controls/FavesListView.h"
#include "desktop/controls/FavesPicture.h"
#include "desktop/controls/FavesPictureWork.h"
#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

constexpr QSize screen(400, 300);

// One white pixel.
const QByteArray gif = QByteArray::fromHex("47494638396101000100800000ffffff0000002c00000000010001000002024401003b");

QPalette paletteOf(const QColor& text, const QColor& ground) {
  QPalette palette;
  palette.setColor(QPalette::Text, text);
  palette.setColor(QPalette::Base, ground);
  return palette;
}

QImage checkerboard(const QColor& one, const QColor& other, const QSize& size = {16, 16}) {
  QImage image(size, QImage::Format_RGB32);
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width(); ++x) {
      image.setPixelColor(x, y, (x + y) % 2 == 0 ? one : other);
    }
  }
  return image;
}

struct FavesPictureTest : ::testing::Test {
  // The path of a picture in one colour.
  std::string saved(const QColor& color, const char* name, const char* format = "bmp", QSize size = {8, 8}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    EXPECT_TRUE(image.save(folder.filePath(name), format));
    return path(name);
  }
  std::string written(const QByteArray& bytes, const char* name) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return path(name);
  }
  std::string path(const char* name) const { return QFile::encodeName(folder.filePath(name)).toStdString(); }
  static QImage read(const std::string& path) {
    return readPicture(path, screen, [] { return false; });
  }

  QTemporaryDir folder;
};

TEST_F(FavesPictureTest, texts_keep_their_contrast_on_any_picture_in_any_colours_and_no_more_of_it_is_hidden_for_that) {
  const QPalette palettes[] = {paletteOf(theme::text, theme::field), paletteOf(Qt::black, Qt::white),
                               paletteOf(Qt::yellow, Qt::blue), paletteOf(QColor(60, 0, 0), QColor(200, 180, 150)),
                               paletteOf(Qt::white, QColor(110, 110, 110))};
  const QImage pictures[] = {checkerboard(Qt::white, Qt::white), checkerboard(Qt::black, Qt::black),
                             checkerboard(Qt::black, Qt::white), checkerboard(Qt::red, Qt::cyan),
                             checkerboard(Qt::blue, Qt::yellow), checkerboard(Qt::gray, Qt::green)};
  for (const QPalette& palette : palettes) {
    const FavesInks inks = inksOf(palette);
    for (const QImage& picture : pictures) {
      const LuminanceRange seen = luminancesUnder(fitPicture(picture, {16, 16}, inks), inks.ground, 0);
      double least = 21;
      for (const QColor& ink : {inks.text, inks.dim}) {
        for (const double behind : {seen.darkest, seen.lightest}) {
          least = std::min(least, contrast(luminance(ink), behind));
        }
      }
      EXPECT_GE(least, 4.5);
      EXPECT_TRUE(least < 4.8 || veilStrength(picture, inks) == 0) << least;
    }
  }
  const QPalette unreadable = paletteOf(Qt::gray, Qt::gray);
  EXPECT_EQ(fitPicture(pictures[2], {1, 1}, inksOf(unreadable)).pixelColor(0, 0), QColor(Qt::gray));
}

TEST_F(FavesPictureTest, three_kinds_of_file_are_pictures_whatever_their_names_and_are_kept_no_larger_than_the_screen) {
  EXPECT_EQ(read(saved(Qt::red, "a.txt")).pixelColor(0, 0), QColor(Qt::red));
  EXPECT_EQ(read(written(gif, "b.jpg")).size(), QSize(1, 1));
  for (const QSize size : {QSize(4000, 10), QSize(10, 4000), QSize(1600, 900), QSize(900, 1600)}) {
    const QSize kept = read(saved(Qt::red, "c.gif", "jpeg", size)).size();
    EXPECT_FALSE(kept.isEmpty());
    EXPECT_EQ(kept.boundedTo(screen), kept);
    EXPECT_EQ(kept.expandedTo(screen.boundedTo(size)), kept);
  }
}

TEST_F(FavesPictureTest, no_other_file_is_one_and_none_holds_its_reader_up) {
  QByteArray huge = QByteArray::fromHex("424d000000000000000036000000280000000000010000000100010018000000");
  huge.resize(64);
  QFile whole(QString::fromStdString(saved(Qt::red, "whole.bmp")));
  ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
  const QByteArray cut = whole.read(whole.size() - 1);
  ASSERT_EQ(::mkfifo(path("pipe.jpg").c_str(), 0600), 0);
  const std::string refused[] = {saved(Qt::red, "p.jpg", "png"),
                                 written("no picture", "text.bmp"),
                                 written(gif.left(15), "half.gif"),
                                 written(huge, "huge.bmp"),
                                 written("", "empty.gif"),
                                 written(cut, "cut.bmp"),
                                 path("pipe.jpg"),
                                 path("."),
                                 path("gone.jpg"),
                                 "/dev/zero"};
  for (const std::string& path : refused) {
    EXPECT_TRUE(read(path).isNull()) << path;
  }
  EXPECT_TRUE(readPicture(saved(Qt::red, "a.bmp"), screen, [] { return true; }).isNull());
}

// A list on the screen; dark colours, so that a dark picture is seen as it is.
struct FavesListPictureTest : FavesPictureTest {
  FavesListPictureTest() {
    view->setPalette(paletteOf(Qt::white, Qt::black));
    view->resize(200, 200);
    view->show();
  }

  bool comesToShow(const QColor& color) {
    return QTest::qWaitFor([&] { return view->grab().toImage().pixelColor(190, 190) == color; });
  }

  const QColor red{90, 0, 0};
  const QColor green{0, 60, 0};
  FavoritesList list;
  std::unique_ptr<FavesListView> view = std::make_unique<FavesListView>(list, "faves", "Nothing yet.", nullptr);
};

TEST_F(FavesListPictureTest, a_file_that_is_no_picture_leaves_the_one_on_show_and_no_path_takes_it_away_at_once) {
  list.picture.set(written("no picture", "none.jpg"));
  list.picture.set(saved(red, "red"));
  EXPECT_TRUE(comesToShow(red));
  list.picture.set(path("none.jpg"));
  list.picture.set(path("gone.jpg"));
  EXPECT_FALSE(QTest::qWaitFor([this] { return view->grab().toImage().pixelColor(190, 190) != red; }, 100));
  list.picture.set(saved(green, "green"));
  list.picture.set(path("red"));
  list.picture.set(path("green"));
  EXPECT_TRUE(comesToShow(green));
  list.picture.set(path("red"));
  list.picture.set("");
  EXPECT_EQ(view->grab().toImage().pixelColor(190, 190), QColor(Qt::black));
  EXPECT_FALSE(QTest::qWaitFor([this] { return view->grab().toImage().pixelColor(190, 190) != Qt::black; }, 100));
  list.picture.set(saved(red, "large", "jpeg", {3000, 3000}));
  view.reset();
}

}  // namespace
}  // namespace vantrel
