#include "desktop/window/Bindings.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

// Shows the field now and after each change of it.
template <class T, class Show>
Connection bindField(Field<T>& field, Show show) {
  show(field.get());
  return field.changed.connect([&field, show] { show(field.get()); });
}

// A number may change with every reply of a sweep, faster than anyone reads: the first change is shown at once, those
// that follow it closely are shown together.
Connection bindLabel(QLabel& widget, Field<std::string>& field) {
  auto* const pause = new QTimer(&widget);
  pause->setSingleShot(true);
  pause->setInterval(60);
  const auto show = [&widget, &field] { widget.setText(fromCp1252(field.get())); };
  QObject::connect(pause, &QTimer::timeout, &widget, show);
  show();
  return field.changed.connect([pause, show] {
    if (!pause->isActive()) {
      show();
      pause->start();
    }
  });
}

}  // namespace

Connection bindCaption(QLabel& widget, Label& model) {
  return bindLabel(widget, model.caption);
}

Connection bindText(QLabel& widget, TextBox& model) {
  return bindLabel(widget, model.text);
}

std::vector<Connection> bindButton(QPushButton& widget, Button& model) {
  std::vector<Connection> connections;
  connections.push_back(
      bindField(model.caption, [&widget](const std::string& text) { widget.setText("&" + fromCp1252(text)); }));
  connections.push_back(bindField(model.enabled, [&widget](bool enabled) { widget.setEnabled(enabled); }));
  connections.push_back(bindField(model.visible, [&widget](bool visible) { widget.setVisible(visible); }));
  return connections;
}

}  // namespace vantrel
