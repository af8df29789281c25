#include "desktop/view/spoken.h"

#include <QAccessibleWidget>
#include <QWidget>
#include <algorithm>

#include "platform/controls.h"

namespace evac::desktop {
namespace {

class SpokenInterface : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  SpokenInterface(QWidget& widget, Spoken& spoken)
      : QAccessibleWidget(&widget, spoken.role()), spoken_(spoken) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (const auto pressed = spoken_.pressed()) {
      state.checkable = true;
      state.checked = *pressed;
    }
    return state;
  }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    const bool takes_presses =
        role() == QAccessible::Button || role() == QAccessible::ComboBox || spoken_.pressed();
    if (takes_presses) names.prepend(pressAction());
    return names;
  }
  void doAction(const QString& action) override {
    action == pressAction() ? spoken_.press() : QAccessibleWidget::doAction(action);
  }
  QStringList keyBindingsForAction(const QString& action) const override {
    return action == pressAction() && !spoken_.key().isEmpty() ? QStringList{spoken_.key()} : QStringList{};
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface && spoken_.progress())
      return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QVariant currentValue() const override { return spoken_.progress().value_or(std::pair(0, 0)).first; }
  QVariant maximumValue() const override { return spoken_.progress().value_or(std::pair(0, 0)).second; }
  QVariant minimumValue() const override { return 0; }
  QVariant minimumStepSize() const override { return 1; }
  void setCurrentValue(const QVariant&) override {}

 private:
  Spoken& spoken_;
};

QAccessibleInterface* make_spoken(const QString&, QObject* object) {
  auto* spoken = dynamic_cast<Spoken*>(object);
  return spoken ? new SpokenInterface(*static_cast<QWidget*>(object), *spoken) : nullptr;
}

bool has_handler(const Control& control) {
  return control.click || control.double_click || control.mouse_down || control.mouse_move;
}

bool is_button(const Control& control) {
  return control.kind() == Kind::kButton;
}

}  // namespace

void tell_turned(QObject& widget) {
  QAccessible::State turned;
  turned.checked = true;
  QAccessibleStateChangeEvent event(&widget, turned);
  QAccessible::updateAccessibility(&event);
}

void speak_for_widgets() {
  QAccessible::installFactory(make_spoken);
}

QString spoken_name(const QString& words, const QStringList& values) {
  QString name = words;
  for (const QString& value : values) {
    if (value.isEmpty() || name == value || name.endsWith(' ' + value)) continue;
    if (!name.isEmpty()) name += QStringLiteral(", ");
    name += value;
  }
  return name;
}

bool is_connected(const Control& control) {
  if (has_handler(control)) return true;
  switch (control.kind()) {
    case Kind::kButton:
    case Kind::kMenuItem:
      return false;
    case Kind::kOptionButton:
    case Kind::kCheckBox:
    case Kind::kComboBox:
    case Kind::kListBox:
    case Kind::kTextBox:
    case Kind::kMaskedEdit: {
      if (!control.frame()) return true;
      bool any = false, working = false;
      for (const Control* other : control.form().controls()) {
        if (other->frame() != control.frame() || !is_button(*other)) continue;
        any = true;
        working = working || has_handler(*other);
      }
      return working || !any;
    }
    default:
      return true;
  }
}

}  // namespace evac::desktop
