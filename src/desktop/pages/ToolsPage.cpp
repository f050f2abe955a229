#include "desktop/pages/ToolsPage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/pages/PageParts.h"

namespace vantrel {

ToolsPage::ToolsPage(frmMain& window, Commands& commands, QWidget* parent)
    : PagePanel(window.picTools, "picTools", parent) {
  setAccessibleName(tr("Tools"));
  PageParts parts(bindings(), window, commands);
  QVBoxLayout* const column = leftColumn(content());
  column->addWidget(parts.heading(9, content()));
  auto* const tools = new QListWidget(content());
  tools->setObjectName("lstApps");
  tools->setAccessibleName(tr("Tools"));
  tools->setTabKeyNavigation(false);
  column->addWidget(tools, 1);
  auto* const row = new QHBoxLayout;
  row->addStretch(1);
  row->addWidget(parts.button(command::launchTool, content(), 'U', tr("Starts the tool that is selected")));
  column->addLayout(row);
}

}  // namespace vantrel
