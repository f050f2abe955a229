// What mouse and keys do in the server list. A listener of the grid or of `rowActivated` may run other events, in which
// rows come, the grid is cleared or the program ends: nothing of the table is looked at after one was told.
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <algorithm>

#include "core/modSGrid.h"
#include "desktop/grid/MouseButtons.h"
#include "desktop/grid/ServerGridTable.h"

namespace vantrel {

namespace {

constexpr int arrowWidth = 22;  // of the part of a group row that folds it at one click; texts begin behind it

}  // namespace

void ServerGridTable::mousePressEvent(QMouseEvent* event) {
  press(event);
}

// The second press of a double click is a press like the first, but for a group row, where it folds.
void ServerGridTable::mouseDoubleClickEvent(QMouseEvent* event) {
  const ServerGridOrder::Entry entry = model_.entryAt(indexAt(event->position().toPoint()).row());
  const bool left = event->button() == Qt::LeftButton;
  if (entry < 0 && left) {
    putCursorOn(entry);
    toggle(entry);
    return;
  }
  const QPointer<ServerGridTable> self(this);
  press(event);
  if (left && entry > 0 && self && selected_ == entry) {
    Q_EMIT rowActivated();
  }
}

// Dragging over the rows selects nothing: the row of the press stays the selected one.
void ServerGridTable::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
}

void ServerGridTable::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
}

void ServerGridTable::press(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  const auto button = toMouseButton(event->button());
  const ServerGridOrder::Entry entry = model_.entryAt(index.row());
  event->accept();
  if (!button) {
    return;
  }
  if (entry < 0) {
    putCursorOn(entry);
    if (button == MouseButton::left && event->position().x() < arrowWidth) {
      toggle(entry);
    }
    return;
  }
  ServerGrid& grid = grid_;
  if (entry > 0 && (button == MouseButton::left || entry != grid.currentRow())) {
    column_ = index.column();
    putCursorOn(entry);
    grid.select(entry, index.column() + 1);
  }
  grid.mouseButton.fire(*button);
}

void ServerGridTable::toggle(ServerGridOrder::Entry group) {
  model_.fold(group, model_.order().group(group).folded ? Folding::open : Folding::folded);
}

bool ServerGridTable::foldByKey(int key) {
  const bool fold = key == Qt::Key_Left;
  if (!fold && key != Qt::Key_Right) {
    return false;
  }
  if (cursorGroup_ != 0) {
    model_.fold(cursorGroup_, fold ? Folding::folded : Folding::open);
  } else if (fold && model_.order().groupOf(selected_) != 0) {
    moveTo(model_.positionOf(model_.order().groupOf(selected_)));
  } else {
    QScrollBar* bar = horizontalScrollBar();
    bar->setValue(bar->value() + (fold ? -bar->singleStep() : bar->singleStep()));
  }
  return true;
}

bool ServerGridTable::moveByKey(int key) {
  const int last = model_.rowCount() - 1;
  const int page = std::max(1, viewport()->height() / pitch() - 1);
  // With nothing selected the keys start at the first row in sight.
  const int now =
      cursorPosition() >= 0 || key == Qt::Key_Home || key == Qt::Key_End ? cursorPosition() : firstInSight() - 1;
  int wanted = now;
  switch (key) {
    case Qt::Key_Up:
      wanted = now - 1;
      break;
    case Qt::Key_Down:
      wanted = now + 1;
      break;
    case Qt::Key_PageUp:
      wanted = now - page;
      break;
    case Qt::Key_PageDown:
      wanted = now + page;
      break;
    case Qt::Key_Home:
      wanted = 0;
      break;
    case Qt::Key_End:
      wanted = last;
      break;
    default:
      return false;
  }
  wanted = std::clamp(wanted, 0, std::max(0, last));
  if (wanted != now) {
    moveTo(wanted);
  }
  return true;
}

void ServerGridTable::moveTo(int position) {
  const ServerGridOrder::Entry entry = model_.entryAt(position);
  if (entry == 0) {
    return;
  }
  putCursorOn(entry);
  bringIntoSight(position);
  if (entry > 0) {
    grid_.select(entry, column_ + 1);
  }
}

// The column that the table would scroll to may be hidden, so only the row counts.
void ServerGridTable::bringIntoSight(int position) {
  QScrollBar* const bar = verticalScrollBar();
  const int top = position * pitch();
  const int lowest = std::max(top + pitch() - viewport()->height(), bar->value());
  bar->setValue(std::min(top, lowest));
}

// The base class would do more than this list knows of: copy a cell, or move to another column.
void ServerGridTable::keyPressEvent(QKeyEvent* event) {
  event->setAccepted(actByKey(event));
}

bool ServerGridTable::actByKey(QKeyEvent* event) {
  const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const int key = event->key();
  const bool plain = modifiers == Qt::NoModifier;
  const bool typing = !(modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
  if (event->matches(QKeySequence::Copy)) {
    copyAddress();
    return true;
  }
  if (modifiers == Qt::ShiftModifier && key == Qt::Key_F10) {
    openMenu();
    return true;
  }
  if (plain && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
    if (!event->isAutoRepeat()) {
      activate();
    }
    return true;
  }
  if (typing && key == Qt::Key_Space && !typeAhead_.isUnderWay()) {
    if (cursorGroup_ != 0) {
      toggle(cursorGroup_);
    }
    return true;
  }
  if ((plain && foldByKey(key)) || (!(modifiers & (Qt::AltModifier | Qt::MetaModifier)) && moveByKey(key))) {
    return true;
  }
  if (!typing || event->text().isEmpty() || !event->text().front().isPrint()) {
    return false;
  }
  keyboardSearch(event->text());
  return true;
}

void ServerGridTable::keyboardSearch(const QString& letters) {
  const int now = cursorPosition();
  const int found =
      letters.isEmpty() ? -1 : typeAhead_.type(letters, model_, grid_, now >= 0 ? now : firstInSight() - 1);
  if (found >= 0 && found != now) {
    moveTo(found);
  }
}

void ServerGridTable::activate() {
  if (cursorGroup_ != 0) {
    toggle(cursorGroup_);
  } else if (cursorPosition() >= 0) {
    Q_EMIT rowActivated();
  }
}

void ServerGridTable::copyAddress() const {
  const int position = model_.positionOf(selected_);
  const QString ip = model_.index(position, cIP - 1).data().toString().trimmed();
  const QString port = model_.index(position, cPort - 1).data().toString().trimmed();
  if (!ip.isEmpty()) {
    QGuiApplication::clipboard()->setText(port.isEmpty() ? ip : ip + ':' + port);
  }
}

QVariant ServerGridTable::inputMethodQuery(Qt::InputMethodQuery query) const {
  const int position = cursorPosition();
  if (query != Qt::ImCursorRectangle || position < 0) {
    return QTableView::inputMethodQuery(query);
  }
  const int y = position * pitch() - verticalScrollBar()->value();
  return QRect(arrowWidth, y, 1, pitch());
}

// The keys ask for what a right click on the selected row does. Of a right click the press has done it already.
void ServerGridTable::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() == QContextMenuEvent::Keyboard) {
    openMenu();
  }
}

void ServerGridTable::openMenu() {
  const int position = cursorPosition();
  if (position >= 0 && cursorGroup_ == 0) {
    bringIntoSight(position);
    grid_.mouseButton.fire(MouseButton::right);
  }
}

}  // namespace vantrel
