#include "desktop/pages/AboutPage.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

constexpr int iconSide = 96;    // pixels at 100 %
constexpr qreal nameSize = 16;  // points

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

QLabel* addLine(QVBoxLayout& column, const QString& text, QWidget* parent) {
  auto* const line = new QLabel(text, parent);
  line->setTextFormat(Qt::PlainText);
  line->setAlignment(Qt::AlignHCenter);
  column.addWidget(line, 0, Qt::AlignHCenter);
  return line;
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
  addLine(*column, tr("A server browser for Halo Custom Edition."), content());
  column->addSpacing(4);
  addLine(*column,
          tr("It asks the master server for all game servers, shows what is played on them, and keeps the "
             "ones that you like."),
          content());
  column->addSpacing(14);
  makeDim(*addLine(*column, tr("Free software under the MIT license; see the file LICENSE."), content()));
  column->addStretch(3);
}

}  // namespace vantrel
