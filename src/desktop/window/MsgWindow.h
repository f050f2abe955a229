// The view of frmMsg: a small window above the main one, which asks a question and leaves the main window usable. The
// model alone shows and hides it: an answer, Escape and the close box are only told.
#pragma once

#include <QDialog>
#include <QPointer>

#include "core/SideWindows.h"
#include "desktop/controls/Bindings.h"

class QBoxLayout;
class QCheckBox;
class QPushButton;

namespace vantrel {

class MsgWindow : public QDialog {
  Q_OBJECT

 public:
  // `model` must outlive the window. It comes up above `owner`.
  MsgWindow(frmMsg& model, QWidget* owner);

  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void build();
  QBoxLayout* makeQuestion();
  QCheckBox* makeNever();
  QWidget* makeAnswers();
  QPushButton* makeYes();
  QPushButton* makeNo();
  QPushButton* makeStatus();
  QPushButton* makeButton(Button& model, const char* name, char mnemonic = 0);
  void bindWindow();
  void present();
  void place();

  frmMsg& model_;
  QPointer<QWidget> owner_;
  QWidget* answers_ = nullptr;
  QPushButton* yes_ = nullptr;
  Bindings bindings_;
};

}  // namespace vantrel
