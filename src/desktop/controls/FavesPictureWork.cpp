#include "desktop/controls/FavesPictureWork.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <algorithm>

namespace vantrel {
namespace {

constexpr qint64 largestFile = 256 << 20;  // bytes
constexpr qint64 mostPixels = 64'000'000;  // before it is made smaller
constexpr int longestSide = 32'767;        // pixels
constexpr int longestReading = 10'000;     // milliseconds
constexpr int noDescriptor = -1;

// A file that ends early when it is told to: whoever decodes it comes to an end soon after.
class StoppableFile : public QFile {
 public:
  explicit StoppableFile(std::function<bool()> isStopped) : isStopped_(std::move(isStopped)) {}

  bool isStopped() const { return isStopped_() || deadline_.hasExpired(); }

 protected:
  qint64 readData(char* data, qint64 most) override { return isStopped() ? -1 : QFile::readData(data, most); }

 private:
  std::function<bool()> isStopped_;
  QDeadlineTimer deadline_{longestReading};
};

// What is no plain file may keep its readers waiting for ever.
bool openPlainFile(QFile& file, const std::string& path) {
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (descriptor == noDescriptor) {
    return false;
  }
  struct stat about {};
  const bool isFit =
      ::fstat(descriptor, &about) == 0 && S_ISREG(about.st_mode) && about.st_size > 0 && about.st_size <= largestFile;
  if (isFit && file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
    return true;
  }
  ::close(descriptor);
  return false;
}

bool isWanted(const QImageReader& reader) {
  const QByteArray format = reader.format();
  const QSize size = reader.size();
  return (format == "bmp" || format == "jpeg" || format == "jpg" || format == "gif") && !size.isEmpty() &&
         std::max(size.width(), size.height()) <= longestSide && qint64{size.width()} * size.height() <= mostPixels;
}

// The least size of that shape which covers `most`, or its own size when it is smaller.
QSize covering(const QSize& own, const QSize& most) {
  const QSize cover = own.scaled(most, Qt::KeepAspectRatioByExpanding);
  return cover.width() < own.width() ? cover.expandedTo({1, 1}) : own;
}

QRect middle(const QSize& whole, const QSize& part) {
  const QSize size = part.boundedTo(whole);
  return {QPoint((whole.width() - size.width()) / 2, (whole.height() - size.height()) / 2), size};
}

// A photograph may lie on its side in its file.
QSize asItLies(const QSize& size, const QImageReader& reader) {
  return (reader.transformation() & QImageIOHandler::TransformationRotate90) != 0 ? size.transposed() : size;
}

}  // namespace

QImage readPicture(const std::string& path, const QSize& most, const std::function<bool()>& isStopped) {
  StoppableFile file(isStopped);
  if (!openPlainFile(file, path)) {
    return {};
  }
  QImageReader reader(&file);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  if (!isWanted(reader)) {
    return {};
  }
  const QSize lying = asItLies(most, reader);
  const QSize scaled = covering(reader.size(), lying);
  reader.setScaledSize(scaled);
  reader.setScaledClipRect(middle(scaled, lying));
  const QImage picture = reader.read();
  if (picture.isNull() || file.isStopped()) {
    return {};
  }
  return picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                           : QImage::Format_RGB32);
}

QImage fitPicture(const QImage& picture, const QSize& size, const FavesInks& inks) {
  const QRect part = middle(picture.size(), size.scaled(picture.size(), Qt::KeepAspectRatio).expandedTo({1, 1}));
  QImage fitted = picture.copy(part).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  if (fitted.hasAlphaChannel()) {
    QImage opaque(size, QImage::Format_RGB32);
    opaque.fill(inks.ground);
    QPainter(&opaque).drawImage(0, 0, fitted);
    fitted = opaque;
  }
  fitted.convertTo(QImage::Format_RGB32);
  if (!fitted.isNull()) {
    layVeil(fitted, inks.ground, veilStrength(fitted, inks));
  }
  return fitted;
}

}  // namespace vantrel
