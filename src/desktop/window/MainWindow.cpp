#include "desktop/window/MainWindow.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/grid/ServerGridView.h"
#include "desktop/window/Bindings.h"
#include "desktop/window/ProgressLine.h"

namespace vantrel {
namespace {

constexpr int getServerList = 32;

}  // namespace

MainWindow::MainWindow(frmMain& model, Commands& commands, SweepProgress& progress)
    : model_(model), commands_(commands) {
  setObjectName("frmMain");
  setWindowTitle("Marrowind - Vantrel CE");
  auto* const page = new QVBoxLayout(this);
  page->setContentsMargins(0, 0, 0, 0);
  page->setSpacing(0);
  page->addWidget(makeHeader());
  page->addWidget(new ServerGridView(model.grdServers, this), 1);
  page->addWidget(makeFooter(progress));
  resize(760, 553);
  setMinimumSize(520, 320);
}

QWidget* MainWindow::makeHeader() {
  auto* const header = new QFrame(this);
  header->setObjectName("header");
  auto* const row = new QHBoxLayout(header);
  row->setContentsMargins(12, 9, 14, 9);
  row->setSpacing(22);

  auto* const get = new QPushButton(header);
  get->setObjectName("cmdMenu32");
  get->setToolTip(tr("Asks the master server for all game servers and queries each of them"));
  for (Connection& connection : bindButton(*get, model_.cmdMenu[getServerList])) {
    connections_.push_back(std::move(connection));
  }
  connect(get, &QPushButton::clicked, this, [this] { commands_.cmdMenu_Click(getServerList); });
  get->setFocus();

  row->addWidget(get);
  row->addStretch(1);
  addTotal(*row, "txtPlayers", tr("Players"), model_.txtPlayers);
  addTotal(*row, "txtCTF", tr("CTF"), model_.txtCTF);
  addTotal(*row, "txtSlayer", tr("Slayer"), model_.txtSlayer);
  addTotal(*row, "txtOther", tr("Other"), model_.txtOther);
  return header;
}

void MainWindow::addTotal(QBoxLayout& row, const char* name, const QString& caption, TextBox& model) {
  auto* const column = new QVBoxLayout;
  column->setSpacing(0);
  auto* const number = new QLabel(this);
  number->setObjectName(name);
  number->setAccessibleName(caption);
  number->setProperty("role", "total");
  number->setAlignment(Qt::AlignRight);
  number->setMinimumWidth(52);
  auto* const label = new QLabel(caption, this);
  label->setProperty("role", "totalCaption");
  label->setAlignment(Qt::AlignRight);
  connections_.push_back(bindText(*number, model));
  column->addWidget(number);
  column->addWidget(label);
  row.addLayout(column);
}

QWidget* MainWindow::makeFooter(SweepProgress& progress) {
  auto* const footer = new ProgressLine(progress, this);
  auto* const row = new QHBoxLayout(footer);
  row->setContentsMargins(0, ProgressLine::barHeight, 14, 0);
  auto* const count = new QLabel(footer);
  count->setObjectName("lblCount");
  count->setAccessibleName(tr("Server count"));
  connections_.push_back(bindCaption(*count, model_.lblCount));
  row->addStretch(1);
  row->addWidget(count);
  return footer;
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  closed.fire();
}

}  // namespace vantrel
