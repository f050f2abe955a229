// The line under the server list: how many addresses were asked and how many have answered, with a thin bar above it
// while the list is being walked.
#pragma once

#include <QTimer>
#include <QWidget>
#include <vector>

#include "query/SweepProgress.h"

namespace vantrel {

class ProgressLine : public QWidget {
 public:
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
