#include "desktop/window/SideWindow.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <utility>

#include "desktop/controls/LvButton.h"
#include "desktop/controls/Theme.h"
#include "desktop/text/Cp1252.h"
#include "desktop/window/WindowPlaces.h"

namespace vantrel {

SideWindow::SideWindow(const char* name, const Model& model, Coming coming, int down, QWidget* owner)
    : QWidget(nullptr, Qt::Window), model_(model), down_(down), owner_(owner) {
  setObjectName(name);
  setAttribute(Qt::WA_ShowWithoutActivating, coming == Coming::quiet);
}

void SideWindow::follow() {
  const auto showCaption = [this] {
    setWindowTitle(fromCp1252(model_.caption.get()).simplified());
    setAccessibleName(windowTitle());
  };
  showCaption();
  bindings_.keep(model_.caption.changed.connect(showCaption));
  const auto show = [this] { model_.visible.get() ? present() : hide(); };
  show();
  bindings_.keep(model_.visible.changed.connect(show));
}

void SideWindow::followFocus(Signal<>& focusWanted) {
  bindings_.keep(focusWanted.connect([this] {
    setWindowState(windowState().setFlag(Qt::WindowMinimized, false));
    raise();
    if (!testAttribute(Qt::WA_ShowWithoutActivating)) {
      activateWindow();
    }
  }));
}

QLabel* SideWindow::makeTitle(const QString& text) {
  auto* const title = new QLabel(text, this);
  makeHeading(*title);
  return title;
}

QPushButton* SideWindow::makeButton(Button& model, const char* name, char mnemonic, std::function<void()> press) {
  auto* const button = new LvButton(this);
  button->setObjectName(name);
  const auto show = [button, &model, mnemonic] {
    button->setText(withMnemonic(fromCp1252(model.caption.get()), mnemonic));
    if (!model.caption.get().empty()) {
      button->setAccessibleName(fromCp1252(model.caption.get()));
    }
    button->setEnabled(model.enabled.get());
  };
  show();
  bindings_.keep(model.caption.changed.connect(show));
  bindings_.keep(model.enabled.changed.connect(show));
  connect(button, &QPushButton::clicked, this, [press = std::move(press)] { press(); });
  return button;
}

void SideWindow::present() {
  if (!std::exchange(placed_, true)) {
    place();
  }
  show();
  if (!testAttribute(Qt::WA_ShowWithoutActivating)) {
    raise();
    activateWindow();
  }
}

void SideWindow::place() {
  const QScreen* const screen = isSeen(owner_) ? owner_->screen() : QGuiApplication::primaryScreen();
  if (screen != nullptr) {
    const QRect free = screen->availableGeometry();
    const QSize frame = owner_ ? owner_->frameSize() - owner_->size() : QSize(0, 0);  // Windows have like ones.
    const QSize whole = size() + frame;
    move(isSeen(owner_) ? placeBeside(owner_->frameGeometry(), whole, free, down_) : placeAbove(free, whole, free));
  }
}

// The window system's wish; the model's hiding comes as `hide` and does not ask.
void SideWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  model_.closed.fire();
}

void SideWindow::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Cancel)) {
    model_.closed.fire();
  } else {
    QWidget::keyPressEvent(event);
  }
}

// Not every desktop puts a frame around the window.
void SideWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(theme::edge);
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace vantrel
