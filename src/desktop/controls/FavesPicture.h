// The picture behind the items of a list. It is read and made to fit while the program goes on; until then, and when a
// file turns out to hold no picture, what was shown before stays.
#pragma once

#include <QFutureWatcher>
#include <QImage>
#include <QObject>
#include <optional>
#include <string>

#include "desktop/controls/FavesInks.h"
#include "platform/Field.h"

class QPainter;

namespace vantrel {

class FavesPicture : public QObject {
  Q_OBJECT

 public:
  // Shows the file of that path, the system's own bytes; none when it is empty. `path` must outlive this.
  explicit FavesPicture(Field<std::string>& path, QObject* parent = nullptr);
  ~FavesPicture() override;

  // Paints the picture over `size`, from the painter's origin on, so that the inks can be read on it. Until there is a
  // picture for these inks it paints nothing.
  void paint(QPainter& painter, const QSize& size, const FavesInks& inks);

 Q_SIGNALS:
  // It is to be painted anew.
  void changed();

 private:
  // What a picture was made to fit.
  struct Place {
    QSize pixels;
    FavesInks inks;

    bool operator==(const Place& other) const = default;
  };

  void load();
  void takeLoaded();
  void fit(const Place& place);
  void takeFitted();
  void dropFitting();

  Field<std::string>& path_;
  QImage source_;  // of about the screen's size
  QImage shown_;
  std::optional<Place> shownFor_;  // what `source_` was last made to fit
  std::optional<Place> underWay_;
  FavesInks shownInks_;
  QFutureWatcher<QImage> loading_;
  QFutureWatcher<QImage> fitting_;
  Connection pathChanged_;
};

}  // namespace vantrel
