// The line under the server list: along its upper edge a thin bar while the list is being walked, and a text that says
// how many addresses were asked and how many have answered. What else stands in the line is up to its owner.
#pragma once

#include <QTimer>
#include <QWidget>
#include <vector>

#include "query/SweepProgress.h"

class QLabel;

namespace vantrel {

class ProgressLine : public QWidget {
  Q_OBJECT

 public:
  static constexpr int barHeight = 2;  // pixels at 100 %, at the upper edge

  // `progress` must outlive the widget.
  explicit ProgressLine(SweepProgress& progress, QWidget* parent = nullptr);

  // What the line says; empty before the first sweep.
  QString text() const;
  // Shows the text; to be put into the line's layout.
  QLabel& message() { return *message_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void refreshSoon();

  SweepProgress& progress_;
  QLabel* message_;
  QTimer refresh_;  // numbers that change a hundred times a second are shown a few times a second
  std::vector<Connection> connections_;
};

}  // namespace vantrel
