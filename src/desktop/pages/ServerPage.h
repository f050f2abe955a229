// The page of the server list: a toolbar that fills the list and searches it, the list, and a line of what became of
// it.
#pragma once

#include <QWidget>

#include "core/Commands.h"
#include "core/frmMain.h"
#include "desktop/controls/Bindings.h"
#include "query/SweepProgress.h"

class QBoxLayout;
class QLabel;

namespace vantrel {

class ServerGridView;

class ServerPage : public QWidget {
  Q_OBJECT

 public:
  // All three must outlive the page.
  ServerPage(frmMain& window, Commands& commands, SweepProgress& progress, QWidget* parent);

  ServerGridView& grid() { return *grid_; }

 private:
  QWidget* makeToolbar();
  void addSearch(QBoxLayout& row);
  QBoxLayout* addBox(QBoxLayout& row, infoBox::Number number);
  // The label beneath the number.
  QLabel* addTotal(QBoxLayout& row, const char* name, const QString& caption, TextBox& model);
  QWidget* makeFooter(SweepProgress& progress);
  void querySelected();

  frmMain& window_;
  Commands& commands_;
  ServerGridView* grid_;
  Bindings bindings_;
};

}  // namespace vantrel
