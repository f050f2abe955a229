#include "desktop/window/MsgWindow.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include "desktop/controls/LvButton.h"
#include "desktop/controls/Theme.h"
#include "desktop/text/Cp1252.h"
#include "desktop/window/WindowPlaces.h"

namespace vantrel {
namespace {

// In pixels at 100 %.
constexpr int margin = 18;
constexpr int markSide = 36;
constexpr int markGap = 14;
constexpr int textWidth = 240;
constexpr int tickGap = 14;  // above the check box
constexpr int answersHeight = 48;
constexpr int answerWidth = 84;
constexpr int answerGap = 8;

constexpr qreal questionSize = 9.5;  // points
constexpr qreal markShare = 0.56;    // of the question mark in its disc

class QuestionMark : public QWidget {
 public:
  explicit QuestionMark(QWidget* parent) : QWidget(parent) { setFixedSize(markSide, markSide); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::strong);
    painter.drawEllipse(rect());
    QFont bold = font();
    bold.setBold(true);
    bold.setPixelSize(static_cast<int>(markSide * markShare));
    painter.setFont(bold);
    painter.setPen(Qt::white);
    painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("?"));
  }
};

}  // namespace

MsgWindow::MsgWindow(frmMsg& model, QWidget* owner) : QDialog(nullptr), model_(model), owner_(owner) {
  setObjectName("frmMsg");
  build();
  bindWindow();
}

void MsgWindow::build() {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->addLayout(makeQuestion());
  answers_ = makeAnswers();
  column->addWidget(answers_);
}

QBoxLayout* MsgWindow::makeQuestion() {
  auto* const question = new QLabel(this);
  question->setObjectName("lblMsg");
  question->setFixedWidth(textWidth);
  question->setWordWrap(true);
  QFont larger = question->font();
  larger.setPointSizeF(questionSize);
  question->setFont(larger);
  bindings_.bindLabel(*question, model_.lblMsg);
  auto* const texts = new QVBoxLayout;
  texts->setSpacing(tickGap);
  texts->addWidget(question);
  texts->addWidget(makeNever());
  auto* const row = new QHBoxLayout;
  row->setContentsMargins(margin, margin, margin, margin);
  row->setSpacing(markGap);
  row->addWidget(new QuestionMark(this), 0, Qt::AlignTop);
  row->addLayout(texts);
  return row;
}

QCheckBox* MsgWindow::makeNever() {
  auto* const never = new QCheckBox(this);
  never->setObjectName("chkMsg");
  bindings_.bindCheckBox(*never, model_.chkMsg);
  never->setAccessibleName(never->text());
  return never;
}

QWidget* MsgWindow::makeAnswers() {
  auto* const answers = new QWidget(this);
  answers->setFixedHeight(answersHeight);
  yes_ = makeYes();
  auto* const row = new QHBoxLayout(answers);
  row->setContentsMargins(margin, 0, margin, 0);
  row->setSpacing(answerGap);
  row->addStretch(1);
  for (QPushButton* const button : {yes_, makeNo(), makeStatus()}) {
    row->addWidget(button);
  }
  return answers;
}

QPushButton* MsgWindow::makeYes() {
  QPushButton* const yes = makeButton(model_.cmdYes, "cmdYes", 'Y');
  makePrimary(*yes);
  yes->setDefault(true);
  connect(yes, &QPushButton::clicked, this, [this] { model_.yesClicked.fire(); });
  bindings_.bindUncovered(*yes, model_.cmdYes.visible, model_.cmdLaunch.visible);
  return yes;
}

QPushButton* MsgWindow::makeNo() {
  QPushButton* const no = makeButton(model_.cmdNo, "cmdNo", 'N');
  connect(no, &QPushButton::clicked, this, [this] { model_.noClicked.fire(); });
  bindings_.bindUncovered(*no, model_.cmdNo.visible, model_.cmdLaunch.visible);
  return no;
}

// A button that tells what is going on: there is nothing to press.
QPushButton* MsgWindow::makeStatus() {
  QPushButton* const status = makeButton(model_.cmdLaunch, "cmdLaunch");
  status->setMinimumWidth(2 * answerWidth + answerGap);
  status->setFocusPolicy(Qt::NoFocus);
  status->setAttribute(Qt::WA_TransparentForMouseEvents);
  QPalette palette = status->palette();
  palette.setColor(QPalette::Button, theme::window);
  palette.setColor(QPalette::ButtonText, theme::focus);
  status->setPalette(palette);
  bindings_.bindVisible(*status, model_.cmdLaunch.visible);
  return status;
}

QPushButton* MsgWindow::makeButton(Button& model, const char* name, char mnemonic) {
  auto* const button = new LvButton(this);
  button->setObjectName(name);
  button->setMinimumWidth(answerWidth);
  button->installEventFilter(this);
  const auto show = [button, &model, mnemonic] {
    button->setText(withMnemonic(fromCp1252(model.caption.get()), mnemonic));
    button->setAccessibleName(fromCp1252(model.caption.get()));
    button->setEnabled(model.enabled.get());
  };
  show();
  bindings_.keep(model.caption.changed.connect(show));
  bindings_.keep(model.enabled.changed.connect(show));
  return button;
}

void MsgWindow::bindWindow() {
  const auto showTexts = [this] {
    setWindowTitle(fromCp1252(model_.caption.get()));
    setAccessibleName(windowTitle());
    setAccessibleDescription(fromCp1252(model_.lblMsg.caption.get()));
  };
  showTexts();
  bindings_.keep(model_.caption.changed.connect(showTexts));
  bindings_.keep(model_.lblMsg.caption.changed.connect(showTexts));
  const auto show = [this] { model_.visible.get() ? present() : hide(); };
  show();
  bindings_.keep(model_.visible.changed.connect(show));
}

void MsgWindow::present() {
  place();
  show();
  raise();
  activateWindow();
  yes_->setFocus(Qt::OtherFocusReason);
}

// A window that hangs on one that is not seen would not be seen either.
void MsgWindow::place() {
  adjustSize();
  winId();
  windowHandle()->setTransientParent(isSeen(owner_) ? owner_->windowHandle() : nullptr);
  const QScreen* const screen = isSeen(owner_) ? owner_->screen() : QGuiApplication::primaryScreen();
  if (screen != nullptr) {
    const QRect free = screen->availableGeometry();
    const QSize frame = owner_ ? owner_->frameSize() - owner_->size() : QSize(0, 0);  // Windows have like ones.
    move(placeAbove(isSeen(owner_) ? owner_->frameGeometry() : free, size() + frame, free));
  }
}

// Escape and the close box: the toolkit would hide the window.
void MsgWindow::reject() {
  model_.closed.fire();
}

// The key that has led to the question may still be held down when it comes up, and is no answer to it.
bool MsgWindow::eventFilter(QObject* watched, QEvent* event) {
  const auto* const key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
  const bool isHeld =
      key != nullptr && key->isAutoRepeat() && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
  return isHeld || QDialog::eventFilter(watched, event);
}

// The answers stand on a foot of their own. Not every desktop puts a frame around the window.
void MsgWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), theme::window);
  painter.fillRect(answers_->geometry(), theme::panel);
  painter.fillRect(QRect(answers_->geometry().topLeft(), QSize(width(), 1)), theme::edge);
  painter.setPen(theme::edge);
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace vantrel
