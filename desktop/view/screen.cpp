#include "desktop/view/screen.h"

#include <QScopedValueRollback>
#include <QWidget>

namespace evac::desktop {

Screen::~Screen() = default;

void Screen::bind(Control& control, Face& face) {
  auto& view = views_[&control];
  if (!view) view = std::make_unique<View>(*this, control);
  view->faces.push_back(&face);
}

void Screen::unbind(Control& control, Face& face) {
  const auto at = views_.find(&control);
  if (at == views_.end()) return;
  std::erase(at->second->faces, &face);
  if (!at->second->faces.empty()) return;
  std::erase(changed_, at->second.get());
  views_.erase(at);
}

std::vector<Face*> Screen::faces(const Control& control) const {
  const auto at = views_.find(&control);
  return at == views_.end() ? std::vector<Face*>{} : at->second->faces;
}

void Screen::act(std::function<void()> deed) {
  loop_.post([this, deed = std::move(deed)] {
    const QScopedValueRollback act(act_, loop_.running());
    deed();
  });
}

void Screen::set_sign(Picture& control, std::string_view word) {
  const auto had = signs_.find(&control);
  if ((had == signs_.end() ? std::string_view() : had->second) == word) return;
  if (word.empty())
    signs_.erase(had);
  else
    signs_[&control] = word;
  if (const auto at = views_.find(&control); at != views_.end()) at->second->control_changed(control);
}

std::string_view Screen::picture_of(const Picture& control) const {
  const auto sign = signs_.find(&control);
  return sign == signs_.end() ? std::string_view(control.picture()) : sign->second;
}

void Screen::flush() {
  while (!changed_.empty()) {
    const auto views = std::exchange(changed_, {});
    for (View* view : views) view->refresh();
  }
}

void Screen::View::control_changed(Control&) {
  if (waiting_) return;
  waiting_ = true;
  screen_.changed_.push_back(this);
}

void Screen::View::focus_wanted(Control&) {
  if (faces.empty()) return;
  // A control that has just been enabled must be so on the screen too.
  refresh();
  faces.front()->widget().setFocus(Qt::OtherFocusReason);
}

void Screen::View::refresh() {
  waiting_ = false;
  for (Face* face : faces) face->refresh();
}

void Deeds::post(std::function<void()> deed) {
  ++*count_;
  screen_.act([deed = std::move(deed), count = count_, &face = face_] {
    // The deed may wait inside for long, but it is no longer on its way.
    --*count;
    deed();
    if (*count == 0) face.refresh();
  });
}

}  // namespace evac::desktop
