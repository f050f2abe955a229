// Bind functions: each ties one control model to one widget for as long as the Connection is kept. The widget shows
// what the model holds, and what the user does goes to the model.
#pragma once

#include <functional>

#include "platform/Controls.h"

class QLabel;
class QPushButton;

namespace vantrel {

// Both the model and the widget must outlive the Connection.
Connection bindCaption(QLabel& widget, Label& model);
Connection bindText(QLabel& widget, TextBox& model);
// Caption, whether it can be pressed and whether it is there.
std::vector<Connection> bindButton(QPushButton& widget, Button& model);

}  // namespace vantrel
