#include "desktop/controls/FavesInks.h"

#include <QImage>
#include <QPalette>
#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/controls/CalmStyle.h"

namespace vantrel {
namespace {

constexpr double enough = 4.5;     // contrast of texts
constexpr double dimEnough = 6.5;  // of the dim text on the bare ground: something is left for a picture
constexpr double dimmest = 0.25;   // share of the ground's colour in the dim text's
constexpr double dimStep = 0.05;
constexpr int veilSteps = 7;  // each halves what is not known of the strength

constexpr double redShare = 0.2126;
constexpr double greenShare = 0.7152;
constexpr double blueShare = 0.0722;

// For each value of a channel.
using Lights = std::array<double, 256>;
using Values = std::array<uchar, 256>;

template <class Table>
auto at(const Table& table, int value) {
  return table[static_cast<std::size_t>(value)];
}

double lightOf(double value) {
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

Values valuesUnder(int ground, double strength) {
  Values values{};
  for (std::size_t value = 0; value < values.size(); ++value) {
    values[value] = static_cast<uchar>(std::lround(strength * ground + (1 - strength) * static_cast<double>(value)));
  }
  return values;
}

// What each value of a channel adds to the luminance of a pixel under the veil.
Lights lightsUnder(int ground, double strength, double share) {
  const Values values = valuesUnder(ground, strength);
  Lights lights{};
  for (std::size_t value = 0; value < lights.size(); ++value) {
    lights[value] = share * lightOf(values[value] / 255.0);
  }
  return lights;
}

// What is behind a text has to be as much darker or lighter than it as the ground is.
bool isReadable(const QColor& text, double ground, const LuminanceRange& behind) {
  const double own = luminance(text);
  return own >= ground ? own + 0.05 >= enough * (behind.lightest + 0.05)
                       : behind.darkest + 0.05 >= enough * (own + 0.05);
}

}  // namespace

QColor dimmed(const QColor& text, const QColor& ground) {
  for (double share = dimmest; share > 0; share -= dimStep) {
    const QColor color = QColor::fromRgb(mixed(text, ground, share).rgb());
    if (contrast(luminance(color), luminance(ground)) >= dimEnough) {
      return color;
    }
  }
  return text;
}

FavesInks inksOf(const QPalette& palette) {
  const QColor ground = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  return {ground, text, dimmed(text, ground)};
}

double luminance(const QColor& color) {
  return redShare * lightOf(color.redF()) + greenShare * lightOf(color.greenF()) + blueShare * lightOf(color.blueF());
}

double contrast(double one, double other) {
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

LuminanceRange luminancesUnder(const QImage& picture, const QColor& ground, double strength) {
  const Lights red = lightsUnder(ground.red(), strength, redShare);
  const Lights green = lightsUnder(ground.green(), strength, greenShare);
  const Lights blue = lightsUnder(ground.blue(), strength, blueShare);
  LuminanceRange range;
  for (int y = 0; y < picture.height(); ++y) {
    const auto* const line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    for (const QRgb* pixel = line; pixel != line + picture.width(); ++pixel) {
      const double found = at(red, qRed(*pixel)) + at(green, qGreen(*pixel)) + at(blue, qBlue(*pixel));
      range.darkest = std::min(range.darkest, found);
      range.lightest = std::max(range.lightest, found);
    }
  }
  return range;
}

// How the luminance of a veiled colour follows from its own depends on the colour; so strengths are tried.
double veilStrength(const QImage& picture, const FavesInks& inks) {
  const double ground = luminance(inks.ground);
  const auto isEnough = [&](double strength) {
    const LuminanceRange behind = luminancesUnder(picture, inks.ground, strength);
    return isReadable(inks.text, ground, behind) && isReadable(inks.dim, ground, behind);
  };
  if (isEnough(0)) {
    return 0;
  }
  double tooWeak = 0;
  double strength = 1;
  for (int step = 0; step < veilSteps; ++step) {
    const double between = (tooWeak + strength) / 2;
    (isEnough(between) ? strength : tooWeak) = between;
  }
  return strength;
}

void layVeil(QImage& picture, const QColor& ground, double strength) {
  const Values red = valuesUnder(ground.red(), strength);
  const Values green = valuesUnder(ground.green(), strength);
  const Values blue = valuesUnder(ground.blue(), strength);
  for (int y = 0; y < picture.height(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (QRgb* pixel = line; pixel != line + picture.width(); ++pixel) {
      *pixel = qRgb(at(red, qRed(*pixel)), at(green, qGreen(*pixel)), at(blue, qBlue(*pixel)));
    }
  }
}

}  // namespace vantrel
