#include "desktop/controls/TextField.h"

#include <QKeyEvent>
#include <QPointer>
#include <algorithm>

#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

// 0 for a key that types nothing.
int codeOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return keys::enter;
    case Qt::Key_Backspace:
      return keys::backspace;
    default: {
      // Ctrl with Alt is how some keyboards type; Ctrl alone makes a command.
      if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier) {
        return 0;
      }
      const QString text = event.text();
      return text.isEmpty() || !text[0].isPrint() ? 0 : static_cast<unsigned char>(toCp1252(text)[0]);
    }
  }
}

}  // namespace

TextField::TextField(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::textEdited, this, &TextField::takeEdit);
}

void TextField::showText(const QString& text) {
  if (text != this->text()) {
    setText(text);
  }
  before_ = text;
}

void TextField::keyPressEvent(QKeyEvent* event) {
  KeyPress key{codeOf(*event)};
  if (key.code != 0 && keyListener_) {
    const QPointer<TextField> self(this);
    keyListener_(key);
    if (!self || key.code == 0) {
      event->accept();
      return;
    }
  }
  typing_ = codeOf(*event) != 0;
  QLineEdit::keyPressEvent(event);
  typing_ = false;
}

// What came in by other ways than a key, be it the clipboard, a selection that was dropped or an input method, is the
// part between what the old and the new text have in common at their ends.
void TextField::takeEdit(const QString& text) {
  QString taken = text;
  if (!typing_ && pasteListener_ && text.size() > 0) {
    const auto heads = std::mismatch(text.begin(), text.end(), before_.begin(), before_.end());
    const qsizetype head = heads.first - text.begin();
    qsizetype tail = 0;
    while (tail < std::min(text.size(), before_.size()) - head &&
           text[text.size() - 1 - tail] == before_[before_.size() - 1 - tail]) {
      ++tail;
    }
    std::string inserted = toCp1252(text.mid(head, text.size() - head - tail));
    if (!inserted.empty()) {
      pasteListener_(inserted);
      taken = text.left(head) + fromCp1252(inserted) + text.right(tail);
    }
  }
  if (taken != this->text()) {
    setText(taken);
  }
  before_ = taken;
  Q_EMIT edited(taken);
}

}  // namespace vantrel
