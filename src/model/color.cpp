#include "model/color.h"

#include <cstdio>

namespace evac {

std::string color_literal(Color color) {
  char text[16];
  std::snprintf(text, sizeof text, "&H%08X", static_cast<unsigned>(color));
  return text;
}

}  // namespace evac
