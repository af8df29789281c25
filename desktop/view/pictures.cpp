#include "desktop/view/pictures.h"

#include <QPainterPath>
#include <QPixmapCache>
#include <algorithm>
#include <array>
#include <iterator>

#include "desktop/view/palette.h"
#include "desktop/view/screen.h"
#include "platform/pictures.h"

namespace evac::desktop {
namespace {

constexpr int kNumberedSwatch = 36;  // pixels of a cell that has room for the number of its channel

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

// Not known: grey, crossed out.
void draw_unknown(QPainter& p, const QRectF& box, const QColor&) {
  p.setPen(QPen(grey::kLine, box.width() * 0.08));
  p.setBrush(grey::kFace);
  p.drawEllipse(part(box, 0.1, 0.1, 0.8, 0.8));
  p.setPen(QPen(grey::kText, box.width() * 0.1, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(point(box, 0.08, 0.08), point(box, 0.92, 0.92));
  p.drawLine(point(box, 0.92, 0.08), point(box, 0.08, 0.92));
}

void draw_switch(QPainter& p, const QRectF& box, bool on, const QColor& ink) {
  const QRectF body = part(box, 0, 0.22, 1, 0.56);
  p.setPen(QPen(ink, box.width() * 0.06));
  p.setBrush(on ? signal::kLit : grey::kField);
  p.drawRoundedRect(body, body.height() / 2, body.height() / 2);
  p.setBrush(on ? grey::kField : grey::kLine);
  const double knob = body.height() * 0.7, gap = body.height() * 0.15;
  p.drawEllipse(QRectF(on ? body.right() - gap - knob : body.left() + gap, body.top() + gap, knob, knob));
}
void draw_switch_on(QPainter& p, const QRectF& box, const QColor& ink) {
  draw_switch(p, box, true, ink);
}
void draw_switch_off(QPainter& p, const QRectF& box, const QColor& ink) {
  draw_switch(p, box, false, ink);
}

void draw_emblem(QPainter& p, const QRectF& box, const QColor&) {
  const QColor ink = grey::kFocus;
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

// Signs of the transport: triangles and bars, one after another from the left.
struct Strokes {
  QPainter& p;
  const QRectF& box;

  Strokes(QPainter& painter, const QRectF& area, const QColor& ink) : p(painter), box(area) {
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
  }
  void forth(double x, double w) { p.drawPath(polygon(box, {{x, 0.2}, {x + w, 0.5}, {x, 0.8}})); }
  void back(double x, double w) { p.drawPath(polygon(box, {{x + w, 0.2}, {x, 0.5}, {x + w, 0.8}})); }
  void bar(double x) { p.drawRect(part(box, x, 0.2, 0.12, 0.6)); }
};

void draw_play(QPainter& p, const QRectF& box, const QColor& ink) {
  Strokes(p, box, ink).forth(0.25, 0.55);
}
void draw_stop(QPainter& p, const QRectF& box, const QColor& ink) {
  p.setPen(Qt::NoPen);
  p.setBrush(ink);
  p.drawRect(part(box, 0.24, 0.24, 0.52, 0.52));
}
void draw_next(QPainter& p, const QRectF& box, const QColor& ink) {
  Strokes strokes(p, box, ink);
  strokes.forth(0.15, 0.5);
  strokes.bar(0.68);
}
void draw_previous(QPainter& p, const QRectF& box, const QColor& ink) {
  Strokes strokes(p, box, ink);
  strokes.bar(0.2);
  strokes.back(0.35, 0.5);
}
void draw_restart(QPainter& p, const QRectF& box, const QColor& ink) {
  Strokes strokes(p, box, ink);
  strokes.bar(0.08);
  strokes.back(0.2, 0.36);
  strokes.back(0.54, 0.36);
}

void draw_hold(QPainter& p, const QRectF& box, const QColor& ink) {
  Strokes strokes(p, box, ink);
  strokes.bar(0.3);
  strokes.bar(0.58);
}
void draw_louder(QPainter& p, const QRectF& box, const QColor& ink) {
  const Strokes strokes(p, box, ink);
  p.drawPath(polygon(box, {{0.5, 0.2}, {0.85, 0.75}, {0.15, 0.75}}));
}
void draw_quieter(QPainter& p, const QRectF& box, const QColor& ink) {
  const Strokes strokes(p, box, ink);
  p.drawPath(polygon(box, {{0.5, 0.8}, {0.85, 0.25}, {0.15, 0.25}}));
}
void draw_power(QPainter& p, const QRectF& box, const QColor& ink) {
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(ink, box.width() * 0.1, Qt::SolidLine, Qt::RoundCap));
  p.drawArc(part(box, 0.2, 0.24, 0.6, 0.6), 125 * 16, 290 * 16);
  p.drawLine(QPointF(box.center().x(), box.top() + box.height() * 0.12), box.center());
}
// The same sign of a button that is on: white on a filled ground.
template <auto Draw>
void draw_on(QPainter& p, const QRectF& box, const QColor&) {
  p.setPen(Qt::NoPen);
  p.setBrush(signal::kAlerted);
  p.drawRoundedRect(box, box.width() / 6, box.width() / 6);
  Draw(p, box, Qt::white);
}

// How a word is drawn in its square, and what it is called aloud.
struct Drawing {
  std::string_view word;
  void (*draw)(QPainter& p, const QRectF& box, const QColor& ink);
  const char* aloud;
};

constexpr Drawing kDrawings[] = {
    {picture::kNo, draw_no, "нет"},
    {picture::kYes, draw_yes, "да"},
    {picture::kPause, draw_warning, "внимание"},
    {picture::kSwitchOn, draw_switch_on, "включено"},
    {picture::kSwitchOff, draw_switch_off, "выключено"},
    {picture::kEmblem, draw_emblem, ""},
    {picture::kPower.on, draw_on<draw_power>, "включено"},
    {picture::kPower.off, draw_power, "выключено"},
    {picture::kPlay.on, draw_on<draw_play>, "воспроизведение идёт"},
    {picture::kPlay.off, draw_play, "воспроизведение"},
    {picture::kHold.on, draw_on<draw_hold>, "пауза стоит"},
    {picture::kHold.off, draw_hold, "пауза"},
    {picture::kStop.on, draw_on<draw_stop>, "остановлено"},
    {picture::kStop.off, draw_stop, "стоп"},
    {picture::kPrevious.on, draw_on<draw_previous>, "назад, нажато"},
    {picture::kPrevious.off, draw_previous, "назад"},
    {picture::kNext.on, draw_on<draw_next>, "вперёд, нажато"},
    {picture::kNext.off, draw_next, "вперёд"},
    {picture::kLouder.on, draw_on<draw_louder>, "громче, нажато"},
    {picture::kLouder.off, draw_louder, "громче"},
    {picture::kQuieter.on, draw_on<draw_quieter>, "тише, нажато"},
    {picture::kQuieter.off, draw_quieter, "тише"},
    {sign::kUnknown, draw_unknown, "неизвестно"},
    {sign::kPlay, draw_play, "воспроизведение"},
    {sign::kStop, draw_stop, "стоп"},
    {sign::kNext, draw_next, "вперёд"},
    {sign::kPrevious, draw_previous, "назад"},
    {sign::kRestart, draw_restart, "в начало"},
    {sign::kRestartOn, draw_on<draw_restart>, "в начало, нажато"},
};

const Drawing* drawing_of(std::string_view word) {
  const auto at = std::ranges::find(kDrawings, word, &Drawing::word);
  return at == std::end(kDrawings) ? nullptr : at;
}

// A lamp that is on fire: a full red shield, white on red: nothing else on the screen looks like it.
void draw_lamp_of_fire(QPainter& p, const QRectF& box) {
  const double x = 0.28 * std::min(1.0, box.height() / box.width());
  const double y = 0.28 * std::min(1.0, box.width() / box.height());
  p.setPen(QPen(QColor(0x5A, 0, 0), 2));
  p.setBrush(signal::kFire);
  p.drawPath(polygon(box, {{x, 0}, {1 - x, 0}, {1, y}, {1, 1 - y}, {1 - x, 1}, {x, 1}, {0, 1 - y}, {0, y}}));
}
// A zone that hears the message: a loudspeaker's waves on both sides of its number, where there is room.
void draw_lamp_alerted(QPainter& p, const QRectF& box) {
  p.setPen(QPen(grey::kText, 1.5));
  p.setBrush(signal::kAlerted);
  p.drawRoundedRect(box, box.height() / 2, box.height() / 2);
  if (box.width() < 1.4 * box.height()) return;
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(Qt::white, 1.5, Qt::SolidLine, Qt::RoundCap));
  const double reach = box.height() * 0.7;
  const QRectF wave(box.center().x() - reach / 2, box.center().y() - reach / 2, reach, reach);
  const double out = box.width() / 2 - box.height() * 0.48;
  p.drawArc(wave.translated(out, 0), -45 * 16, 90 * 16);
  p.drawArc(wave.translated(-out, 0), 135 * 16, 90 * 16);
}
void draw_lamp_dark(QPainter& p, const QRectF& box) {
  p.setPen(QPen(grey::kLine, 1));
  p.setBrush(grey::kFace);
  p.drawRect(box.adjusted(2, 2, -2, -2));
}

// How a lamp with that picture is drawn, its number in it, and what it is called aloud.
struct Lamp {
  std::string_view word;
  void (*draw)(QPainter& p, const QRectF& box);
  QColor number;
  bool bold;
  const char* aloud;
};

const Lamp& lamp_of(std::string_view word) {
  static const Lamp kLamps[] = {
      {picture::kPause, draw_lamp_of_fire, Qt::white, true, "пожар"},
      {picture::kYes, draw_lamp_alerted, Qt::white, true, "оповещается"},
      {picture::kNo, draw_lamp_dark, grey::kFaint, false, "спокойно"},  // and any other
  };
  const auto at = std::ranges::find(kLamps, word, &Lamp::word);
  return at == std::end(kLamps) ? *std::prev(at) : *at;
}

void draw_number(QPainter& p, const QRectF& area, const QString& number, const QColor& color, bool bold) {
  QFont font = p.font();
  font.setBold(bold);
  p.setFont(font);
  p.setPen(color);
  p.drawText(area, Qt::AlignCenter, number);
}

}  // namespace

bool is_picture(std::string_view word) {
  return drawing_of(word) != nullptr;
}

bool draw_picture(QPainter& p, const QRectF& area, std::string_view word, bool enabled) {
  const Drawing* drawing = drawing_of(word);
  if (!drawing) return false;
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  drawing->draw(p, square_in(area), enabled ? grey::kText : grey::kFaint);
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

void draw_tick(QPainter& p, const QRectF& area, const QColor& ink) {
  const double size = area.width();
  p.setPen(QPen(ink, size * 0.14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.drawPolyline(QPolygonF({QPointF(area.left() + size * 0.22, area.top() + size * 0.52),
                            QPointF(area.left() + size * 0.42, area.top() + size * 0.72),
                            QPointF(area.left() + size * 0.78, area.top() + size * 0.28)}));
}

void draw_lamp(QPainter& p, const QRect& area, std::string_view word, const QString& number) {
  const Lamp& lamp = lamp_of(word);
  draw_cached(p, area, "lamp " + qt(lamp.word), [&](QPainter& painter, const QRectF& whole) {
    lamp.draw(painter, whole.adjusted(2, 2, -2, -2));
  });
  draw_number(p, area, number, lamp.number, lamp.bold);
}

QString lamp_words(std::string_view word) {
  return qt(lamp_of(word).aloud);
}

int draw_swatch(QPainter& p, const QRect& area, const QColor& color, int channel) {
  const bool numbered = channel > 0 && area.width() >= kNumberedSwatch;
  const int width = numbered ? std::max(10, area.width() / 5) : 7;
  const QRect box(area.left(), area.top(), width, area.height());
  draw_cached(p, box, QStringLiteral("swatch %1").arg(color.rgb()),
              [&](QPainter& painter, const QRectF& whole) {
                painter.setPen(QPen(grey::kLine, 1));
                painter.setBrush(color);
                painter.drawRect(whole.adjusted(0.5, 0.5, -0.5, -0.5));
              });
  if (!numbered) return width;
  p.save();
  QFont small = p.font();
  small.setPixelSize(width);
  small.setBold(false);
  p.setFont(small);
  p.setPen(text_upon(color));
  p.drawText(box, Qt::AlignCenter, QString::number(channel));
  p.restore();
  return width;
}

void draw_field(QPainter& p, const QRect& area, const QColor& ground) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(grey::kLine, 1));
  p.setBrush(ground);
  p.drawRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5));
  p.restore();
}

void draw_focus_ring(QPainter& p, const QRectF& area) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(grey::kFocus, 2));
  p.drawRoundedRect(area.adjusted(1, 1, -1, -1), 4, 4);
  p.restore();
}

QString picture_words(std::string_view word) {
  const Drawing* drawing = drawing_of(word);
  return drawing ? qt(drawing->aloud) : QString();
}

}  // namespace evac::desktop
