#include "desktop/pages/ToolsPage.h"

#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/controls/PlainText.h"
#include "desktop/controls/TextField.h"
#include "desktop/pages/PageParts.h"
#include "desktop/pages/ToolsList.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int hintMargin = 36;
constexpr int largeIcon = 44;
constexpr int pathGap = 8;  // above the path

class LargeToolIcon : public QWidget {
 public:
  explicit LargeToolIcon(QWidget* parent) : QWidget(parent) { setFixedHeight(largeIcon); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    const QRectF place((width() - largeIcon) / 2.0, 0, largeIcon, largeIcon);
    paintToolIcon(painter, place, palette().color(QPalette::PlaceholderText));
  }
};

QLabel* makeLine(const QString& text, QPalette::ColorRole role, QWidget* parent) {
  auto* const line = new QLabel(text, parent);
  line->setTextFormat(Qt::PlainText);
  line->setForegroundRole(role);
  line->setAlignment(Qt::AlignCenter);
  line->setWordWrap(true);
  return line;
}

}  // namespace

ToolsPage::ToolsPage(frmMain& window, Commands& commands, QWidget* parent)
    : PagePanel(window.picTools, "picTools", parent) {
  setAccessibleName(tr("Tools"));
  PageParts parts(bindings(), window, commands);
  QVBoxLayout* const column = leftColumn(content());
  column->addWidget(parts.heading(9, content()));
  auto* const tools = new ToolsList(window.lstApps, content());
  column->addWidget(tools, 1);
  auto* const inList = new QVBoxLayout(tools->viewport());
  inList->setContentsMargins(0, 0, 0, 0);
  inList->addWidget(makeHint(window.lstApps, tools->viewport()));
  auto* const row = new QHBoxLayout;
  row->addStretch(1);
  QPushButton* const launch = parts.button(command::launchTool, content(), 'U', tr("Starts the tool that is selected"));
  row->addWidget(launch);
  column->addLayout(row);
  connect(tools, &ToolsList::startAsked, launch, &QPushButton::click);
}

QWidget* ToolsPage::makeHint(FileListBox& list, QWidget* parent) {
  auto* const hint = new QWidget(parent);
  hint->setObjectName("noTools");
  auto* const column = new QVBoxLayout(hint);
  column->setContentsMargins(hintMargin, page::gap, hintMargin, page::gap);
  column->setSpacing(page::gap);
  QLabel* const title = makeLine(tr("No tools yet"), QPalette::Text, hint);
  QFont bold = title->font();
  bold.setBold(true);
  title->setFont(bold);
  QLabel* const how = makeLine(tr("Put programs into the folder \"plugins\" beside Vantrel CE, and they stand here "
                                  "from its next start on."),
                               QPalette::PlaceholderText, hint);
  column->addStretch(2);
  column->addWidget(new LargeToolIcon(hint));
  column->addWidget(title);
  column->addWidget(how);
  column->addSpacing(pathGap);
  column->addWidget(makePath(list, hint));
  column->addStretch(3);
  const auto show = [hint, how, parent, &list] {
    const bool isEmpty = list.files.count() == 0;
    hint->setVisible(isEmpty);
    parent->parentWidget()->setAccessibleDescription(isEmpty ? how->text() : QString());
  };
  show();
  bindings().keep(list.files.changed.connect(show));
  return hint;
}

QWidget* ToolsPage::makePath(FileListBox& list, QWidget* parent) {
  auto* const path = new TextField(parent);
  path->setObjectName("toolsPath");
  path->setAccessibleName(tr("Folder of the tools"));
  path->setReadOnly(true);
  const auto show = [path, &list] {
    const QString text = QFile::decodeName(QByteArray::fromStdString(list.path.get()));
    path->showText(text);
    path->setToolTip(plainToolTip(text));
    path->setVisible(!text.isEmpty());
  };
  show();
  bindings().keep(list.path.changed.connect(show));
  return path;
}

}  // namespace vantrel
