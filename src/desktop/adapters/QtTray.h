// The tray of the desktop, where it has one. The toolkit does not tell when a tray comes and goes, so it is looked for
// every second for as long as an icon is wanted in it.
#pragma once

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>
#include <QTimer>
#include <functional>

#include "platform/Tray.h"

namespace vantrel {

class QtTray : public QObject, public Tray {
  Q_OBJECT

 public:
  static constexpr int lookInterval = 1000;  // milliseconds

  // `isThere`: whether the desktop has a tray.
  explicit QtTray(std::function<bool()> isThere = QSystemTrayIcon::isSystemTrayAvailable,
                  int milliseconds = lookInterval);
  ~QtTray() override;

  void setUp(const TrayIconPlan& plan) override;
  bool isIconVisible() const override { return wanted_ && isThere_(); }
  void setIconVisible(bool visible) override;
  void setPersistent(bool persistent) override { persistent_ = persistent; }

 private:
  void tell(QSystemTrayIcon::ActivationReason reason);
  void look();

  std::function<bool()> isThere_;
  QMenu menu_;
  QSystemTrayIcon icon_;
  QTimer timer_;
  bool wanted_ = false;
  bool persistent_ = false;
  bool standing_ = false;     // when it was last looked for
  bool stoodBefore_ = false;  // at any time
};

}  // namespace vantrel
