#include "desktop/pages/HelpPanel.h"

#include <QTextCursor>
#include <QVBoxLayout>

#include "desktop/pages/PageCard.h"
#include "desktop/pages/PageParts.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr qreal headingGap = 9;    // above a heading, in pixels at 100 %
constexpr qreal paragraphGap = 3;  // above any other paragraph
constexpr qreal textMargin = 8;

bool isHeading(const QString& line) {
  return line.endsWith(QLatin1Char(':'));
}

// The text goes in as characters, never as markup, whatever stands in it.
void addLine(QTextCursor& cursor, QString line) {
  const bool heading = isHeading(line);
  if (heading) {
    line.chop(1);
  }
  QTextBlockFormat block;
  block.setTopMargin(cursor.atStart() ? 0 : heading ? headingGap : paragraphGap);
  block.setHeadingLevel(heading ? 2 : 0);
  QTextCharFormat characters;
  characters.setFontWeight(heading ? QFont::Bold : QFont::Normal);
  if (!cursor.atStart()) {
    cursor.insertBlock();
  }
  cursor.setBlockFormat(block);
  cursor.setBlockCharFormat(characters);
  cursor.insertText(line, characters);
}

}  // namespace

HelpPanel::HelpPanel(frmMain& window, Commands& /*commands*/, QWidget* parent)
    : PagePanel(window.picRef, "picRef", parent) {
  auto* const card = new PageCard(content());
  auto* const beside = new QVBoxLayout(content());
  beside->setContentsMargins(page::half, page::topBeside, page::edge, page::top);
  beside->addWidget(card);
  text_ = new QTextEdit(card);
  text_->setObjectName("txtFAQ");
  text_->setAccessibleName(tr("Help"));
  text_->setReadOnly(true);
  text_->setUndoRedoEnabled(false);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text_->setFocusPolicy(Qt::StrongFocus);
  text_->setTabChangesFocus(true);
  text_->document()->setDocumentMargin(textMargin);
  auto* const filled = new QVBoxLayout(card);
  filled->setContentsMargins(0, 0, 0, 0);
  filled->addWidget(text_);
  const auto show = [this, &window] { showText(fromCp1252(window.txtFAQ.caption.get())); };
  show();
  bindings().keep(window.txtFAQ.caption.changed.connect(show));
  bindings().bindVisible(*text_, window.txtFAQ.visible);
}

void HelpPanel::showText(const QString& text) {
  text_->clear();
  QTextCursor cursor(text_->document());
  cursor.beginEditBlock();
  for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
    addLine(cursor, line.trimmed());
  }
  cursor.endEditBlock();
  cursor.movePosition(QTextCursor::Start);
  text_->setTextCursor(cursor);
}

}  // namespace vantrel
