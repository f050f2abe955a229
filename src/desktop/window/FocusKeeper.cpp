#include "desktop/window/FocusKeeper.h"

#include <QApplication>
#include <QTimer>

namespace vantrel {
namespace {

bool canHaveFocus(const QWidget& widget) {
  return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

}  // namespace

QWidget* firstFocusable(QWidget* start) {
  QWidget* candidate = start;
  do {
    if (canHaveFocus(*candidate)) {
      return candidate;
    }
    candidate = candidate->nextInFocusChain();
  } while (candidate != start);
  return nullptr;
}

FocusKeeper::FocusKeeper(QWidget* window, std::function<QWidget*()> firstOfPage)
    : QObject(window), window_(window), firstOfPage_(std::move(firstOfPage)) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget*) { follow(before); });
}

void FocusKeeper::check() {
  follow(window_->focusWidget());
}

// A page is changed in several steps, so the focus moves once all of them are done.
void FocusKeeper::follow(QWidget* before) {
  const bool lost = before != nullptr && window_->isAncestorOf(before) && !before->isVisible();
  if (lost && !waits_) {
    waits_ = true;
    QTimer::singleShot(0, this, [this] { giveFocus(); });
  }
}

void FocusKeeper::giveFocus() {
  waits_ = false;
  QWidget* const first = window_->isVisible() ? firstOfPage_() : nullptr;
  if (first != nullptr) {
    first->setFocus(Qt::OtherFocusReason);
  }
}

}  // namespace vantrel
