#include "desktop/view/palette.h"

#include <algorithm>
#include <cmath>

namespace evac::desktop {
namespace {

constexpr std::uint32_t kSystemColor = 0x80000000;

double linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

}  // namespace

QColor screen_color(Color color) {
  if (color == Color::kWindow) return grey::kField;
  const auto bits = static_cast<std::uint32_t>(color);
  if (bits & kSystemColor) return grey::kFace;
  return QColor(static_cast<int>(bits & 0xFF), static_cast<int>(bits >> 8 & 0xFF),
                static_cast<int>(bits >> 16 & 0xFF));
}

bool is_signal(Color color) {
  return !(static_cast<std::uint32_t>(color) & kSystemColor);
}

int channel_of(Color color) {
  constexpr int kChannels = 5;
  const auto end = kLegendColors.begin() + kChannels;
  const auto at = std::find(kLegendColors.begin(), end, color);
  return at == end ? 0 : static_cast<int>(at - kLegendColors.begin()) + 1;
}

double contrast(const QColor& a, const QColor& b) {
  const double one = luminance(a), other = luminance(b);
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QColor text_upon(const QColor& back) {
  return contrast(grey::kText, back) >= contrast(Qt::white, back) ? grey::kText : QColor(Qt::white);
}

}  // namespace evac::desktop
