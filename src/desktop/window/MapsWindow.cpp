#include "desktop/window/MapsWindow.h"

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/controls/ElidedLabel.h"
#include "desktop/controls/Theme.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int margin = 12;
constexpr int gap = 6;
constexpr QSize usual{360, 340};

constexpr int shownMaps = 16;            // at a time
constexpr std::size_t mostText = 64000;  // characters of the index; a reader has long had enough

}  // namespace

MapsWindow::MapsWindow(frmMaps& model, QWidget* owner)
    : SideWindow("frmMaps", {model.visible, model.caption, model.closed}, Coming::active, 80, owner), model_(model) {
  setWindowModality(Qt::ApplicationModal);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(gap);
  column->addWidget(makeTitle(tr("Mirror Index")));
  column->addWidget(makeMirror());
  auto* const count = new QLabel(this);
  count->setObjectName("lblCount");
  bindings().bindLabel(*count, model.lblCount);
  column->addWidget(count);
  column->addWidget(makeChoice());
  column->addWidget(makeIndex(), 1);
  QPushButton* const download = makeButton(model.cmdDL, "cmdDL", 'D', [this] { model_.downloadPressed.fire(); });
  makePrimary(*download);
  column->addWidget(download, 0, Qt::AlignRight);
  resize(usual);
  follow();
}

QWidget* MapsWindow::makeMirror() {
  auto* const mirror = new ElidedLabel(this);
  mirror->setObjectName("lblMirror");
  makeDim(*mirror);
  bindings().bindLabel(*mirror, model_.lblMirror);
  return mirror;
}

QWidget* MapsWindow::makeChoice() {
  auto* const maps = new QComboBox(this);
  maps->setObjectName("cmbMaps");
  maps->setAccessibleName(tr("Maps"));
  maps->setMaxVisibleItems(shownMaps);
  maps->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  bindings().bindComboBox(*maps, model_.cmbMaps);
  return maps;
}

QWidget* MapsWindow::makeIndex() {
  auto* const index = new QPlainTextEdit(this);
  index->setObjectName("txtNew");
  index->setReadOnly(true);
  index->setUndoRedoEnabled(false);
  index->setTabChangesFocus(true);
  index->setAccessibleName(tr("Index of the mirror as text"));
  makeDim(*index);
  const auto show = [this, index] { index->setPlainText(fromCp1252(model_.txtNew.text.get().substr(0, mostText))); };
  show();
  bindings().keep(model_.txtNew.text.changed.connect(show));
  return index;
}

}  // namespace vantrel
