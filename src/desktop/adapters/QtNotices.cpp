#include "desktop/adapters/QtNotices.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>

#include "desktop/adapters/NoticeWindow.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int lookInterval = 20;  // milliseconds
constexpr QRect noScreen(0, 0, 640, 480);

QRect areaOf(const QScreen* screen) {
  const QScreen* const known = screen != nullptr ? screen : QGuiApplication::primaryScreen();
  return known != nullptr ? known->availableGeometry() : noScreen;
}

// Of the window that the user works in, or of any other window of the program.
QRect programArea() {
  const QWidget* window = QApplication::activeWindow();
  for (const QWidget* const each : QApplication::topLevelWidgets()) {
    if (window == nullptr && each->isVisible() && each->windowType() == Qt::Window) {
      window = each;
    }
  }
  return areaOf(window != nullptr ? window->screen() : nullptr);
}

QList<QRect> placesOf(const std::vector<NoticeWindow*>& notices, const NoticeWindow& but) {
  QList<QRect> places;
  for (const NoticeWindow* const notice : notices) {
    if (notice != nullptr && notice != &but && notice->isVisible()) {
      places << notice->geometry();
    }
  }
  return places;
}

}  // namespace

QtNotices::QtNotices(Loop& loop, int milliseconds) : loop_(loop), time_(milliseconds) {}

QtNotices::~QtNotices() = default;

void QtNotices::ShowPopMsg(const std::string& text) {
  if (!popMsg_) {
    popMsg_ = std::make_unique<NoticeWindow>(NoticeKind::popMsg, time_);
  }
  popMsg_->present({}, fromCp1252(text), programArea(), placesOf(balloons_, *popMsg_));
  popMsgOver_ = loop_.tickCount() + static_cast<std::uint64_t>(time_);
}

void QtNotices::popUpBalloon(const std::string& text, const std::string& title) {
  if (loop_.ending()) {
    return;
  }
  if (balloons_.size() >= mostBalloons) {
    presentBalloon(*balloons_.back(), text, title);
    return;
  }
  NoticeWindow balloon(NoticeKind::balloon, time_);
  balloons_.push_back(&balloon);
  presentBalloon(balloon, text, title);
  while (balloon.isVisible() && !loop_.ending()) {
    loop_.wait(lookInterval);
  }
  balloons_.pop_back();
}

void QtNotices::presentBalloon(NoticeWindow& balloon, const std::string& text, const std::string& title) {
  std::vector<NoticeWindow*> others = balloons_;
  others.push_back(popMsg_.get());
  balloon.present(fromCp1252(title.empty() ? "Vantrel CE" : title), fromCp1252(text),
                  areaOf(QGuiApplication::screenAt(QCursor::pos())), placesOf(others, balloon));
}

void QtNotices::waitForNotice() {
  while (popMsg_ && popMsg_->isVisible() && loop_.tickCount() < popMsgOver_ && !loop_.ending()) {
    loop_.wait(lookInterval);
  }
}

}  // namespace vantrel
