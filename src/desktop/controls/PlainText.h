// Texts from strangers, made fit for one line and for a tool tip: nothing in them is markup.
#pragma once

#include <QString>

namespace vantrel {

// Each control character, line ends among them, as a blank.
QString oneLine(QString text);

// A tool tip that shows exactly this text, or its beginning when it is very long; empty for an empty one.
QString plainToolTip(const QString& text);

}  // namespace vantrel
