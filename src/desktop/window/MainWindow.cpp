#include "desktop/window/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QTimer>

#include "desktop/controls/PlainText.h"
#include "desktop/pages/AboutPage.h"
#include "desktop/pages/FaveEditor.h"
#include "desktop/pages/FavesPage.h"
#include "desktop/pages/HelpPanel.h"
#include "desktop/pages/PagePanel.h"
#include "desktop/pages/ServerPage.h"
#include "desktop/pages/SettingsPage.h"
#include "desktop/pages/ToolsPage.h"
#include "desktop/text/Cp1252.h"
#include "desktop/window/FocusKeeper.h"
#include "desktop/window/HeaderStrip.h"

namespace vantrel {
namespace {

constexpr std::size_t longestTitle = 1000;  // characters; more never fit

// In pixels at 100 %, without the frame.
constexpr QSize designSize(671, 553);
constexpr QSize smallestSize(671, 500);
constexpr int pagesTop = 93;

WindowState stateOf(const QWidget& window) {
  return window.isMinimized()   ? WindowState::minimized
         : window.isMaximized() ? WindowState::maximized
                                : WindowState::normal;
}

Qt::WindowStates toolkitState(WindowState state) {
  switch (state) {
    case WindowState::minimized:
      return Qt::WindowMinimized;
    case WindowState::maximized:
      return Qt::WindowMaximized;
    default:
      return Qt::WindowNoState;
  }
}

}  // namespace

MainWindow::MainWindow(frmMain& model, Commands& commands, SweepProgress& progress, frmMsg& question)
    : model_(model),
      header_(new HeaderStrip(model, commands, this)),
      serverPage_(new ServerPage(model, commands, progress, this)),
      backdrop_(new QWidget(this)),
      focusKeeper_(new FocusKeeper(this, [this] { return firstOfPage(); })) {
  setObjectName("frmMain");
  backdrop_->setObjectName("backdrop");
  bindings_.bindGround(*this, model.backColor);
  backdrop_->setAutoFillBackground(true);
  bindings_.bindGround(*backdrop_, model.PicBG.backColor);
  bindings_.bindVisible(*backdrop_, model.PicBG.visible);
  makePages(commands, question);
  takeFirstSize();
  bindWindow();
}

MainWindow::~MainWindow() = default;

// From the bottom of the pile to its top, but for the help: it lies beneath the editor of the favorites and comes
// behind it in the order of the tab key.
void MainWindow::makePages(Commands& commands, frmMsg& question) {
  for (const auto& [panel, name] : {std::pair(&model_.PicBG, "PicBG"), std::pair(&model_.PicServers, "PicServers"),
                                    std::pair(&model_.PicChat, "PicChat")}) {
    new PagePanel(*panel, name, this);
  }
  details_ = std::make_unique<DetailPages>(model_, commands, this);
  new AboutPage(model_, commands, this);
  auto* const settings = new SettingsPage(model_, question, commands, this);
  auto* const tools = new ToolsPage(model_, commands, this);
  auto* const faves = new FavesPage(model_, commands, this);
  auto* const editor = new FaveEditor(model_, commands, this);
  auto* const help = new HelpPanel(model_, commands, this);
  editor->raise();
  for (PagePanel* const page :
       {static_cast<PagePanel*>(settings), static_cast<PagePanel*>(tools), static_cast<PagePanel*>(faves)}) {
    page->endBefore(help);
  }
  help->beginBelow(editor);
}

void MainWindow::takeFirstSize() {
  const QScreen* const screen = QApplication::primaryScreen();
  const QRect free = screen == nullptr ? QRect({0, 0}, designSize) : screen->availableGeometry();
  setMinimumSize(smallestSize.boundedTo(free.size()));
  resize(designSize.boundedTo(free.size()));
  move(free.center() - rect().center());
  noteOuterSize();
}

void MainWindow::noteOuterSize() {
  model_.Width = static_cast<float>(frameGeometry().width()) * twipsPerPixel;
  model_.Height = static_cast<float>(frameGeometry().height()) * twipsPerPixel;
}

void MainWindow::bindWindow() {
  // A server's name stands in it: the toolkit takes "[*]" for a mark of its own, and "[*][*]" for that text.
  const auto showTitle = [this] {
    const QString title = oneLine(fromCp1252(std::string_view(model_.title.get()).substr(0, longestTitle)));
    setWindowTitle(QString(title).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
  };
  showTitle();
  bindings_.keep(model_.title.changed.connect(showTitle));
  applyState();
  bindings_.keep(model_.windowState.changed.connect([this] { applyState(); }));
  bindings_.bindVisible(*this, model_.visible);
  bindings_.keep(model_.focusWanted.connect([this] {
    raise();
    activateWindow();
  }));
}

void MainWindow::applyState() {
  const WindowState wanted = model_.windowState.get();
  if (stateOf(*this) != wanted) {
    setWindowState(toolkitState(wanted));
  }
}

// The window system tells a new size and a new state one after the other: the model learns of both at once.
void MainWindow::reportSoon() {
  if (!reportWaits_) {
    reportWaits_ = true;
    QTimer::singleShot(0, this, [this] { reportSize(); });
  }
}

void MainWindow::reportSize() {
  reportWaits_ = false;
  if (!isVisible()) {
    return;
  }
  const WindowState state = stateOf(*this);
  model_.windowState.set(state);
  if (state != WindowState::minimized) {
    noteOuterSize();
  }
  model_.resized.fire();
}

// The pages follow the header in the order of the tab key, and what is not on show is skipped. A page without anything
// that takes the focus leaves it to its tab.
QWidget* MainWindow::firstOfPage() {
  QWidget* const first = firstFocusable(serverPage_);
  return first == nullptr || header_->isAncestorOf(first) ? header_->tabOnShow() : first;
}

// The window goes at once; the program takes the moment that it needs behind it.
void MainWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  closed.fire();
}

void MainWindow::resizeEvent(QResizeEvent* /*event*/) {
  header_->setGeometry(0, 0, width(), HeaderStrip::stripHeight);
  const QRect pages(0, pagesTop, width(), std::max(0, height() - pagesTop));
  serverPage_->setGeometry(pages);
  backdrop_->setGeometry(pages);
  reportSoon();
}

// The frame, which belongs to the window's size, is often known no sooner than when the window has got its place.
void MainWindow::moveEvent(QMoveEvent* /*event*/) {
  if (model_.Width != static_cast<float>(frameGeometry().width()) * twipsPerPixel) {
    reportSoon();
  }
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) {
    reportSoon();
  } else if (event->type() == QEvent::ActivationChange) {
    focusKeeper_->check();
  }
  QWidget::changeEvent(event);
}

void MainWindow::showEvent(QShowEvent* /*event*/) {
  reportSoon();
  focusKeeper_->check();
}

}  // namespace vantrel
