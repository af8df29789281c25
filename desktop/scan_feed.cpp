#include "desktop/scan_feed.h"

#include <cmath>

#include "desktop/view/screen.h"
#include "model/time.h"

namespace evac::desktop {
namespace {

using namespace std::chrono_literals;

constexpr auto kLook = 200ms;
constexpr int kPaceKnown = 3;  // terminals behind which the pace says something

}  // namespace

void ScanFeed::look() {
  if (!look_) return;
  const std::optional<Pass> pass = look_();
  if (!pass && !pass_) return;
  const auto now = Clock::now();
  if (pass && pass_ && now - now_ < kLook) return;
  now_ = now;
  // A pass that asks an earlier terminal than the last look is another one.
  if (pass && (!pass_ || pass->asked < pass_->asked)) {
    begun_ = now_;
    first_ = pass->asked;
  }
  pass_ = pass;
  emit changed();
}

std::optional<int> ScanFeed::seconds_left() const {
  const int done = pass_ ? pass_->asked - first_ : 0;
  if (done < kPaceKnown) return std::nullopt;
  const double seconds = std::chrono::duration<double>(now_ - begun_).count();
  return static_cast<int>(std::ceil(seconds / done * (pass_->of - pass_->asked + 1)));
}

QString ScanFeed::text() const {
  if (!pass_) return {};
  const QString asked = QStringLiteral("Опрошено %1 из %2").arg(pass_->asked - 1).arg(pass_->of);
  const auto left = seconds_left();
  return left ? asked + QStringLiteral(", осталось около %1").arg(qt(time_text(*left))) : asked;
}

}  // namespace evac::desktop
