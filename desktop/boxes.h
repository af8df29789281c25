// Message and input boxes. They are run to their end inside the handler that raises them, so that everything
// of the console holds until they are answered.
#pragma once

#include <functional>

#include "platform/machine.h"

class QWidget;

namespace evac::desktop {

class QtBoxes : public Boxes {
 public:
  void message(std::string_view text, std::string_view title) override;
  bool ask(std::string_view text, std::string_view title) override;
  std::string input(std::string_view prompt, std::string_view title, std::string_view preset) override;

  // Called before a box comes up: shows what has changed so far.
  std::function<void()> before_box = [] {};
};

// The platform's error message for a fault that nothing caught.
void show_fault(int number, const std::string& text);

}  // namespace evac::desktop
