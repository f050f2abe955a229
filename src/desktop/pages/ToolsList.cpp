#include "desktop/pages/ToolsList.h"

#include <QAbstractListModel>
#include <QFile>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include "desktop/controls/FavesInks.h"
#include "desktop/controls/PlainText.h"

namespace vantrel {

// The rows are read from the list when they are drawn. All that a list does is to gain a line at its end, to lose all
// of them and to select one, so what has changed is known from the number of lines.
class ToolsModel : public QAbstractListModel {
 public:
  ToolsModel(const ListBox& files, QObject* parent) : QAbstractListModel(parent), files_(files) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }

  QVariant data(const QModelIndex& index, int role) const override {
    const QString name = QFile::decodeName(QByteArray::fromStdString(files_.line(index.row())));
    switch (role) {
      case Qt::DisplayRole:
      case Qt::AccessibleTextRole:
        return oneLine(name);
      case Qt::ToolTipRole:
        return plainToolTip(name);
      default:
        return {};
    }
  }

  void takeChanges() {
    const int count = files_.count();
    if (count > rows_) {
      beginInsertRows({}, rows_, count - 1);
      rows_ = count;
      endInsertRows();
    } else if (count < rows_) {
      beginResetModel();
      rows_ = count;
      endResetModel();
    }
  }

 private:
  const ListBox& files_;
  int rows_ = 0;
};

namespace {

// In pixels at 100 %.
constexpr int rowMargin = 7;  // above and below a name
constexpr int sideMargin = 10;
constexpr int iconSide = 16;
constexpr int iconGap = 9;  // between the icon and the name

constexpr qreal iconUnit = 16;  // the side of the square that the icon is drawn in

class ToolsDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
    return {iconSide + 2 * sideMargin, option.fontMetrics.height() + 2 * rowMargin};
  }

  // The end of a name, which tells what kind of file it is, is always seen.
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    painter->save();
    FavesInks inks = inksOf(option.palette);
    if ((option.state & QStyle::State_Selected) != 0) {
      painter->fillRect(option.rect, option.palette.brush(QPalette::Highlight));
      inks.text = inks.dim = option.palette.color(QPalette::HighlightedText);
    }
    const QRect row = option.rect.adjusted(sideMargin, 0, -sideMargin, 0);
    const QRectF icon(row.left(), row.top() + (row.height() - iconSide) / 2, iconSide, iconSide);
    paintToolIcon(*painter, icon, inks.dim);
    const QRect name = row.adjusted(iconSide + iconGap, 0, 0, 0);
    painter->setPen(inks.text);
    painter->drawText(name, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, name.width()));
    painter->restore();
  }
};

}  // namespace

// A window with its title and a prompt in it.
void paintToolIcon(QPainter& painter, const QRectF& place, const QColor& ink) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(place.topLeft());
  painter.scale(place.width() / iconUnit, place.height() / iconUnit);
  painter.setPen(QPen(ink, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(1.5, 2.5, 13, 11), 1.8, 1.8);
  painter.drawLine(QPointF(1.5, 5.5), QPointF(14.5, 5.5));
  const QPointF prompt[] = {{4.4, 7.8}, {6.2, 9.5}, {4.4, 11.2}};
  painter.drawPolyline(prompt, 3);
  painter.drawLine(QPointF(8, 11.2), QPointF(11.2, 11.2));
  painter.restore();
}

ToolsList::ToolsList(FileListBox& list, QWidget* parent)
    : QListView(parent), list_(list), rows_(new ToolsModel(list.files, this)) {
  setObjectName("lstApps");
  setAccessibleName(tr("Tools"));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setItemDelegate(new ToolsDelegate(this));
  setModel(rows_);
  connect(this, &QListView::doubleClicked, this, &ToolsList::startAsked);
  changed_ = list.files.changed.connect([this] { showList(); });
  showList();
}

void ToolsList::showList() {
  followsList_ = true;
  rows_->takeChanges();
  followsList_ = false;
  showSelection();
}

void ToolsList::showSelection() {
  followsList_ = true;
  const QModelIndex selected = rows_->index(list_.files.selected());
  if (selected.isValid()) {
    setCurrentIndex(selected);
  } else {
    selectionModel()->clear();
  }
  followsList_ = false;
}

// A listener may do anything to the list, so nothing of it is looked at behind the click.
void ToolsList::tellClick(int row) {
  list_.files.select(row);
  list_.clicked.fire();
}

void ToolsList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  if (!followsList_) {
    tellClick(current.row());
  }
}

// A tool that was clicked is selected, whatever other key is held, and a click beside the tools changes nothing.
QItemSelectionModel::SelectionFlags ToolsList::selectionCommand(const QModelIndex& index,
                                                                const QEvent* /*event*/) const {
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

// The toolkit makes the first row the current one then, which nobody has asked for.
void ToolsList::focusInEvent(QFocusEvent* event) {
  followsList_ = true;
  QListView::focusInEvent(event);
  showSelection();
}

// A press that selects has told of itself; one on the tool that is selected already is a click all the same.
void ToolsList::mousePressEvent(QMouseEvent* event) {
  const QModelIndex before = currentIndex();
  const bool again = before.isValid() && indexAt(event->position().toPoint()) == before;
  QListView::mousePressEvent(event);
  if (again) {
    tellClick(before.row());
  }
}

// A double click of another button is two presses.
void ToolsList::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    QListView::mouseDoubleClickEvent(event);
  } else {
    mousePressEvent(event);
  }
}

// Enter that is held down starts one tool, not one after the other.
void ToolsList::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
    QListView::keyPressEvent(event);
  } else if (!event->isAutoRepeat() && currentIndex().isValid()) {
    Q_EMIT startAsked();
  }
}

// Where nothing is selected yet, the key for the last row leads there too.
QModelIndex ToolsList::moveCursor(CursorAction action, Qt::KeyboardModifiers held) {
  return action == MoveEnd ? rows_->index(rows_->rowCount() - 1) : QListView::moveCursor(action, held);
}

}  // namespace vantrel
