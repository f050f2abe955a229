// The bar above the header of the server list: a column dropped here groups the rows, and shows here as a chip until it
// is dragged back, double-clicked or closed.
#pragma once

#include <QIcon>
#include <QWidget>

#include "platform/ServerGrid.h"

namespace vantrel {

class GroupingBar : public QWidget {
  Q_OBJECT

 public:
  // `grid` gives the look and the hint, and must outlive the bar.
  explicit GroupingBar(const ServerGrid& grid, QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  // An empty name shows the hint.
  void showChip(const QString& name, const QIcon& icon);
  // Shows where a column that is being dragged would go; `position` in the bar's coordinates, a null name ends it.
  void showOffer(const QString& name, const QIcon& icon, const QPoint& position);

  // Empty when there is no chip.
  QRect chipRect() const;
  QRect closeRect() const;

 Q_SIGNALS:
  // The chip was double-clicked or closed.
  void closed();
  // The chip was let go outside the bar.
  void chipDropped(const QPoint& globalPosition);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  struct Chip {
    QString name;
    QIcon icon;
  };

  enum class Press { none, chip, close };

  int chipWidth(const Chip& chip) const;
  void paintChip(QPainter& painter, const Chip& chip, const QRect& rect, qreal opacity) const;
  void paintClose(QPainter& painter) const;

  const ServerGrid& grid_;
  Chip chip_;
  Chip offer_;
  QPoint offerPosition_;
  QPoint pressPosition_;
  Press press_ = Press::none;
  bool dragging_ = false;
  bool overClose_ = false;
};

}  // namespace vantrel
