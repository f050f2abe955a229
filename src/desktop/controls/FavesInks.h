// The colours of the texts in a list of favorites, and how much of a picture may stand behind them. Luminances and
// contrasts are those of the web's rules for readable text: 0 is black and 1 white, and texts keep a contrast of 4.5.
#pragma once

#include <QColor>

class QImage;
class QPalette;

namespace vantrel {

struct FavesInks {
  QColor ground;
  QColor text;
  QColor dim;  // of what explains the text; it can be read on the ground as well, if the text can

  bool operator==(const FavesInks& other) const = default;
};

// A text's colour as softened as it may be for what explains another text.
QColor dimmed(const QColor& text, const QColor& ground);

FavesInks inksOf(const QPalette& palette);

double luminance(const QColor& color);
// From 1, of two like luminances, to 21.
double contrast(double one, double other);

struct LuminanceRange {
  double darkest = 1;
  double lightest = 0;
};

// A veil of the ground's colour over a picture: 0 leaves the picture as it is, 1 leaves nothing of it. Pictures are
// opaque here and of 32 bits.

// Of the picture's pixels under a veil of that strength.
LuminanceRange luminancesUnder(const QImage& picture, const QColor& ground, double strength);
// The weakest veil under which both texts can be read wherever they stand on the picture; 1 when they cannot even be
// read on the ground.
double veilStrength(const QImage& picture, const FavesInks& inks);
void layVeil(QImage& picture, const QColor& ground, double strength);

}  // namespace vantrel
