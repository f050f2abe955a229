#include "desktop/window/ColorsWindow.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "desktop/controls/ColorChart.h"
#include "desktop/controls/ColorSwatches.h"
#include "desktop/controls/Inks.h"
#include "desktop/controls/TextField.h"
#include "desktop/controls/Theme.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int margin = 12;
constexpr int gap = 6;
constexpr int wideGap = 12;
constexpr int rolesWidth = 150;
constexpr int shownHeight = 40;
constexpr int down = 60;  // below the main window's upper edge

constexpr QColor viewsGround{224, 224, 224};  // behind the black labels of the views

// The colour being edited.
class CurrentColor : public QWidget {
 public:
  CurrentColor(Field<Color>& color, QWidget* parent) : QWidget(parent), color_(color) {
    setObjectName("CurColor");
    setAccessibleName(QObject::tr("Current color"));
    setFixedHeight(shownHeight);
    const auto show = [this] {
      setAccessibleDescription(screenColor(color_.get()).name().toUpper());
      setToolTip(accessibleDescription());
      update();
    };
    show();
    changed_ = color.changed.connect(show);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme::dimText);
    painter.setBrush(screenColor(color_.get()));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  }

 private:
  Field<Color>& color_;
  Connection changed_;
};

// A label that is pressed like a button.
class ViewLabel : public QLabel {
 public:
  ViewLabel(frmColors& model, int number, QWidget* parent) : QLabel(parent), model_(model), number_(number) {
    setObjectName(QStringLiteral("ViewAs%1").arg(number));
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setMargin(3);
  }

 protected:
  void mousePressEvent(QMouseEvent* /*event*/) override { model_.viewAsPressed.fire(number_); }
  void mouseReleaseEvent(QMouseEvent* event) override {
    model_.viewAsReleased.fire(number_);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
      model_.viewAsClicked.fire(number_);
    }
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      model_.viewAsClicked.fire(number_);
    } else {
      QLabel::keyPressEvent(event);
    }
  }
  void paintEvent(QPaintEvent* event) override {
    QLabel::paintEvent(event);
    if (hasFocus()) {
      QPainter painter(this);
      painter.setPen(theme::strong);
      painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
  }

 private:
  frmColors& model_;
  int number_;
};

}  // namespace

ColorsWindow::ColorsWindow(frmColors& model, QWidget* owner)
    : SideWindow("frmColors", {model.visible, model.caption, model.closed}, Coming::active, down, owner),
      model_(model) {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(margin, gap, margin, margin);
  column->setSpacing(wideGap);
  addMenu(*column);
  auto* const top = new QHBoxLayout;
  top->setSpacing(wideGap);
  top->addLayout(makeRoles());
  top->addLayout(makePickers(), 1);
  column->addLayout(top, 1);
  column->addLayout(makeBoxes());
  auto* const note = new QLabel(this);
  note->setObjectName("lblNote");
  bindings().bindLabel(*note, model_.lblNote);
  column->addWidget(note);
  column->addLayout(makeButtons());
  follow();
  followFocus(model_.focusWanted);
}

void ColorsWindow::addMenu(QBoxLayout& column) {
  auto* const bar = new QMenuBar(this);
  QMenu* const copy = bar->addMenu(tr("&Copy to clipboard"));
  const auto add = [this](QMenu* menu, const char* name, const QString& text, ColorCommand command) {
    QAction* const action = menu->addAction(text);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [this, command] { model_.pressed.fire(command); });
    return action;
  };
  add(copy, "mnuRGB", tr("&RGB"), ColorCommand::copyRgb);
  add(copy, "mnuHex", tr("&HEX"), ColorCommand::copyHex);
  add(copy, "mnuLong", tr("&Long"), ColorCommand::copyLong);
  QAction* const exit = bar->addAction(tr("E&xit"));
  exit->setObjectName("mnuExit");
  connect(exit, &QAction::triggered, this, [this] { model_.pressed.fire(ColorCommand::exit); });
  column.setMenuBar(bar);
}

QBoxLayout* ColorsWindow::makeRoles() {
  auto* const list = new QListWidget(this);
  list->setObjectName("lstColor");
  list->setAccessibleName(tr("What to colorize"));
  list->setFixedWidth(rolesWidth);
  list->setTabKeyNavigation(false);
  list->setSpacing(1);
  for (int i = 0; i < model_.lstColor.count(); ++i) {
    list->addItem(fromCp1252(model_.lstColor.line(i)));
  }
  const auto show = [this, list] {
    const QSignalBlocker quiet(list);
    list->setCurrentRow(model_.lstColor.selected());
  };
  show();
  bindings().keep(model_.lstColor.changed.connect(show));
  connect(list, &QListWidget::currentRowChanged, this, [this](int row) {
    model_.lstColor.select(row);
    model_.roleClicked.fire();
  });
  auto* const column = new QVBoxLayout;
  column->setSpacing(gap);
  column->addWidget(makeTitle(tr("What to colorize")));
  column->addWidget(list, 1);
  column->addWidget(new CurrentColor(model_.CurColor, this));
  return column;
}

QBoxLayout* ColorsWindow::makePickers() {
  auto* const chart = new ColorChart(this);
  chart->setObjectName("Picker");
  chart->setAccessibleName(tr("Color chart"));
  connect(chart, &ColorChart::picked, this, [this](Color color) { model_.pickerPressed.fire(color); });
  auto* const swatches = new ColorSwatches(model_.MiniPicker, this);
  swatches->setAccessibleName(tr("Basic colors"));
  connect(swatches, &ColorSwatches::pressed, this, [this](int number) { model_.miniPickerPressed.fire(number); });
  auto* const automatic = new QCheckBox(this);
  automatic->setObjectName("chkAuto");
  bindings().bindCheckBox(*automatic, model_.chkAuto);
  automatic->setAccessibleName(automatic->text());
  auto* const row = new QHBoxLayout;
  row->setSpacing(wideGap);
  row->addWidget(chart, 1);
  row->addWidget(swatches, 0, Qt::AlignTop);
  auto* const column = new QVBoxLayout;
  column->setSpacing(gap);
  column->addWidget(makeTitle(tr("Color")));
  column->addLayout(row, 1);
  column->addWidget(automatic);
  return column;
}

QWidget* ColorsWindow::makeViews() {
  auto* const strip = new QWidget(this);
  QPalette light = strip->palette();
  light.setColor(QPalette::Window, viewsGround);
  strip->setPalette(light);
  strip->setAutoFillBackground(true);
  strip->setFixedWidth(rolesWidth);
  auto* const row = new QHBoxLayout(strip);
  row->setContentsMargins(2, 1, 2, 1);
  row->setSpacing(0);
  for (int i = 0; i < 3; ++i) {
    auto* const label = new ViewLabel(model_, i, strip);
    Label& view = model_.ViewAs[static_cast<std::size_t>(i)];
    bindings().bindLabel(*label, view);
    label->setAccessibleName(tr("View as %1").arg(label->text().remove(QLatin1Char('[')).remove(QLatin1Char(']'))));
    row->addWidget(label, 1);
  }
  return strip;
}

QBoxLayout* ColorsWindow::makeBoxes() {
  auto* const row = new QHBoxLayout;
  row->setSpacing(wideGap);
  row->addWidget(makeViews());
  addBox(*row, "R", tr("R:"), model_.R);
  addBox(*row, "G", tr("G:"), model_.G);
  addBox(*row, "B", tr("B:"), model_.B);
  addBox(*row, "HEXvalue", tr("HEX:"), model_.HEXvalue);
  addBox(*row, "LongValue", tr("Long:"), model_.LongValue);
  row->addStretch(1);
  return row;
}

void ColorsWindow::addBox(QBoxLayout& row, const char* name, const QString& caption, TextBox& model) {
  auto* const both = new QWidget(this);
  auto* const inside = new QHBoxLayout(both);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->setSpacing(gap);
  auto* const box = new TextField(both);
  box->setObjectName(name);
  box->setAccessibleName(QString(caption).remove(QLatin1Char(':')));
  box->setFixedWidth(name[1] == '\0' ? 44 : 84);
  bindings().bindTextBox(*box, model);
  inside->addWidget(new QLabel(caption, both));
  inside->addWidget(box);
  bindings().bindVisible(*both, model.visible);
  row.addWidget(both);
}

QPushButton* ColorsWindow::makePress(Button& model, const char* name, char mnemonic, ColorCommand command) {
  return makeButton(model, name, mnemonic, [this, command] { model_.pressed.fire(command); });
}

QBoxLayout* ColorsWindow::makeButtons() {
  QPushButton* const colorize = makePress(model_.cmdColorize, "cmdColorize", 'z', ColorCommand::colorize);
  makePrimary(*colorize);
  QPushButton* const dark = makePress(model_.Command2, "Command2", 'd', ColorCommand::darkText);
  QPushButton* const light = makePress(model_.Command3, "Command3", 'l', ColorCommand::lightText);
  dark->setToolTip(tr("Makes the labels black, until they are painted again"));
  light->setToolTip(tr("Makes the labels white, until they are painted again"));
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap);
  row->addWidget(dark);
  row->addWidget(light);
  row->addStretch(1);
  row->addWidget(colorize);
  return row;
}

}  // namespace vantrel
