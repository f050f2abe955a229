#include "desktop/pages/SummaryPanel.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "desktop/controls/ElidedLabel.h"
#include "desktop/controls/IndicatorPicture.h"
#include "desktop/controls/InfoBox.h"
#include "desktop/controls/LvButton.h"
#include "desktop/controls/OptionPair.h"
#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

// The teams' list lies over the panel, with its left and right side where those of the panel's content are. All in
// pixels at 100 %, from the panel's upper edge.
constexpr int leftInset = 12;
constexpr int rightInset = 10;
constexpr int factsTop = 26;
constexpr int teamsTop = 212;
constexpr int actionsTop = 284;

constexpr int lineHeight = 18;
constexpr int actionGap = 8;
constexpr int gap = 8;
constexpr int boxMargin = 8;  // in an info box, on either side
constexpr int boxInset = 3;   // above and below
constexpr int pingWidth = 72;

constexpr std::pair<int, int> facts[] = {{1, 6}, {2, 7}, {3, 8}, {5, 9}, {11, 10}};  // caption and value in lblText
constexpr int scoreLine = 4;

QBoxLayout* makeRow() {
  auto* const row = new QHBoxLayout;
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(gap);
  return row;
}

QBoxLayout* makeColumn(QWidget* widget) {
  auto* const column = new QVBoxLayout(widget);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  return column;
}

}  // namespace

SummaryPanel::SummaryPanel(frmMain& window, Commands& commands, QWidget* parent)
    : PagePanel(window.picScore, "picScore", parent), window_(window), commands_(commands) {
  content()->setAccessibleName(tr("Game summary"));
  auto* const column = new QVBoxLayout(content());
  column->setContentsMargins(leftInset, factsTop, rightInset, 0);
  column->setSpacing(0);
  QWidget* const shown = makeFacts();
  shown->setFixedHeight(teamsTop - factsTop);
  column->addWidget(shown);
  column->addSpacing(actionsTop - teamsTop);
  column->addWidget(makeActions());
  column->addStretch(1);
  bindings().bindUncovered(*this, window.picScore.visible, window.PicAbout.visible);
}

QWidget* SummaryPanel::makeFacts() {
  auto* const part = new QWidget(content());
  QBoxLayout* const column = makeColumn(part);
  column->addWidget(makeHeadingBand());
  auto* const server = new ElidedLabel(part);
  server->setObjectName("lblData");
  server->setAccessibleName(tr("Server name"));
  server->setFixedHeight(lineHeight);
  bindings().bindLabel(*server, window_.lblData);
  column->addWidget(server);
  auto* const box = new InfoBox(window_.shpInfo[infoBox::summary], infoBox::summary, part);
  auto* const inside = new QVBoxLayout(box);
  inside->setContentsMargins(boxMargin, boxInset, boxMargin, boxInset);
  inside->setSpacing(0);
  auto* const score = new ElidedLabel(box);
  score->setObjectName("lblText4");
  score->setAccessibleName(tr("Score"));
  score->setFixedHeight(lineHeight);
  bindings().bindLabel(*score, window_.lblText[scoreLine]);
  inside->addWidget(score);
  inside->addWidget(makeColumns(box));
  column->addWidget(box);
  column->addStretch(1);
  return part;
}

QWidget* SummaryPanel::makeHeadingBand() {
  auto* const band = new QWidget(content());
  band->setFixedHeight(24);
  QBoxLayout* const column = makeColumn(band);
  auto* const heading = new QLabel(band);
  heading->setObjectName("lblText2_1");
  makeHeading(*heading);
  bindings().bindLabel(*heading, window_.lblText2[1]);
  column->addWidget(heading);
  return band;
}

QWidget* SummaryPanel::makeColumns(QWidget* box) {
  auto* const both = new QWidget(box);
  auto* const left = new QWidget(both);
  auto* const right = new QWidget(both);
  QBoxLayout* const captions = makeColumn(left);
  QBoxLayout* const values = makeColumn(right);
  for (const auto& [caption, value] : facts) {
    addFact(*captions, *values, caption, value);
  }
  addPing(*captions, *values);
  auto* const row = new QHBoxLayout(both);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(12);
  row->addWidget(left);
  row->addWidget(right, 1);
  return both;
}

void SummaryPanel::addFact(QBoxLayout& captions, QBoxLayout& values, int caption, int value) {
  auto* const name = new QLabel(captions.parentWidget());
  auto* const shown = new ElidedLabel(values.parentWidget());
  for (const auto& [label, number] : {std::pair<QLabel*, int>(name, caption), std::pair<QLabel*, int>(shown, value)}) {
    label->setObjectName(QStringLiteral("lblText%1").arg(number));
    label->setFixedHeight(lineHeight);
    bindings().bindLabel(*label, window_.lblText[static_cast<std::size_t>(number)]);
  }
  shown->setAccessibleName(name->text());
  captions.addWidget(name);
  values.addWidget(shown);
}

void SummaryPanel::addPing(QBoxLayout& captions, QBoxLayout& values) {
  auto* const name = new QLabel(tr("Ping:"), captions.parentWidget());
  auto* const shown = new ElidedLabel(values.parentWidget());
  name->setFixedHeight(lineHeight);
  shown->setFixedHeight(lineHeight);
  shown->setObjectName("txtPing");
  shown->setAccessibleName(tr("Ping"));
  bindings().bindShownText(*shown, window_.txtPing);
  QPalette field = shown->palette();
  field.setColor(QPalette::Window, field.color(QPalette::Base));
  shown->setPalette(field);
  shown->setAutoFillBackground(true);
  shown->setFixedWidth(pingWidth);
  shown->setMargin(1);
  captions.addWidget(name);
  values.addWidget(shown);
}

QWidget* SummaryPanel::makeActions() {
  auto* const part = new QWidget(content());
  auto* const rows = new QVBoxLayout(part);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(actionGap);
  rows->addLayout(makeMapRow());
  rows->addLayout(makeRefreshRow());
  auto* const exportSummary = new LvButton(part);
  exportSummary->setToolTip(tr("Writes the summary of this game to a file"));
  bindings().bindCommand(*exportSummary, window_, commands_, command::exportSummary, 'X');
  QBoxLayout* const last = makeRow();
  last->addStretch(1);
  last->addWidget(exportSummary);
  rows->addLayout(last);
  return part;
}

QBoxLayout* SummaryPanel::makeMapRow() {
  QBoxLayout* const row = makeRow();
  auto* const caption = new QLabel(content());
  caption->setObjectName("lblText2_11");
  bindings().bindLabel(*caption, window_.lblText2[11]);
  auto* const download = new LvButton(content());
  download->setToolTip(tr("Fetches the map of this game"));
  bindings().bindCommand(*download, window_, commands_, command::downloadMap, 'N');
  row->addWidget(caption);
  row->addStretch(1);
  row->addWidget(download);
  return row;
}

QBoxLayout* SummaryPanel::makeRefreshRow() {
  QBoxLayout* const row = makeRow();
  auto* const box = new InfoBox(window_.shpInfo[infoBox::refresh], infoBox::refresh, content());
  auto* const inside = new QHBoxLayout(box);
  inside->setContentsMargins(boxMargin, boxInset, boxInset, boxInset);
  inside->setSpacing(gap);
  auto* const caption = new QLabel(box);
  caption->setObjectName("lblText21");
  auto* const lamp = new IndicatorPicture(window_.picRefresh, "picRefresh", tr("Auto refresh"), box);
  lamp->setToolTip(tr("Whether the current server is asked again every few seconds"));
  auto* const pair = new OptionPair(bindings(), window_, commands_, {command::autoRefreshOn}, {command::autoRefreshOff},
                                    tr("Auto refresh"), box);
  caption->setBuddy(&pair->left());
  bindings().bindLabel(*caption, window_.lblText[21], 'U');
  inside->addWidget(caption);
  inside->addStretch(1);
  inside->addWidget(lamp);
  inside->addWidget(pair);
  row->addWidget(box);
  return row;
}

}  // namespace vantrel
