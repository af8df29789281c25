#include "desktop/view/dress.h"

#include <QApplication>
#include <QPalette>

#include "desktop/view/palette.h"
#include "desktop/view/pictures.h"
#include "desktop/view/spoken.h"
#include "platform/pictures.h"

namespace evac::desktop {
namespace {

constexpr double kLeastPointSize = 11;
constexpr int kIconSizes[] = {16, 24, 32, 48, 64, 128};

QPalette application_palette() {
  QPalette palette(grey::kFace, grey::kWindow);
  palette.setColor(QPalette::Base, grey::kField);
  palette.setColor(QPalette::AlternateBase, grey::kWindow);
  palette.setColor(QPalette::Highlight, grey::kFocus);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, grey::kField);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, grey::kText);
    palette.setColor(QPalette::Disabled, role, grey::kFaint);
  }
  return palette;
}

// The style draws the edges of its own widgets in the window's colour, darkened: too faint to be seen.
QPalette clear_edges(QPalette palette) {
  constexpr int kStyleDarkens = 140;  // per cent
  palette.setColor(QPalette::Window, grey::kLine.lighter(kStyleDarkens));
  return palette;
}

}  // namespace

void dress_application() {
  QApplication::setStyle(QStringLiteral("Fusion"));
  const QPalette palette = application_palette();
  QApplication::setPalette(palette);
  for (const char* kind :
       {"QCheckBox", "QComboBox", "QLineEdit", "QListView", "QTableView", "QPushButton", "QSpinBox"})
    QApplication::setPalette(clear_edges(palette), kind);
  QFont font = QApplication::font();
  if (font.pointSizeF() < kLeastPointSize) font.setPointSizeF(kLeastPointSize);
  QApplication::setFont(font);
  QApplication::setWindowIcon(application_icon());
  speak_for_widgets();
}

QIcon application_icon() {
  QIcon icon;
  for (const int size : kIconSizes) {
    QPixmap sheet(size, size);
    sheet.fill(Qt::transparent);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(grey::kField);
    painter.drawRoundedRect(sheet.rect(), size / 6.0, size / 6.0);
    draw_picture(painter, QRectF(sheet.rect()), picture::kEmblem);
    painter.end();
    icon.addPixmap(sheet);
  }
  return icon;
}

}  // namespace evac::desktop
