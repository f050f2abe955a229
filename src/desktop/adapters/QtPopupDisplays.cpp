#include "desktop/adapters/QtPopupDisplays.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <algorithm>

#include "desktop/adapters/BalloonWindow.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr QRect noScreen(0, 0, 640, 480);

QRect areaAtMouse() {
  const QScreen* const screen = QGuiApplication::screenAt(QCursor::pos());
  const QScreen* const known = screen != nullptr ? screen : QGuiApplication::primaryScreen();
  return known != nullptr ? known->availableGeometry() : noScreen;
}

// Of the notices that are on show, the short message among them.
QList<QRect> placesTaken(const QWidget* but) {
  QList<QRect> places;
  for (const QWidget* const each : QApplication::topLevelWidgets()) {
    const bool isNotice = each->objectName() == QLatin1String("balloon") || each->objectName() == "frmPopMsg";
    if (isNotice && each != but && each->isVisible()) {
      places << each->geometry();
    }
  }
  return places;
}

}  // namespace

class QtPopupDisplays::Display : public PopupDisplay {
 public:
  explicit Display(QtPopupDisplays& all) : all_(all) {}

  std::string popUpBalloon(const PopupRequest& request) override {
    if (request.style != "Balloon") {
      return "There are no boxes to type into here.";
    }
    all_.present(request);
    return {};
  }

 private:
  QtPopupDisplays& all_;
};

QtPopupDisplays::QtPopupDisplays() = default;

QtPopupDisplays::~QtPopupDisplays() {
  for (const OnScreen& each : balloons_) {
    each.window->disconnect();
  }
}

std::unique_ptr<PopupDisplay> QtPopupDisplays::create() {
  return std::make_unique<Display>(*this);
}

void QtPopupDisplays::endAll() {
  while (!balloons_.empty()) {
    finish(balloons_.back().window.get(), {});
  }
}

void QtPopupDisplays::present(const PopupRequest& request) {
  if (balloons_.size() < mostBalloons) {
    auto window = std::make_unique<BalloonWindow>();
    const BalloonWindow* const key = window.get();
    QObject::connect(window.get(), &BalloonWindow::ended,
                     [this, key](const QString& answer) { finish(key, toCp1252(answer)); });
    balloons_.push_back({std::move(window), {}});
  }
  OnScreen& newest = balloons_.back();
  newest.answers.push_back(request.answers);
  newest.window->present(request, areaAtMouse(), placesTaken(newest.window.get()));
}

// The window may be in one of its own events.
void QtPopupDisplays::finish(const BalloonWindow* window, const std::string& answer) {
  const auto found = std::find_if(balloons_.begin(), balloons_.end(),
                                  [window](const OnScreen& each) { return each.window.get() == window; });
  if (found == balloons_.end()) {
    return;
  }
  const std::vector<PopupAnswers*> answers = std::move(found->answers);
  BalloonWindow* const gone = found->window.release();
  balloons_.erase(found);
  gone->disconnect();
  gone->hide();
  gone->deleteLater();
  for (PopupAnswers* const each : answers) {
    each->MsgBack(answer.empty() ? PopupRequest::endedByItself : answer);
  }
}

}  // namespace vantrel
