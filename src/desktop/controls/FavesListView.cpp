#include "desktop/controls/FavesListView.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include "desktop/controls/CalmStyle.h"
#include "desktop/controls/Theme.h"
#include "desktop/grid/ServerGridIcons.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int sideMargin = 8;
constexpr int lineMargin = 4;  // above the first line and below the second
constexpr int columnGap = 8;
constexpr int lockSide = 14;
constexpr int hintMargin = 24;

constexpr int lockImage = 1;       // of the server list's images
constexpr qreal dimmer = 0.35;     // share of the ground's colour in the second line's
constexpr qreal separation = 0.1;  // share of the text's colour in the line between items

class FaveDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
    return {2 * sideMargin, 2 * (option.fontMetrics.height() + lineMargin) + 1};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    painter->save();
    paintGround(*painter, option);
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    const QColor text = option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    const QColor dim = selected ? text : mixed(text, option.palette.color(QPalette::Base), dimmer);
    QRect lines = option.rect.adjusted(sideMargin, lineMargin, -sideMargin, -lineMargin - 1);
    QRect second = lines;
    second.setTop(lines.top() + lines.height() / 2);
    lines.setBottom(second.top() - 1);
    if (index.data(FavesListModel::lockedRole).toBool()) {
      paintGridImage(*painter, lockImage, QRect(second.right() - lockSide + 1, second.top(), lockSide, lockSide));
      second.setRight(second.right() - lockSide - columnGap);
    }
    painter->setPen(dim);
    paintText(*painter, second, index.data(FavesListModel::hostnameRole).toString(), Qt::AlignLeft);
    const QString gametype = index.data(FavesListModel::gametypeRole).toString();
    const QRect right = lines.adjusted(lines.width() * 2 / 3, 0, 0, 0);
    const int taken = paintText(*painter, right, gametype, Qt::AlignRight);
    painter->setPen(text);
    paintText(*painter, lines.adjusted(0, 0, -taken, 0), index.data().toString(), Qt::AlignLeft);
    painter->restore();
  }

 private:
  static void paintGround(QPainter& painter, const QStyleOptionViewItem& option) {
    if ((option.state & QStyle::State_Selected) != 0) {
      painter.fillRect(option.rect, option.palette.brush(QPalette::Highlight));
    }
    const QColor line = mixed(option.palette.color(QPalette::Base), option.palette.color(QPalette::Text), separation);
    painter.fillRect(QRect(option.rect.bottomLeft(), QSize(option.rect.width(), 1)), line);
  }

  // The width that the text has taken, with a gap to what is beside it.
  static int paintText(QPainter& painter, const QRect& rect, const QString& text, Qt::Alignment side) {
    const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, rect.width());
    painter.drawText(rect, static_cast<int>((side | Qt::AlignVCenter).toInt()) | Qt::TextSingleLine, shown);
    return shown.isEmpty() ? 0 : painter.fontMetrics().horizontalAdvance(shown) + columnGap;
  }
};

}  // namespace

FavesListView::FavesListView(FavoritesList& list, const char* name, const QString& emptyHint, QWidget* parent)
    : QListView(parent), list_(list), items_(new FavesListModel(list, this)), emptyHint_(emptyHint) {
  setObjectName(name);
  setAccessibleDescription(emptyHint);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setItemDelegate(new FaveDelegate(this));
  setModel(items_);
  // While the items change, the toolkit moves the current row about by itself.
  connect(items_, &FavesListModel::rowsAboutToBeRemoved, this, [this] { followsList_ = true; });
  connect(items_, &FavesListModel::upToDate, this, &FavesListView::showSelection);
  connect(this, &QListView::clicked, this, &FavesListView::tellClick);
  showSelection();
}

void FavesListView::showSelection() {
  followsList_ = true;
  const QModelIndex item = items_->index(list_.selected() - 1);
  if (item.isValid()) {
    setCurrentIndex(item);
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

// Enter and the space bar are a click on the selected item.
void FavesListView::keyPressEvent(QKeyEvent* event) {
  showChanges();
  const bool presses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
  if (presses && currentIndex().isValid()) {
    tellClick(currentIndex());
  } else {
    QListView::keyPressEvent(event);
  }
}

void FavesListView::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (items_->rowCount() == 0) {
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(hintMargin, 0, -hintMargin, 0),
                     static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap, emptyHint_);
  }
}

}  // namespace vantrel
