#include "desktop/controls/MirrorListView.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include "desktop/controls/PlainText.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int rowMargins = 10;  // pixels at 100 %, above and below a text

}  // namespace

MirrorListView::MirrorListView(ListBox& list, QWidget* parent) : QListWidget(parent), list_(list) {
  setObjectName("lstMirrors");
  setAccessibleName(tr("Download mirrors"));
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  showList();
  changed_ = list.changed.connect([this] { showList(); });
}

// A list box tells that it has changed, not how.
void MirrorListView::showList() {
  const QSignalBlocker quiet(this);
  while (count() > list_.count()) {
    delete takeItem(count() - 1);
  }
  for (int row = 0; row < list_.count(); ++row) {
    if (row == count()) {
      addItem(QString());
    }
    const QString text = fromCp1252(list_.line(row));
    item(row)->setText(oneLine(text));
    item(row)->setSizeHint({0, fontMetrics().height() + rowMargins});
    item(row)->setToolTip(plainToolTip(text));
  }
  if (list_.selected() < 0) {
    clearSelection();
    setCurrentRow(-1);
  } else {
    setCurrentRow(list_.selected());
  }
}

void MirrorListView::pick() {
  list_.select(currentRow());
  Q_EMIT picked();
}

// The toolkit makes the first row the current one then, which nobody has asked for.
void MirrorListView::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  showList();
}

void MirrorListView::mousePressEvent(QMouseEvent* event) {
  QListWidget::mousePressEvent(event);
  if (event->button() == Qt::LeftButton && itemAt(event->pos()) != nullptr) {
    pick();
  }
}

void MirrorListView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete) {
    Q_EMIT removeAsked();
    return;
  }
  const bool isPress = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
  if (!isPress) {
    QListWidget::keyPressEvent(event);
  }
  if (currentRow() >= 0 && (isPress || currentRow() != list_.selected())) {
    pick();
  }
}

}  // namespace vantrel
