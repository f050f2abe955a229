#include "desktop/adapters/QtNotices.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/text/Cp1252.h"
#include "platform/Signal.h"

namespace vantrel {
namespace {

constexpr int popMsgTime = 5000;   // milliseconds
constexpr int balloonTime = 8000;  // milliseconds
constexpr int lookInterval = 20;   // milliseconds
constexpr int margin = 16;

}  // namespace

// A notice without a border that goes by itself after a while or with a click. It never takes the focus.
class NoticeWindow : public QFrame {
 public:
  NoticeWindow() : QFrame(nullptr, Qt::ToolTip | Qt::FramelessWindowHint) {
    setObjectName("notice");
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(14, 10, 14, 12);
    title_.setWordWrap(true);
    text_.setWordWrap(true);
    title_.setTextFormat(Qt::PlainText);
    text_.setTextFormat(Qt::PlainText);
    QFont bold = title_.font();
    bold.setBold(true);
    title_.setFont(bold);
    column->addWidget(&title_);
    column->addWidget(&text_);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] { end(); });
  }

  void present(const QString& title, const QString& text, int milliseconds) {
    title_.setText(title);
    title_.setVisible(!title.isEmpty());
    text_.setText(text);
    setFixedWidth(300);
    adjustSize();
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    move(screen.right() - width() - margin, screen.bottom() - height() - margin);
    show();
    raise();
    timer_.start(milliseconds);
  }

  Signal<> ended;

 protected:
  void mousePressEvent(QMouseEvent* /*event*/) override { end(); }

 private:
  void end() {
    timer_.stop();
    hide();
    ended.fire();
  }

  QLabel title_;
  QLabel text_;
  QTimer timer_;
};

QtNotices::QtNotices(Loop& loop) : loop_(loop) {}

QtNotices::~QtNotices() = default;

void QtNotices::ShowPopMsg(const std::string& text) {
  if (!popMsg_) {
    popMsg_ = std::make_unique<NoticeWindow>();
  }
  popMsg_->present({}, fromCp1252(text), popMsgTime);
}

void QtNotices::popUpBalloon(const std::string& text, const std::string& title) {
  NoticeWindow balloon;
  bool ended = false;
  const Connection listening = balloon.ended.connect([&ended] { ended = true; });
  balloon.present(fromCp1252(title.empty() ? "Vantrel CE" : title), fromCp1252(text), balloonTime);
  while (!ended && !loop_.ending()) {
    loop_.wait(lookInterval);
  }
}

}  // namespace vantrel
