#include "platform/windows.h"

#include <algorithm>

namespace evac {

void Windows::show(Form& form) {
  if (form.shown_) return;
  form.shown_ = true;
  form.modal_ = false;
  open_.push_back(&form);
  host_.form_shown(form, false);
}

void Windows::show_modal(Form& form) {
  if (form.shown_) return;
  form.shown_ = form.modal_ = true;
  open_.push_back(&form);
  host_.form_shown(form, true);
  while (form.shown_) loop_.pump();
}

void Windows::hide(Form& form) {
  if (!form.shown_) return;
  form.shown_ = false;
  std::erase(open_, &form);
  host_.form_hidden(form);
}

void Windows::close(Form& form) {
  if (form.query_unload)
    form.query_unload();
  else
    hide(form);
}

Form* Windows::find(std::string_view name) const {
  const auto at =
      std::find_if(forms_.begin(), forms_.end(), [&](Form* form) { return form->name() == name; });
  return at == forms_.end() ? nullptr : *at;
}

Form* Windows::modal() const {
  const auto at = std::find_if(open_.rbegin(), open_.rend(), [](Form* form) { return form->modal(); });
  return at == open_.rend() ? nullptr : *at;
}

bool Windows::reachable(const Form& form) const {
  // From the last shown down to the first modal one.
  for (auto at = open_.rbegin(); at != open_.rend(); ++at) {
    if (*at == &form) return true;
    if ((*at)->modal()) return false;
  }
  return false;
}

void Windows::show_popup(PopupMenu& menu) {
  take_down_popup();
  popup_ = &menu;
  host_.popup_shown(menu);
}

void Windows::take_down_popup() {
  if (!popup_) return;
  PopupMenu& menu = *std::exchange(popup_, nullptr);
  host_.popup_hidden(menu);
}

}  // namespace evac
