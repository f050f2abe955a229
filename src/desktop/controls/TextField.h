// A box of one line of text that offers each key and each paste to its listener before it takes effect.
#pragma once

#include <QLineEdit>
#include <functional>
#include <string>

#include "platform/Controls.h"

namespace vantrel {

class TextField : public QLineEdit {
  Q_OBJECT

 public:
  explicit TextField(QWidget* parent = nullptr);

  // Shows a text that does not come from the user.
  void showText(const QString& text);

  // Each replaces the listener before. The one for keys may wait.
  void onKey(std::function<void(KeyPress&)> listener) { keyListener_ = std::move(listener); }
  void onPaste(std::function<void(std::string&)> listener) { pasteListener_ = std::move(listener); }

 Q_SIGNALS:
  // The user has changed the text.
  void edited(const QString& text);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void takeEdit(const QString& text);

  std::function<void(KeyPress&)> keyListener_;
  std::function<void(std::string&)> pasteListener_;
  QString before_;       // the text before the edit that is under way
  bool typing_ = false;  // the edit comes from a key
};

}  // namespace vantrel
