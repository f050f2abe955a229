#include "desktop/pages/PagePanel.h"

#include <QEvent>

namespace vantrel {

PagePanel::PagePanel(Panel& model, const char* name, QWidget* parent) : QWidget(parent), content_(new QWidget(this)) {
  setObjectName(name);
  setAttribute(Qt::WA_StyledBackground);
  parent->installEventFilter(this);
  bindings_.bindGround(*this, model.backColor);
  setAutoFillBackground(true);
  bindings_.bindPlace(*this, model.place);
  bindings_.bindVisible(*this, model.visible);
}

void PagePanel::endBefore(QWidget* other) {
  right_ = other;
  other->installEventFilter(this);
  fitContent();
}

void PagePanel::beginBelow(QWidget* other) {
  above_ = other;
  other->installEventFilter(this);
  fitContent();
}

bool PagePanel::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Move:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
      fitContent();
      break;
    default:
      break;
  }
  return false;
}

void PagePanel::resizeEvent(QResizeEvent* /*event*/) {
  fitContent();
}

void PagePanel::moveEvent(QMoveEvent* /*event*/) {
  fitContent();
}

void PagePanel::fitContent() {
  QRect seen = geometry().intersected(parentWidget()->rect());
  if (right_) {
    seen.setRight(std::min(seen.right(), right_->x() - 1));
  }
  if (above_ && !above_->isHidden()) {
    seen.setTop(std::max(seen.top(), above_->geometry().bottom() + 1));
  }
  content_->setGeometry(seen.translated(-pos()));
}

}  // namespace vantrel
