// A ListView on the screen: its headers and rows, to be read, selected and copied. When it is there is up to its owner.
#pragma once

#include <QTableView>

#include "desktop/controls/Bindings.h"
#include "desktop/controls/ListTableModel.h"

namespace vantrel {

class ListTable : public QTableView {
  Q_OBJECT

 public:
  // `list` must outlive the table. `name`: the object name.
  ListTable(ListView& list, const char* name, const QString& accessibleName, QWidget* parent);

  ListTableModel& shownRows() { return *model_; }

  // Tells the list of clicks on its headers, and shows by which of them it is sorted.
  void offerSorting();

  // The selected rows from top to bottom, a tab between the cells.
  QString selectedText() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void applyColors();
  void applyColumns(const ListView& list);
  void tellSelection();
  void showSorting();

  ListView& list_;
  ListTableModel* model_;
  Bindings bindings_;
};

}  // namespace vantrel
