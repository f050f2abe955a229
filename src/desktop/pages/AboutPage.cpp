#include "desktop/pages/AboutPage.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "desktop/controls/ZorbelLabelView.h"
#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

constexpr int iconSide = 96;    // pixels at 100 %
constexpr qreal nameSize = 16;  // points
constexpr int frameWidth = 380;
constexpr int frameTop = 28;  // below the band with the frame's caption
constexpr int frameMargin = 10;

// The program's icon, drawn at the size that the screen really has.
class IconPicture : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    QApplication::windowIcon().paint(&painter, rect());
  }
};

// Colours of the page, in which the frame is painted.
void follow(Bindings& bindings, ZorbelLabel& frame, frmMain& window) {
  const auto paint = [&frame, &window] {
    frame.BackColor.set(window.PicAbout.backColor.get());
    frame.setForeColor(window.lblData.foreColor.get());
  };
  paint();
  bindings.keep(window.PicAbout.backColor.changed.connect(paint));
  bindings.keep(window.lblData.foreColor.changed.connect(paint));
}

}  // namespace

AboutPage::AboutPage(frmMain& window, Commands& /*commands*/, QWidget* parent)
    : PagePanel(window.PicAbout, "PicAbout", parent) {
  setAccessibleName(tr("About"));
  auto* const column = new QVBoxLayout(content());
  column->setSpacing(0);
  column->addStretch(2);
  auto* const icon = new IconPicture(content());
  icon->setFixedSize(iconSide, iconSide);
  column->addWidget(icon, 0, Qt::AlignHCenter);
  column->addSpacing(14);
  auto* const version = new QLabel(content());
  version->setObjectName("lblVer");
  QFont large = version->font();
  large.setPointSizeF(nameSize);
  version->setFont(large);
  bindings().bindLabel(*version, window.lblVer);
  column->addWidget(version, 0, Qt::AlignHCenter);
  column->addSpacing(10);
  column->addWidget(makeFrame(ZorbelLabel1_, "ZorbelLabel1", tr("About"),
                              tr("A server browser for Halo Custom Edition. It asks the master server for all game "
                                 "servers, shows what is played on them, and keeps the ones that you like.")),
                    0, Qt::AlignHCenter);
  column->addSpacing(10);
  column->addWidget(makeFrame(ZorbelLabel2_, "ZorbelLabel2", tr("License"),
                              tr("Free software under the MIT license; see the file LICENSE.")),
                    0, Qt::AlignHCenter);
  column->addStretch(3);
  follow(bindings(), ZorbelLabel1_, window);
  follow(bindings(), ZorbelLabel2_, window);
}

QWidget* AboutPage::makeFrame(ZorbelLabel& frame, const char* name, const QString& caption, const QString& text) {
  frame.setCaption(toCp1252(caption));
  auto* const view = new ZorbelLabelView(frame, name, content());
  view->setFixedWidth(frameWidth);
  auto* const line = new QLabel(text, view);
  line->setTextFormat(Qt::PlainText);
  line->setWordWrap(true);
  line->setFixedWidth(frameWidth - 2 * frameMargin);
  auto* const inside = new QVBoxLayout(view);
  inside->setContentsMargins(frameMargin, frameTop, frameMargin, frameMargin);
  inside->addWidget(line);
  return view;
}

}  // namespace vantrel
