#include "desktop/adapters/QtTray.h"

#include <QApplication>
#include <utility>

#include "desktop/text/Cp1252.h"

namespace vantrel {

QtTray::QtTray(std::function<bool()> isThere, int milliseconds) : isThere_(std::move(isThere)) {
  menu_.setObjectName("mnuPopup");
  icon_.setIcon(QApplication::windowIcon());
  connect(&icon_, &QSystemTrayIcon::activated, this, [this](auto reason) { tell(reason); });
  connect(&timer_, &QTimer::timeout, this, [this] { look(); });
  timer_.setInterval(milliseconds);
}

QtTray::~QtTray() {
  icon_.hide();
}

void QtTray::setUp(const TrayIconPlan& plan) {
  menu_.clear();
  int number = 0;
  for (const std::string& entry : plan.popupMenu) {
    const QAction* const action = menu_.addAction(fromCp1252(entry).replace('&', QStringLiteral("&&")));
    ++number;
    connect(action, &QAction::triggered, this, [this, number] { menuChosen.fire(number); });
  }
  icon_.setContextMenu(plan.menuButton == TrayButton::right ? &menu_ : nullptr);
  icon_.setToolTip(fromCp1252(plan.toolTip).trimmed());
}

void QtTray::setIconVisible(bool visible) {
  wanted_ = visible;
  standing_ = visible && isThere_();
  stoodBefore_ = stoodBefore_ || standing_;
  icon_.setVisible(standing_);
  if (visible) {
    timer_.start();
  } else {
    timer_.stop();
  }
}

// A click is told by the toolkit when the button has come up again.
void QtTray::tell(QSystemTrayIcon::ActivationReason reason) {
  switch (reason) {
    case QSystemTrayIcon::Trigger:
      MouseDown.fire(TrayButton::left);
      Click.fire(TrayButton::left);
      break;
    case QSystemTrayIcon::MiddleClick:
      MouseDown.fire(TrayButton::middle);
      Click.fire(TrayButton::middle);
      break;
    case QSystemTrayIcon::DoubleClick:
      DblClick.fire(TrayButton::left);
      break;
    case QSystemTrayIcon::Context:
      MouseDown.fire(TrayButton::right);
      break;
    default:
      break;
  }
}

// An icon that was shown in the tray before is not known to the new one: it is taken away and put there anew.
void QtTray::look() {
  const bool isStanding = isThere_();
  if (isStanding == std::exchange(standing_, isStanding)) {
    return;
  }
  icon_.hide();
  if (!isStanding) {
    lost.fire();
    return;
  }
  const bool isAnew = std::exchange(stoodBefore_, true);
  if (isAnew && !persistent_) {
    wanted_ = false;
    timer_.stop();
  }
  icon_.setVisible(wanted_);
  if (isAnew) {
    Refreshed.fire();
  }
}

}  // namespace vantrel
