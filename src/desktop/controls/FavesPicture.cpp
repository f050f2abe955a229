#include "desktop/controls/FavesPicture.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPromise>
#include <QScreen>
#include <QThreadPool>
#include <memory>

#include "desktop/controls/FavesPictureWork.h"

namespace vantrel {
namespace {

// The largest screen in its own pixels: no list is larger.
QSize largestScreen() {
  QSize largest(1, 1);
  for (const QScreen* const screen : QGuiApplication::screens()) {
    largest = largest.expandedTo((QSizeF(screen->size()) * screen->devicePixelRatio()).toSize());
  }
  return largest;
}

// Does the work on a thread of the application's pool, which the application waits for at its end; so `work` is told
// when its result is not wanted any more. A null image is no result.
template <class Work>
QFuture<QImage> inBackground(Work work) {
  const auto promise = std::make_shared<QPromise<QImage>>();
  promise->start();
  QThreadPool::globalInstance()->start([promise, work] {
    const auto isStopped = [&promise] { return promise->isCanceled(); };
    const QImage image = isStopped() ? QImage() : work(isStopped);
    if (!image.isNull()) {
      promise->addResult(image);
    }
    promise->finish();
  });
  return promise->future();
}

QImage resultOf(const QFutureWatcher<QImage>& watcher) {
  const QFuture<QImage> future = watcher.future();
  return future.isCanceled() || future.resultCount() == 0 ? QImage() : future.result();
}

}  // namespace

FavesPicture::FavesPicture(Field<std::string>& path, QObject* parent)
    : QObject(parent), path_(path), pathChanged_(path.changed.connect([this] { load(); })) {
  connect(&loading_, &QFutureWatcher<QImage>::finished, this, &FavesPicture::takeLoaded);
  connect(&fitting_, &QFutureWatcher<QImage>::finished, this, &FavesPicture::takeFitted);
  load();
}

FavesPicture::~FavesPicture() {
  loading_.cancel();
  fitting_.cancel();
}

void FavesPicture::load() {
  loading_.cancel();
  if (path_.get().empty()) {
    loading_.setFuture({});
    dropFitting();
    source_ = {};
    shown_ = {};
    Q_EMIT changed();
    return;
  }
  loading_.setFuture(inBackground([path = path_.get(), most = largestScreen()](const auto& isStopped) {
    return readPicture(path, most, isStopped);
  }));
}

void FavesPicture::takeLoaded() {
  const QImage loaded = resultOf(loading_);
  if (!loaded.isNull()) {
    dropFitting();
    source_ = loaded;
    Q_EMIT changed();
  }
}

void FavesPicture::fit(const Place& place) {
  underWay_ = place;
  fitting_.setFuture(
      inBackground([source = source_, place](const auto&) { return fitPicture(source, place.pixels, place.inks); }));
}

void FavesPicture::takeFitted() {
  if (!underWay_) {
    return;
  }
  shown_ = resultOf(fitting_);
  shownFor_ = underWay_;
  shownInks_ = underWay_->inks;
  underWay_.reset();
  Q_EMIT changed();
}

// What was made of another source is of no use.
void FavesPicture::dropFitting() {
  fitting_.cancel();
  fitting_.setFuture({});
  underWay_.reset();
  shownFor_.reset();
}

void FavesPicture::paint(QPainter& painter, const QSize& size, const FavesInks& inks) {
  const qreal ratio = painter.device()->devicePixelRatioF();
  const Place place{(QSizeF(size) * ratio).toSize(), inks};
  if (!source_.isNull() && !place.pixels.isEmpty() && !underWay_ && shownFor_ != place) {
    fit(place);
  }
  if (!shown_.isNull() && shownInks_ == inks) {
    painter.drawImage(QRectF(QPointF(), QSizeF(place.pixels) / ratio), shown_);
  }
}

}  // namespace vantrel
