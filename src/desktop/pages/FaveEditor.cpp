#include "desktop/pages/FaveEditor.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "desktop/controls/PlainText.h"
#include "desktop/controls/TextField.h"
#include "desktop/controls/Theme.h"
#include "desktop/pages/PageCard.h"
#include "desktop/pictures/SvgPicture.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int shortBox = 64;  // pixels at 100 %, for a number
constexpr int rowGap = 5;
constexpr int longestLine = 1000;  // characters; more never fit

// A line is as wide as the list, whatever stands in it: a longer text is cut off with dots.
class LineDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
  }
};

// Both kinds of change, of the lines and of the selected one, are shown in one go.
void showLines(QListWidget& widget, const ListBox& list) {
  widget.clear();
  for (int i = 0; i < list.count(); ++i) {
    const QString text = oneLine(fromCp1252(list.line(i)));
    auto* const line = new QListWidgetItem(text.left(longestLine), &widget);
    line->setToolTip(plainToolTip(text));
  }
}

}  // namespace

FaveEditor::FaveEditor(frmMain& window, Commands& commands, QWidget* parent)
    : PagePanel(window.picFaves2, "picFaves2", parent), window_(window), parts_(bindings(), window, commands) {
  setAccessibleName(tr("Favorites editor"));
  auto* const beside = new QVBoxLayout(content());
  beside->setContentsMargins(page::half, page::topBeside, page::edge, 0);
  auto* const card = new PageCard(content());
  beside->addWidget(card);
  auto* const column = new QVBoxLayout(card);
  column->setContentsMargins(page::padding, page::gap, page::padding, page::padding);
  column->setSpacing(page::gap);
  column->addWidget(parts_.heading(6, card));
  addBoxes(*column, card);
  column->addWidget(makeLines(card), 1);
  column->addLayout(makeButtons(card));
}

void FaveEditor::addBoxes(QBoxLayout& column, QWidget* card) {
  auto* const grid = new QGridLayout;
  grid->setHorizontalSpacing(page::gap);
  grid->setVerticalSpacing(rowGap);
  grid->setColumnStretch(1, 1);
  const auto addRow = [this, grid, card](int number, char mnemonic, QWidget* box) {
    const int row = grid->rowCount();
    grid->addWidget(parts_.label(number, card, box, mnemonic), row, 0);
    grid->addWidget(box, row, 1);
  };
  TextField* const id = parts_.box("txtID", window_.txtID, card);
  id->setMaximumWidth(shortBox);
  addRow(26, 0, id);
  addRow(27, 'N', parts_.box("txtServerName", window_.txtServerName, card));
  addRow(
      28, 0,
      parts_.box("txtIP2", window_.txtIP2, card, tr("An address with a port, as in 192.0.2.1:2302, fills both boxes")));
  TextField* const port = parts_.box("txtPort2", window_.txtPort2, card);
  port->setMaximumWidth(shortBox);
  addRow(29, 0, port);
  addRow(30, 'Y',
         parts_.comboBox("cmbGameType", window_.cmbGameType, PageParts::Text::free, card,
                         tr("Choose one, or type your own")));
  addRow(31, 'W', makePassword(card));
  column.addLayout(grid);
}

// The password is dots until the user asks to read it, and again as soon as the editor is out of sight.
TextField* FaveEditor::makePassword(QWidget* card) {
  TextField* const box = parts_.box("txtPass", window_.txtPass, card, tr("Handed to the server when you join it"));
  box->setEchoMode(QLineEdit::Password);
  auto* const show = new QAction(box);
  show->setCheckable(true);
  show->setShortcut(Qt::ALT | Qt::Key_Z);
  const auto apply = [box, show](bool readable) {
    box->setEchoMode(readable ? QLineEdit::Normal : QLineEdit::Password);
    show->setIcon(pictureIcon(readable ? QStringLiteral("crossed-eye") : QStringLiteral("eye"), theme::dimText));
    show->setToolTip(readable ? tr("Hide the password (Alt+Z)") : tr("Show the password (Alt+Z)"));
  };
  apply(false);
  connect(show, &QAction::toggled, box, apply);
  box->addAction(show, QLineEdit::TrailingPosition);
  bindings().keep(window_.picFaves2.visible.changed.connect([show] { show->setChecked(false); }));
  return box;
}

QListWidget* FaveEditor::makeLines(QWidget* card) {
  auto* const lines = new QListWidget(card);
  lines->setObjectName("List1");
  lines->setAccessibleName(tr("About the selected favorite"));
  lines->setSelectionMode(QAbstractItemView::NoSelection);
  lines->setTabKeyNavigation(false);
  lines->setSpacing(1);
  lines->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lines->setItemDelegate(new LineDelegate(lines));
  const auto show = [lines, this] { showLines(*lines, window_.List1); };
  show();
  bindings().keep(window_.List1.changed.connect(show));
  return lines;
}

QBoxLayout* FaveEditor::makeButtons(QWidget* card) {
  auto* const row = new QHBoxLayout;
  row->setSpacing(page::gap);
  row->addWidget(parts_.button(command::addFave, card, 0, tr("Adds what stands in the boxes as a new favorite")));
  row->addWidget(
      parts_.button(command::updateFave, card, 'U', tr("Writes what stands in the boxes over the selected favorite")));
  row->addStretch(1);
  QPushButton* const clear = parts_.button(command::clearFaveEditor, card, 0, tr("Clear the editor"));
  clear->setIcon(pictureIcon(QStringLiteral("clear"), theme::text));
  clear->setAccessibleName(tr("Clear the editor"));
  row->addWidget(clear);
  return row;
}

}  // namespace vantrel
