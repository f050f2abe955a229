// The line under the server list: on its left how many addresses were asked and how many have answered, along its upper
// edge a thin bar while the list is being walked. Its right side is free for others.
#pragma once

#include <QTimer>
#include <QWidget>
#include <vector>

#include "query/SweepProgress.h"

namespace vantrel {

class ProgressLine : public QWidget {
 public:
  static constexpr int barHeight = 2;  // pixels at 100 %, at the upper edge

  // `progress` must outlive the widget.
  explicit ProgressLine(SweepProgress& progress, QWidget* parent = nullptr);

  // What the line says; empty before the first sweep.
  QString text() const;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void refreshSoon();

  SweepProgress& progress_;
  QTimer refresh_;  // numbers that change a hundred times a second are shown a few times a second
  std::vector<Connection> connections_;
};

}  // namespace vantrel
