#include "desktop/view/pictures.h"

#include <QPainterPath>
#include <QPixmapCache>
#include <algorithm>
#include <array>
#include <span>

#include "desktop/view/palette.h"

namespace evac::desktop {
namespace {

QRectF square_in(const QRectF& area) {
  const double side = std::min(area.width(), area.height());
  return {area.center().x() - side / 2, area.center().y() - side / 2, side, side};
}

QRectF part(const QRectF& box, double x, double y, double w, double h) {
  return {box.x() + x * box.width(), box.y() + y * box.height(), w * box.width(), h * box.height()};
}

QPointF point(const QRectF& box, double x, double y) {
  return {box.x() + x * box.width(), box.y() + y * box.height()};
}

QPainterPath polygon(const QRectF& box, std::initializer_list<std::array<double, 2>> corners) {
  QPainterPath path;
  for (const auto& [x, y] : corners)
    path.elementCount() == 0 ? path.moveTo(point(box, x, y)) : path.lineTo(point(box, x, y));
  path.closeSubpath();
  return path;
}

// No: a hollow circle with a bar through it.
void draw_no(QPainter& p, const QRectF& box, const QColor& ink) {
  p.setPen(QPen(ink, box.width() * 0.1));
  p.setBrush(grey::kField);
  p.drawEllipse(part(box, 0.1, 0.1, 0.8, 0.8));
  p.drawLine(point(box, 0.3, 0.7), point(box, 0.7, 0.3));
}

// Yes: a full disc with a tick.
void draw_yes(QPainter& p, const QRectF& box, const QColor& ink) {
  p.setPen(QPen(ink, box.width() * 0.06));
  p.setBrush(signal::kLit);
  p.drawEllipse(part(box, 0.07, 0.07, 0.86, 0.86));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(ink, box.width() * 0.12, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.drawPolyline(QPolygonF({point(box, 0.28, 0.52), point(box, 0.44, 0.68), point(box, 0.72, 0.34)}));
}

// Pause, fault, fire: a warning triangle.
void draw_warning(QPainter& p, const QRectF& box, const QColor& ink) {
  p.setPen(QPen(ink, box.width() * 0.06, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
  p.setBrush(signal::kPause);
  p.drawPath(polygon(box, {{0.5, 0.06}, {0.97, 0.92}, {0.03, 0.92}}));
  p.setPen(Qt::NoPen);
  p.setBrush(ink);
  p.drawRect(part(box, 0.45, 0.36, 0.1, 0.28));
  p.drawRect(part(box, 0.45, 0.72, 0.1, 0.1));
}

void draw_switch(QPainter& p, const QRectF& area, bool on, const QColor& ink) {
  const QRectF box = square_in(area);
  const QRectF body = part(box, 0, 0.22, 1, 0.56);
  p.setPen(QPen(ink, box.width() * 0.06));
  p.setBrush(on ? signal::kLit : grey::kField);
  p.drawRoundedRect(body, body.height() / 2, body.height() / 2);
  p.setBrush(on ? grey::kField : grey::kLine);
  const double knob = body.height() * 0.7, gap = body.height() * 0.15;
  p.drawEllipse(QRectF(on ? body.right() - gap - knob : body.left() + gap, body.top() + gap, knob, knob));
}

void draw_emblem(QPainter& p, const QRectF& box, const QColor& ink) {
  p.setPen(Qt::NoPen);
  p.setBrush(ink);
  p.drawPath(
      polygon(box, {{0.05, 0.38}, {0.22, 0.38}, {0.48, 0.14}, {0.48, 0.86}, {0.22, 0.62}, {0.05, 0.62}}));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(ink, box.width() * 0.06, Qt::SolidLine, Qt::RoundCap));
  for (const double reach : {0.14, 0.26, 0.38}) {
    const QRectF circle = part(box, 0.5 - reach, 0.5 - reach, 2 * reach, 2 * reach);
    p.drawArc(circle.translated(box.width() * 0.06, 0), -45 * 16, 90 * 16);
  }
}

// Signs of the transport: triangles and bars.
void draw_transport(QPainter& p, const QRectF& box, std::string_view sign) {
  const auto triangle = [&](double x, double w) {
    p.drawPath(polygon(box, {{x, 0.2}, {x + w, 0.5}, {x, 0.8}}));
  };
  const auto back_triangle = [&](double x, double w) {
    p.drawPath(polygon(box, {{x + w, 0.2}, {x, 0.5}, {x + w, 0.8}}));
  };
  const auto bar = [&](double x) { p.drawRect(part(box, x, 0.2, 0.12, 0.6)); };
  if (sign == "play") triangle(0.25, 0.55);
  if (sign == "stop") p.drawRect(part(box, 0.24, 0.24, 0.52, 0.52));
  if (sign == "hold") bar(0.28), bar(0.6);
  if (sign == "next") triangle(0.15, 0.5), bar(0.68);
  if (sign == "previous") bar(0.2), back_triangle(0.35, 0.5);
  if (sign == "restart") bar(0.08), back_triangle(0.2, 0.36), back_triangle(0.54, 0.36);
}

constexpr std::string_view kTransport[] = {"play", "stop", "hold", "next", "previous", "restart"};
constexpr std::string_view kStores[] = {"PctD2", "PctD3", "PctD4", "Pct_Kon", "Pct_Koff", "Emblem"};

bool one_of(std::string_view name, std::span<const std::string_view> names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

void draw_number(QPainter& p, const QRectF& area, const QString& number, const QColor& color, bool bold) {
  QFont font = p.font();
  font.setBold(bold);
  p.setFont(font);
  p.setPen(color);
  p.drawText(area, Qt::AlignCenter, number);
}

}  // namespace

bool is_picture(std::string_view name) {
  return one_of(name, kStores) || one_of(name, kTransport);
}

bool draw_picture(QPainter& p, const QRectF& area, std::string_view name, bool enabled) {
  if (!is_picture(name)) return false;
  const QRectF box = square_in(area);
  const QColor ink = enabled ? grey::kText : grey::kFaint;
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  if (name == "PctD2") draw_no(p, box, ink);
  if (name == "PctD3") draw_yes(p, box, ink);
  if (name == "PctD4") draw_warning(p, box, ink);
  if (name == "Pct_Kon" || name == "Pct_Koff") draw_switch(p, area, name == "Pct_Kon", ink);
  if (name == "Emblem") draw_emblem(p, box, grey::kFocus);
  if (one_of(name, kTransport)) {
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    draw_transport(p, box, name);
  }
  p.restore();
  return true;
}

void draw_cached(QPainter& p, const QRect& area, const QString& key,
                 const std::function<void(QPainter&, const QRectF&)>& draw) {
  const double ratio = p.device()->devicePixelRatioF();
  const QString whole_key =
      QStringLiteral("%1/%2x%3@%4").arg(key).arg(area.width()).arg(area.height()).arg(ratio);
  QPixmap picture;
  if (!QPixmapCache::find(whole_key, &picture)) {
    picture = QPixmap(area.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, QRectF(QPointF(0, 0), QSizeF(area.size())));
    painter.end();
    QPixmapCache::insert(whole_key, picture);
  }
  p.drawPixmap(area.topLeft(), picture);
}

void draw_box(QPainter& p, const QRect& area, const QColor& ground, const QColor& edge, double width) {
  const QString key = QStringLiteral("box %1 %2 %3").arg(ground.rgb()).arg(edge.rgb()).arg(width);
  draw_cached(p, area, key, [&](QPainter& painter, const QRectF& box) {
    const double inset = width / 2 + 1;
    painter.setPen(QPen(edge, width));
    painter.setBrush(ground);
    painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), 3, 3);
  });
}

void draw_lamp(QPainter& p, const QRect& area, std::string_view name, const QString& number) {
  const bool fire = name == "PctD4", lit = name == "PctD3";
  draw_cached(p, area,
              fire  ? "lamp of fire"
              : lit ? "lamp lit"
                    : "lamp dark",
              [&](QPainter& painter, const QRectF& whole) {
                const QRectF box = whole.adjusted(2, 2, -2, -2);
                if (fire) {
                  // A full red shield, white on red: nothing else on the screen looks like it.
                  const double x = 0.28 * std::min(1.0, box.height() / box.width());
                  const double y = 0.28 * std::min(1.0, box.width() / box.height());
                  painter.setPen(QPen(QColor(0x5A, 0, 0), 2));
                  painter.setBrush(signal::kFire);
                  painter.drawPath(polygon(
                      box, {{x, 0}, {1 - x, 0}, {1, y}, {1, 1 - y}, {1 - x, 1}, {x, 1}, {0, 1 - y}, {0, y}}));
                } else if (lit) {
                  painter.setPen(QPen(grey::kText, 2));
                  painter.setBrush(signal::kLit);
                  painter.drawRoundedRect(box, box.height() / 2, box.height() / 2);
                } else {
                  painter.setPen(QPen(grey::kLine, 1));
                  painter.setBrush(grey::kFace);
                  painter.drawRect(box.adjusted(2, 2, -2, -2));
                }
              });
  draw_number(p, area, number, fire ? QColor(Qt::white) : lit ? grey::kText : grey::kFaint, fire || lit);
}

void draw_channel_sign(QPainter& p, const QRectF& area, int channel) {
  if (channel == 0) return;
  p.save();
  QFont font = p.font();
  font.setPointSizeF(font.pointSizeF() * 0.65);
  font.setBold(false);
  p.setFont(font);
  p.drawText(area.adjusted(0, 0, -3, 0), Qt::AlignRight | Qt::AlignBottom, QString::number(channel));
  p.restore();
}

QString picture_words(std::string_view name) {
  if (name == "PctD2") return QStringLiteral("нет");
  if (name == "PctD3") return QStringLiteral("да");
  if (name == "PctD4") return QStringLiteral("внимание");
  if (name == "Pct_Kon") return QStringLiteral("включено");
  if (name == "Pct_Koff") return QStringLiteral("выключено");
  return {};
}

}  // namespace evac::desktop
