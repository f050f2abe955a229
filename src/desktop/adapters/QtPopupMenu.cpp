#include "desktop/adapters/QtPopupMenu.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QEvent>
#include <QMenu>
#include <QPointer>

#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int lookInterval = 20;  // milliseconds

}  // namespace

QtPopupMenu::QtPopupMenu(Loop& loop) : loop_(loop) {
  qApp->installEventFilter(this);
}

bool QtPopupMenu::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::ContextMenu) {  // It may come before the press of its key.
    keyboardLast_ = static_cast<const QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard;
  } else if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress) {
    keyboardLast_ = event->type() == QEvent::KeyPress;
  }
  return false;
}

QPoint QtPopupMenu::place() const {
  const QWidget* const focus = QApplication::focusWidget();
  if (!keyboardLast_ || focus == nullptr) {
    return QCursor::pos();
  }
  const QRect cursor = focus->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  const auto* const scrolled = qobject_cast<const QAbstractScrollArea*>(focus);
  const QWidget* const ground = scrolled != nullptr ? scrolled->viewport() : focus;
  return ground->mapToGlobal(QPoint(cursor.left(), cursor.bottom() + 1));
}

// One menu at a time: the one before it is dismissed. The menu goes with its window, should that go first.
int QtPopupMenu::Popup(const std::vector<std::string>& items) {
  const QPointer<QMenu> menu(new QMenu(QApplication::activeWindow()));
  menu->setObjectName("popupMenu");
  int chosen = 0;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i] == "-") {
      menu->addSeparator();
      continue;
    }
    const int number = static_cast<int>(i) + 1;
    // An "&" would mark a key.
    const QAction* const entry = menu->addAction(fromCp1252(items[i]).replace('&', QStringLiteral("&&")));
    connect(entry, &QAction::triggered, menu, [&chosen, number] { chosen = number; });
  }
  if (QWidget* const other = QApplication::activePopupWidget()) {
    other->close();
  }
  if (!loop_.ending()) {
    menu->popup(place());
  }
  while (menu && menu->isVisible() && !loop_.ending()) {
    loop_.wait(lookInterval);
  }
  delete menu;
  return chosen;
}

}  // namespace vantrel
