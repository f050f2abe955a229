// What the windows beside the main one have in common: the model alone shows and hides them, Escape and the close box
// are only told, and they come up beside the main window, or where the user has put them.
#pragma once

#include <QPointer>
#include <QWidget>

#include "desktop/controls/Bindings.h"

class QLabel;
class QPushButton;

namespace vantrel {

class SideWindow : public QWidget {
  Q_OBJECT

 public:
  // How the window comes up while the user works in another one.
  enum class Coming { active, quiet };

  // The model of such a window; all of it must outlive the window.
  struct Model {
    Field<bool>& visible;
    Field<std::string>& caption;
    Signal<>& closed;
  };

  // `down`: pixels at 100 % below the upper edge of `owner`, where it comes up first.
  SideWindow(const char* name, const Model& model, Coming coming, int down, QWidget* owner);

 protected:
  Bindings& bindings() { return bindings_; }
  // To be called when the window is built: shows it if the model says so.
  void follow();
  // Brings the window to the front whenever the model wants it there.
  void followFocus(Signal<>& focusWanted);
  // Bold, with what the window is about.
  QLabel* makeTitle(const QString& text);
  // A button of the model; a press is told with `press`. `mnemonic`: a letter of the caption or 0.
  QPushButton* makeButton(Button& model, const char* name, char mnemonic, std::function<void()> press);

  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void present();
  void place();

  Model model_;
  int down_;
  QPointer<QWidget> owner_;
  bool placed_ = false;
  Bindings bindings_;
};

}  // namespace vantrel
