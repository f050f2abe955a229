#include "desktop/controls/FavesPictureWork.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QtEndian>
#include <algorithm>

namespace vantrel {
namespace {

constexpr qint64 largestFile = 256 << 20;  // bytes
constexpr qint64 mostPixels = 64'000'000;  // before it is made smaller
constexpr int longestSide = 32'767;        // pixels
constexpr int longestReading = 10'000;     // milliseconds

// Of a bitmap's head: its length in bytes, where some of its numbers stand, and two kinds of compression.
constexpr int bitmapHead = 34;
constexpr int pixelsAt = 10;
constexpr int bitsPerPixelAt = 28;
constexpr int compressionAt = 30;
constexpr qint64 unpacked = 0;
constexpr qint64 unpackedWithMasks = 3;

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
  file.setFileName(QFile::decodeName(QByteArray::fromStdString(path)));
  const QFileInfo about(file.fileName());
  return about.isFile() && about.size() > 0 && about.size() <= largestFile && file.open(QIODevice::ReadOnly);
}

bool isWanted(const QImageReader& reader) {
  const QByteArray format = reader.format();
  const QSize size = reader.size();
  return (format == "bmp" || format == "jpeg" || format == "jpg" || format == "gif") && !size.isEmpty() &&
         std::max(size.width(), size.height()) <= longestSide && qint64{size.width()} * size.height() <= mostPixels;
}

// The decoder shows whatever stood in the memory of the rows that a bitmap lacks. One that is packed is taken as it is.
bool lacksRows(const QByteArray& head, qint64 fileSize, const QSize& size) {
  const auto number = [&head](int at) { return qint64{qFromLittleEndian<quint32>(head.constData() + at)}; };
  if (head.size() < bitmapHead || (number(compressionAt) != unpacked && number(compressionAt) != unpackedWithMasks)) {
    return false;
  }
  const qint64 bitsPerPixel = number(bitsPerPixelAt) & 0xFFFF;
  const qint64 bytesPerRow = (size.width() * bitsPerPixel + 31) / 32 * 4;
  return fileSize < number(pixelsAt) + bytesPerRow * size.height();
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
  const QByteArray head = file.peek(bitmapHead);
  QImageReader reader(&file);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  if (!isWanted(reader) || (reader.format() == "bmp" && lacksRows(head, file.size(), reader.size()))) {
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
