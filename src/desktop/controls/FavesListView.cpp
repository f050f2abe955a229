#include "desktop/controls/FavesListView.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/controls/FavesInks.h"
#include "desktop/controls/FavesListDelegate.h"
#include "desktop/controls/FavesPicture.h"
#include "desktop/controls/Inks.h"
#include "desktop/controls/PlainText.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int hintMargin = 24;  // pixels at 100 %

bool isPress(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
}

}  // namespace

FavesListView::FavesListView(FavoritesList& list, const char* name, const QString& emptyHint, QWidget* parent)
    : QListView(parent),
      list_(list),
      items_(new FavesListModel(list, this)),
      picture_(new FavesPicture(list.picture, this)),
      emptyHint_(emptyHint) {
  setObjectName(name);
  setAccessibleDescription(emptyHint);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setItemDelegate(new FavesListDelegate(list, this));
  // While the items change, the toolkit moves the current row about by itself; this has to hear of it first.
  connect(items_, &FavesListModel::rowsAboutToBeRemoved, this, [this] { followsList_ = true; });
  setModel(items_);
  // Who adds an item wants to see it; a list that is filled stays at its top.
  connect(items_, &FavesListModel::rowsInserted, this, [this](const QModelIndex&, int first, int last) {
    if (first > 0 && first == last) {
      scrollTo(items_->index(last));
    }
  });
  connect(items_, &FavesListModel::upToDate, this, &FavesListView::showSelection);
  connect(picture_, &FavesPicture::changed, viewport(), QOverload<>::of(&QWidget::update));
  connect(this, &QListView::clicked, this, &FavesListView::tellClick);
  connect(this, &QListView::doubleClicked, this, &FavesListView::editAsked);
  lookChanged_ = list.look.changed.connect([this] { applyLook(); });
  applyLook();
  showSelection();
}

// What is written on the selected item's ground is chosen so that it can be read there: next to the list's own ground.
void FavesListView::applyLook() {
  const FavoritesLook& look = list_.look.get();
  QPalette palette;
  if (!colors::isSystem(look.background)) {
    palette.setColor(QPalette::Base, screenColor(look.background));
  }
  if (!colors::isSystem(look.name)) {
    palette.setColor(QPalette::Text, screenColor(look.name));
  }
  if (!colors::isSystem(look.selection)) {
    const QColor ground = screenColor(look.selection);
    palette.setColor(QPalette::Highlight, ground);
    palette.setColor(QPalette::HighlightedText, readable(palette.color(QPalette::Base), ground));
  }
  setPalette(palette);
}

void FavesListView::showSelection() {
  followsList_ = true;
  const QModelIndex item = items_->index(list_.selected() - 1);
  if (item.isValid()) {
    setCurrentIndex(item);
    lastSelected_ = list_.selected();
  } else {
    selectionModel()->clear();
  }
  setAccessibleDescription(items_->rowCount() == 0 ? emptyHint_ : QString());
  viewport()->update();
  followsList_ = false;
}

void FavesListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  if (!followsList_) {
    list_.select(current.row() + 1);
  }
}

void FavesListView::tellClick(const QModelIndex& item) {
  list_.select(item.row() + 1);
  list_.itemClicked.fire(item.row() + 1);
}

// An item that was clicked is selected, whatever other key is held, and a click beside the items changes nothing.
QItemSelectionModel::SelectionFlags FavesListView::selectionCommand(const QModelIndex& index,
                                                                    const QEvent* /*event*/) const {
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

// The toolkit makes the first item the current one then, which nobody has asked for.
void FavesListView::focusInEvent(QFocusEvent* event) {
  followsList_ = true;
  QListView::focusInEvent(event);
  showSelection();
}

// What the user means are the items as they are now.
void FavesListView::mousePressEvent(QMouseEvent* event) {
  showChanges();
  QListView::mousePressEvent(event);
}

// A double click of another button is two presses.
void FavesListView::mouseDoubleClickEvent(QMouseEvent* event) {
  showChanges();
  if (event->button() == Qt::LeftButton) {
    QListView::mouseDoubleClickEvent(event);
  } else {
    QListView::mousePressEvent(event);
  }
}

// Enter and the space bar are a click on the selected item.
void FavesListView::keyPressEvent(QKeyEvent* event) {
  showChanges();
  if (takeShortcut(*event)) {
    return;
  }
  if (event->key() == Qt::Key_Space && isTyping()) {
    keyboardSearch(event->text());
  } else if (isPress(*event) && currentIndex().isValid()) {
    tellClick(currentIndex());
  } else {
    QListView::keyPressEvent(event);
  }
}

// A key that is held down asks once: each further item would be one more that nobody has looked at.
bool FavesListView::takeShortcut(const QKeyEvent& event) {
  const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (event.matches(QKeySequence::Copy)) {
    copySelected();
    return true;
  }
  if (!isPlain || (event.key() != Qt::Key_Delete && event.key() != Qt::Key_F2)) {
    return false;
  }
  if (!event.isAutoRepeat() && event.key() == Qt::Key_Delete) {
    Q_EMIT removeAsked();
  } else if (!event.isAutoRepeat()) {
    Q_EMIT editAsked();
  }
  return true;
}

void FavesListView::copySelected() const {
  const QModelIndex item = currentIndex();
  if (item.isValid()) {
    QApplication::clipboard()->setText(oneLine(fromCp1252(list_.at(item.row() + 1).hostname)));
  }
}

void FavesListView::keyboardSearch(const QString& typed) {
  sinceTyped_.start();
  QListView::keyboardSearch(typed);
}

// A name may have blanks in it.
bool FavesListView::isTyping() const {
  return sinceTyped_.isValid() && !sinceTyped_.hasExpired(QApplication::keyboardInputInterval());
}

// When the selected item is gone, the keys go on with the one that now stands in its place.
QModelIndex FavesListView::moveCursor(CursorAction action, Qt::KeyboardModifiers held) {
  if (currentIndex().isValid() || items_->rowCount() == 0) {
    return QListView::moveCursor(action, held);
  }
  switch (action) {
    case MoveHome:
      return items_->index(0);
    case MoveEnd:
      return items_->index(items_->rowCount() - 1);
    default:
      return items_->index(std::min(lastSelected_, items_->rowCount()) - 1);
  }
}

// All of the picture moves along with what is scrolled, and has to be put back.
void FavesListView::scrollContentsBy(int dx, int dy) {
  QListView::scrollContentsBy(dx, dy);
  viewport()->update();
}

void FavesListView::paintEvent(QPaintEvent* event) {
  const FavesInks inks = inksOf(palette());
  QPainter painter(viewport());
  picture_->paint(painter, viewport()->size(), inks);
  if (items_->rowCount() == 0) {
    painter.setPen(inks.dim);
    painter.drawText(viewport()->rect().adjusted(hintMargin, 0, -hintMargin, 0),
                     static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap, emptyHint_);
  }
  painter.end();
  QListView::paintEvent(event);
}

}  // namespace vantrel
