#include "desktop/controls/CalmStyle.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <algorithm>

#include "desktop/controls/Theme.h"

namespace vantrel {
namespace {

constexpr qreal corner = 3.5;      // radius of a button's corners, in pixels at 100 %
constexpr int controlHeight = 24;  // of buttons and boxes
constexpr int textMargin = 11;     // on either side of a button's text
constexpr int cellMargin = 4;      // on either side of a text in a list
constexpr int tickSide = 14;       // of the square of a check box
constexpr int lightGround = 127;   // of 255: above it, the ring around what has the focus is dark
constexpr int menuMargin = 3;      // above the first entry of a menu and below the last
constexpr qreal menuEdge = 0.3;    // share of the text's colour in a menu's outline and separators

bool has(const QStyleOption& option, QStyle::StateFlag flag) {
  return (option.state & flag) != 0;
}

QRectF inner(const QRect& rect) {
  return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
}

// The half of a pair has its round corners on its outer side: it is drawn wider than it is and cut off.
QRectF wholeShape(const QRect& rect, const QWidget* widget) {
  const QString segment = widget == nullptr ? QString() : widget->property("segment").toString();
  return inner(rect).adjusted(segment == QLatin1String("right") ? -6 : 0, 0, segment == QLatin1String("left") ? 6 : 0,
                              0);
}

QColor buttonFace(const QStyleOption& option) {
  if (has(option, QStyle::State_On)) {
    return option.palette.color(QPalette::Highlight);
  }
  const QColor face = option.palette.color(QPalette::Button);
  if (has(option, QStyle::State_Sunken)) {
    return mixed(face, Qt::black, 0.25);
  }
  return has(option, QStyle::State_MouseOver) && has(option, QStyle::State_Enabled) ? mixed(face, Qt::white, 0.1)
                                                                                    : face;
}

QColor edgeOf(const QStyleOption& option, QPalette::ColorRole face, QPalette::ColorRole text) {
  const bool focused = has(option, QStyle::State_HasFocus) && has(option, QStyle::State_Enabled);
  return focused ? theme::focus : mixed(option.palette.color(face), option.palette.color(text), 0.2);
}

void paintButton(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
  const QRectF shape = wholeShape(option.rect, widget);
  painter.setPen(edgeOf(option, QPalette::Button, QPalette::ButtonText));
  painter.setBrush(buttonFace(option));
  painter.drawRoundedRect(shape, corner, corner);
  if (has(option, QStyle::State_HasFocus)) {  // The cut side of a half has its ring too.
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(inner(option.rect).adjusted(1, 1, -1, -1), corner - 1, corner - 1);
  }
}

void paintField(QPainter& painter, const QStyleOption& option) {
  painter.setPen(edgeOf(option, QPalette::Base, QPalette::Text));
  painter.setBrush(option.palette.brush(QPalette::Base));
  painter.drawRoundedRect(inner(option.rect), corner - 1, corner - 1);
}

bool isOnLight(const QStyleOption& option) {
  return option.palette.color(QPalette::Window).lightness() > lightGround;
}

// A dark box on a light ground would look as if it were filled.
void paintTickBox(QPainter& painter, const QStyleOption& option) {
  const bool onLight = isOnLight(option);
  const QRectF box = inner(option.rect);
  const QColor face =
      onLight ? mixed(option.palette.color(QPalette::Window), Qt::white, 0.7) : option.palette.color(QPalette::Base);
  const QColor ink = option.palette.color(onLight ? QPalette::WindowText : QPalette::Text);
  painter.setPen(mixed(face, option.palette.color(QPalette::WindowText), 0.5));
  painter.setBrush(face);
  painter.drawRoundedRect(box, corner - 1, corner - 1);
  painter.setPen(QPen(ink, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF centre = box.center();
  if (has(option, QStyle::State_On)) {
    const QPointF tick[] = {centre + QPointF(-3.2, 0), centre + QPointF(-0.9, 2.6), centre + QPointF(3.4, -2.8)};
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(tick, 3);
  } else if (has(option, QStyle::State_NoChange)) {
    painter.drawLine(centre + QPointF(-3, 0), centre + QPointF(3, 0));
  }
}

// That there is a list to drop down.
void paintChevron(QPainter& painter, const QStyleOption& option, const QRect& rect) {
  const QPointF centre = QRectF(rect).center();
  const QPointF chevron[] = {centre + QPointF(-3.5, -1.5), centre + QPointF(0, 2), centre + QPointF(3.5, -1.5)};
  painter.setPen(QPen(option.palette.color(QPalette::ButtonText), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(chevron, 3);
}

void paintHeader(QPainter& painter, const QStyleOption& option) {
  const QColor face = option.palette.color(QPalette::Button);
  painter.fillRect(option.rect, face);
  painter.setPen(mixed(face, option.palette.color(QPalette::ButtonText), 0.2));
  painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  const auto* const header = qstyleoption_cast<const QStyleOptionHeader*>(&option);
  const bool last = header != nullptr && (header->position == QStyleOptionHeader::End ||
                                          header->position == QStyleOptionHeader::OnlyOneSection);
  if (last) {
    return;
  }
  painter.drawLine(option.rect.topRight() + QPoint(0, 4), option.rect.bottomRight() - QPoint(0, 4));
}

}  // namespace

QColor mixed(const QColor& under, const QColor& over, qreal amount) {
  const auto mix = [amount](float from, float to) { return from + (to - from) * static_cast<float>(amount); };
  return QColor::fromRgbF(mix(under.redF(), over.redF()), mix(under.greenF(), over.greenF()),
                          mix(under.blueF(), over.blueF()));
}

CalmStyle::CalmStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void CalmStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (element == PE_PanelButtonCommand) {
    painter->setClipRect(option->rect, Qt::IntersectClip);
    paintButton(*painter, *option, widget);
  } else if (element == PE_PanelLineEdit && frame != nullptr && frame->lineWidth > 0) {
    paintField(*painter, *option);
  } else if (element == PE_IndicatorCheckBox) {
    paintTickBox(*painter, *option);
  } else if (element == PE_Frame) {
    painter->setPen(edgeOf(*option, QPalette::Base, QPalette::Text));
    painter->drawRect(inner(option->rect));
  } else if (element == PE_FrameMenu) {
    painter->setPen(
        mixed(option->palette.color(QPalette::Window), option->palette.color(QPalette::WindowText), menuEdge));
    painter->drawRect(inner(option->rect));
  } else if (element == PE_FrameFocusRect) {
    if (widget == nullptr || !widget->inherits("QPushButton")) {
      painter->setPen(isOnLight(*option) ? theme::strong : theme::focus);
      painter->drawRoundedRect(inner(option->rect), corner - 1, corner - 1);
    }
  } else {
    painter->restore();
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    return;
  }
  painter->restore();
}

void CalmStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  if (element == CE_HeaderSection) {
    paintHeader(*painter, *option);
    return;
  }
  const auto* const entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (element == CE_MenuItem && entry != nullptr && entry->menuItemType == QStyleOptionMenuItem::Separator) {
    const QRect line(entry->rect.left() + cellMargin, entry->rect.center().y(), entry->rect.width() - 2 * cellMargin,
                     1);
    painter->fillRect(
        line, mixed(entry->palette.color(QPalette::Window), entry->palette.color(QPalette::WindowText), menuEdge));
    return;
  }
  const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (element == CE_PushButtonLabel && button != nullptr && has(*button, State_On)) {
    QStyleOptionButton pressed(*button);
    pressed.palette.setColor(QPalette::ButtonText, pressed.palette.color(QPalette::HighlightedText));
    QProxyStyle::drawControl(element, &pressed, painter, widget);
    return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void CalmStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const {
  const auto* const box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (control != CC_ComboBox || box == nullptr) {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    return;
  }
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (box->editable) {
    paintField(*painter, *box);
  } else {
    paintButton(*painter, *box, widget);
  }
  paintChevron(*painter, *box, subControlRect(CC_ComboBox, box, SC_ComboBoxArrow, widget));
  painter->restore();
}

QSize CalmStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
  switch (type) {
    case CT_PushButton:
      return {size.width() + 2 * textMargin, std::max(controlHeight, size.height() + 8)};
    case CT_LineEdit:
    case CT_ComboBox: {
      const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
      return {usual.width(), std::max(controlHeight, size.height() + 8)};
    }
    default:
      return QProxyStyle::sizeFromContents(type, option, size, widget);
  }
}

QRect CalmStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  const QRect usual = QProxyStyle::subElementRect(element, option, widget);
  return element == SE_LineEditContents ? usual.adjusted(3, 0, -3, 0) : usual;
}

int CalmStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
      return tickSide;
    case PM_ScrollBarExtent:
      return 13;
    case PM_DefaultFrameWidth:
    case PM_MenuPanelWidth:
      return 1;
    case PM_MenuVMargin:
      return menuMargin;
    case PM_HeaderMargin:
    case PM_FocusFrameHMargin:
      return cellMargin;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

// Mnemonics are underlined at all times: a user sees that there are any. Text that is off has no shadow, which would
// smear it on a dark ground.
int CalmStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
  if (hint == SH_UnderlineShortcut || hint == SH_EtchDisabledText) {
    return hint == SH_UnderlineShortcut ? 1 : 0;
  }
  return QProxyStyle::styleHint(hint, option, widget, data);
}

}  // namespace vantrel
