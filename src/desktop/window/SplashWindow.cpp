#include "desktop/window/SplashWindow.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "desktop/controls/Theme.h"
#include "desktop/pictures/SvgPicture.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr QSize splashSize(420, 240);
constexpr int textLeft = 146;
constexpr int nameTop = 72;
constexpr int margin = 24;
constexpr int footer = 48;  // height

constexpr qreal nameSize = 18;  // points

constexpr Qt::WindowFlags splashFlags =
    Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;

// The dark ground with the rings of a radar that run out from the icon, and a foot to write on.
class SplashPicture : public QWidget {
 public:
  explicit SplashPicture(QWidget* parent) : QWidget(parent) {
    setObjectName("picNewSplash");
    setFixedSize(splashSize);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    paintPicture(painter, QStringLiteral("splash"), rect());
  }
};

QLabel* makeLabel(const char* name, QWidget* parent) {
  auto* const label = new QLabel(parent);
  label->setObjectName(name);
  return label;
}

}  // namespace

SplashWindow::SplashWindow(frmSplash& model) : QWidget(nullptr, splashFlags) {
  setObjectName("frmSplash");
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  setFixedSize(splashSize);
  makePicture(model);
  bindWindow(model);
}

void SplashWindow::makePicture(frmSplash& model) {
  auto* const picture = new SplashPicture(this);
  QLabel* const name = makeLabel("lblVer", picture);
  QLabel* const version = makeLabel("lblVersion", picture);
  QLabel* const progress = makeLabel("Label1", picture);
  bindings_.bindLabel(*name, model.lblVer);
  bindings_.bindLabel(*version, model.lblVersion);
  bindings_.bindLabel(*progress, model.Label1);
  QFont large = name->font();
  large.setPointSizeF(nameSize);
  large.setBold(true);
  name->setFont(large);
  makeDim(*version);
  makeDim(*progress);
  progress->setFixedHeight(footer);
  auto* const column = new QVBoxLayout(picture);
  column->setContentsMargins(textLeft, nameTop, margin, 0);
  column->setSpacing(4);
  column->addWidget(name);
  column->addWidget(version);
  column->addStretch();
  column->addWidget(progress);
  bindings_.bindVisible(*picture, model.picNewSplash);
}

void SplashWindow::bindWindow(frmSplash& model) {
  const auto showTitle = [this, &model] {
    setWindowTitle(fromCp1252(model.title.get()));
    setAccessibleName(windowTitle());
  };
  showTitle();
  bindings_.keep(model.title.changed.connect(showTitle));
  bindings_.bindVisible(*this, model.visible);
}

void SplashWindow::showEvent(QShowEvent* event) {
  if (const QScreen* const screen = QGuiApplication::primaryScreen(); screen != nullptr) {
    const QRect area = screen->availableGeometry();
    move(area.center() - rect().center());
  }
  QWidget::showEvent(event);
}

void SplashWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
}

}  // namespace vantrel
