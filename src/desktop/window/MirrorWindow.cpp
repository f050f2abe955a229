#include "desktop/window/MirrorWindow.h"

#include <QCheckBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/controls/ElidedLabel.h"
#include "desktop/controls/LvButton.h"
#include "desktop/controls/MirrorListView.h"
#include "desktop/controls/Theme.h"
#include "desktop/pictures/SvgPicture.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int margin = 12;
constexpr int gap = 6;
constexpr int wideGap = 10;
constexpr int moveSide = 26;
constexpr int barHeight = 8;
constexpr QSize usual{440, 440};

}  // namespace

MirrorWindow::MirrorWindow(frmMirror& model, QWidget* owner)
    : SideWindow("frmMirror", {model.visible, model.caption, model.closed}, Coming::active, 40, owner), model_(model) {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(gap);
  column->addLayout(makeWanted());
  column->addSpacing(gap);
  column->addLayout(makeList(), 1);
  column->addLayout(makeListButtons());
  column->addLayout(makeSite());
  column->addLayout(makeCache());
  column->addSpacing(gap);
  column->addWidget(makeNotice());
  column->addLayout(makeProgress());
  column->addSpacing(gap);
  column->addLayout(makeTransferButtons());
  resize(usual);
  follow();
  followFocus(model_.focusWanted);
}

QPushButton* MirrorWindow::makePress(Button& model, const char* name, char mnemonic, MirrorCommand command) {
  return makeButton(model, name, mnemonic, [this, command] { model_.pressed.fire(command); });
}

QBoxLayout* MirrorWindow::makeWanted() {
  auto* const heading = new QLabel(tr("Select Download Mirror For:"), this);
  makeHeading(*heading);
  auto* const map = new ElidedLabel(this);
  map->setObjectName("lblMap");
  map->setAccessibleName(tr("Map"));
  makeHeading(*map);
  bindings().bindLabel(*map, model_.lblMap);
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap);
  row->addWidget(heading);
  row->addWidget(map, 1);
  return row;
}

QBoxLayout* MirrorWindow::makeList() {
  list_ = new MirrorListView(model_.lstMirrors, this);
  connect(list_, &MirrorListView::picked, this, [this] { model_.mirrorClicked.fire(); });
  connect(list_, &MirrorListView::removeAsked, this, [this] {
    if (model_.cmdRemove.enabled.get()) {
      model_.pressed.fire(MirrorCommand::remove);
    }
  });
  auto* const moves = new QVBoxLayout;
  moves->setSpacing(gap);
  moves->addWidget(makeMove(QStringLiteral("up"), "picUp", tr("Move the mirror up"), MirrorCommand::up));
  moves->addWidget(makeMove(QStringLiteral("down"), "picDown", tr("Move the mirror down"), MirrorCommand::down));
  moves->addStretch(1);
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap);
  row->addWidget(list_, 1);
  row->addLayout(moves);
  return row;
}

LvButton* MirrorWindow::makeMove(const QString& icon, const char* name, const QString& text, MirrorCommand command) {
  auto* const button = new LvButton(this);
  button->setObjectName(name);
  button->setIcon(pictureIcon(icon, palette().color(QPalette::ButtonText)));
  button->setFixedSize(moveSide, moveSide);
  button->setAccessibleName(text);
  button->setToolTip(text);
  button->setFocusPolicy(Qt::StrongFocus);
  connect(button, &QPushButton::clicked, this, [this, command] { model_.pressed.fire(command); });
  return button;
}

QBoxLayout* MirrorWindow::makeListButtons() {
  QPushButton* const add = makePress(model_.cmdAdd, "cmdAdd", 'A', MirrorCommand::add);
  QPushButton* const remove = makePress(model_.cmdRemove, "cmdRemove", 'R', MirrorCommand::remove);
  QPushButton* const maps = makePress(model_.cmdURL, "cmdURL", 'L', MirrorCommand::mapList);
  maps->setToolTip(tr("Shows the maps that the selected mirror has"));
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap);
  row->addWidget(add);
  row->addWidget(remove);
  row->addStretch(1);
  row->addWidget(maps);
  return row;
}

QBoxLayout* MirrorWindow::makeSite() {
  auto* const picture = new QLabel(this);
  picture->setObjectName("picMirror");
  picture->setPixmap(pictureIcon(QStringLiteral("globe"), theme::dimText).pixmap(16, 16));
  bindings().bindVisible(*picture, model_.picMirror);
  auto* const heading = new QLabel(this);
  makeDim(*heading);
  bindings().bindLabel(*heading, model_.lblUrl1);
  auto* const site = new LvButton(this);
  site->setObjectName("lblURL");
  site->control().setButtonStyle(4);
  site->setCursor(Qt::PointingHandCursor);
  QPalette link = site->palette();
  link.setColor(QPalette::ButtonText, theme::focus);
  site->setPalette(link);
  auto* const shown = new ElidedLabel(site);
  shown->setAttribute(Qt::WA_TransparentForMouseEvents);
  shown->setForegroundRole(QPalette::ButtonText);
  bindings().bindLabel(*shown, model_.lblURL);
  auto* const inside = new QHBoxLayout(site);
  inside->setContentsMargins(gap, 0, gap, 0);
  inside->addWidget(shown);
  site->setAccessibleName(tr("Visit the mirror's website"));
  bindings().bindVisible(*site, model_.lblURL.visible);
  connect(site, &QPushButton::clicked, this, [this] { model_.pressed.fire(MirrorCommand::visitSite); });
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap);
  row->addWidget(picture);
  row->addWidget(heading);
  row->addWidget(site, 1);
  return row;
}

QBoxLayout* MirrorWindow::makeCache() {
  auto* const cached = new QLabel(this);
  makeDim(*cached);
  bindings().bindLabel(*cached, model_.lblCached);
  bindings().bindVisible(*cached, model_.hasCache);
  auto* const box = new QCheckBox(this);
  box->setObjectName("chkCache");
  bindings().bindCheckBox(*box, model_.chkCache);
  bindings().bindVisible(*box, model_.hasCache);
  connect(box, &QCheckBox::clicked, this, [this] { model_.pressed.fire(MirrorCommand::cache); });
  auto* const column = new QVBoxLayout;
  column->setSpacing(0);
  column->addWidget(cached);
  column->addWidget(box);
  return column;
}

// As high as its longest text, so that nothing moves when it comes.
QWidget* MirrorWindow::makeNotice() {
  auto* const notice = new QLabel(this);
  notice->setObjectName("lblInfo");
  notice->setTextFormat(Qt::PlainText);
  notice->setWordWrap(true);
  notice->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
  notice->setMinimumHeight(2 * notice->fontMetrics().lineSpacing() + 2);
  bindings().bindLabel(*notice, model_.lblInfo);
  return notice;
}

QBoxLayout* MirrorWindow::makeProgress() {
  auto* const status = new ElidedLabel(this);
  status->setObjectName("lblStatus");
  bindings().bindNumber(*status, model_.lblStatus.caption);
  auto* const bar = new QProgressBar(this);
  bar->setObjectName("pb1");
  bar->setRange(0, 100);
  bar->setTextVisible(false);
  bar->setFixedHeight(barHeight);
  bar->setAccessibleName(tr("Progress of the download"));
  const auto show = [this, bar] { bar->setValue(model_.pb1.get()); };
  show();
  bindings().keep(model_.pb1.changed.connect(show));
  auto* const figures = new QHBoxLayout;
  figures->setSpacing(wideGap);
  auto* const percent = new QLabel(this);
  percent->setObjectName("lblPercent");
  auto* const bytes = new QLabel(this);
  bytes->setObjectName("lblBytes");
  auto* const left = new QLabel(tr("Time left:"), this);
  auto* const time = new QLabel(this);
  time->setObjectName("lblTime");
  bindings().bindNumber(*percent, model_.lblPercent.caption);
  bindings().bindNumber(*bytes, model_.lblBytes.caption);
  bindings().bindNumber(*time, model_.lblTime.caption);
  for (QLabel* const dim : {bytes, left, time}) {
    makeDim(*dim);
  }
  figures->addWidget(percent);
  figures->addWidget(bytes);
  figures->addStretch(1);
  figures->addWidget(left);
  figures->addWidget(time);
  auto* const column = new QVBoxLayout;
  column->setSpacing(gap);
  column->addWidget(status);
  column->addWidget(bar);
  column->addLayout(figures);
  return column;
}

QBoxLayout* MirrorWindow::makeTransferButtons() {
  QPushButton* const download = makePress(model_.cmdDL, "cmdDL", 'D', MirrorCommand::download);
  makePrimary(*download);
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap);
  row->addWidget(download);
  row->addStretch(1);
  row->addWidget(makePress(model_.cmdPause, "cmdPause", 'P', MirrorCommand::pause));
  row->addWidget(makePress(model_.cmdResume, "cmdResume", 'e', MirrorCommand::resume));
  row->addWidget(makePress(model_.cmdCancel, "cmdCancel", 'C', MirrorCommand::cancel));
  return row;
}

}  // namespace vantrel
