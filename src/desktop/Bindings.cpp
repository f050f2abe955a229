#include "desktop/Bindings.h"

#include <QLabel>
#include <QPushButton>

#include "desktop/Cp1252.h"

namespace vantrel {
namespace {

// Shows the field now and after each change of it.
template <class T, class Show>
Connection bindField(Field<T>& field, Show show) {
  show(field.get());
  return field.changed.connect([&field, show] { show(field.get()); });
}

}  // namespace

Connection bindCaption(QLabel& widget, Label& model) {
  return bindField(model.caption, [&widget](const std::string& text) { widget.setText(fromCp1252(text)); });
}

Connection bindText(QLabel& widget, TextBox& model) {
  return bindField(model.text, [&widget](const std::string& text) { widget.setText(fromCp1252(text)); });
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
