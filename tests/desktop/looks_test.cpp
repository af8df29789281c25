// What the eye can tell: contrasts and sizes, measured from the painted pixels of every tab and window.
#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <map>

#include "desktop/view/labels.h"
#include "desktop/view/palette.h"
#include "training_desktop.h"

namespace evac::desktop {
namespace {

constexpr double kTextContrast = 4.5, kEdgeContrast = 3.0;

class Looks : public TrainingDesktop {
 protected:
  Looks() {
    desktop->start();
    resize_main(1260, 650);
  }

  // Shows each tab and each other window in turn.
  void each_view(const std::function<void(FormWindow&, const std::string&)>& look) {
    for (int tab = 0; tab < static_cast<int>(form1().SSTab1.tabs().size()); ++tab) {
      form1().SSTab1.set_value(tab);
      settle();
      QApplication::processEvents();
      look(main_window(), form1().SSTab1.tabs()[static_cast<std::size_t>(tab)]);
    }
    for (Form* form : desktop->console().windows().forms()) {
      if (form == &form1()) continue;
      FormWindow& window = desktop->windows().window(*form);
      window.show();
      settle();
      look(window, form->name());
      window.hide();
    }
  }
  // The widgets of controls that are to be seen now.
  std::vector<std::pair<Control*, QWidget*>> shown(Form& form) {
    std::vector<std::pair<Control*, QWidget*>> all;
    for (Control* control : form.controls())
      for (Face* face : desktop->screen().faces(*control))
        if (face->widget().isVisible()) all.emplace_back(control, &face->widget());
    return all;
  }
};

QRect place_of(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

// The best contrast of any pixel with the most frequent one: of a text with what it is written on.
double text_contrast(const QImage& image, const QRect& area) {
  std::map<QRgb, int> counts;
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x) ++counts[image.pixel(x, y)];
  const auto ground =
      std::max_element(counts.begin(), counts.end(), [](auto& a, auto& b) { return a.second < b.second; });
  double best = 1;
  for (const auto& [color, count] : counts) best = std::max(best, contrast(QColor(color), ground->first));
  return best;
}

// The best contrast of neighbours along the middle of the left edge.
double edge_contrast(const QImage& image, const QRect& widget) {
  QColor lightest = Qt::black, darkest = Qt::white;
  for (int x = std::max(0, widget.left() - 2); x < widget.left() + 5; ++x) {
    const QColor color = image.pixelColor(x, widget.center().y());
    if (color.lightnessF() > lightest.lightnessF()) lightest = color;
    if (color.lightnessF() < darkest.lightnessF()) darkest = color;
  }
  return contrast(lightest, darkest);
}

bool has_edge(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
         qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QAbstractSlider*>(&widget) ||
         qobject_cast<const QAbstractScrollArea*>(&widget);
}

// Where the text of a widget stands, without its edge, its ring or its swatch; empty when it has none.
QRect text_area(const Control& control, const QWidget& widget) {
  const bool lamp = control.kind() == Kind::kPicture && control.index();
  if (control.caption().empty() && !lamp) return {};
  const QRect area = place_of(widget);
  switch (control.kind()) {
    case Kind::kButton:
      return area.adjusted(area.width() / 4, 4, -4, -4);
    case Kind::kOptionButton:
    case Kind::kCheckBox:
      return area.adjusted(area.height(), 2, 0, -2);
    case Kind::kLabel:
    case Kind::kPicture:
      return area.adjusted(6, 4, -6, -4);
    default:
      return {};
  }
}

TEST_F(Looks, EveryTextAndEveryEdgeCanBeTold) {
  form1().PctA[2].set_picture(picture::kYes);
  form1().PctA[3].set_picture(picture::kPause);
  form1().CmdAZ[1].set_enabled(true);
  form1().CmdAZ[1].set_back_color(Color::kChannel2);
  form1().CmdDem.set_back_color(Color::kFireTest);
  form1().CmdAl.set_back_color(Color::kOn);
  int texts = 0, edges = 0;
  each_view([&](FormWindow& window, const std::string& name) {
    const QImage image = window.grab().toImage();
    for (const auto& [control, widget] :
         shown(*desktop->console().windows().find(window.objectName().toStdString()))) {
      const std::string what = name + ": " + control->full_name();
      if (const QRect area = text_area(*control, *widget); !area.isEmpty()) {
        EXPECT_GE(text_contrast(image, area), kTextContrast) << what;
        ++texts;
      }
      // A cell for something that is not there is no control.
      if (has_edge(*widget) && (widget->isEnabled() || !control->caption().empty())) {
        EXPECT_GE(edge_contrast(image, place_of(*widget)), kEdgeContrast) << what;
        ++edges;
      }
    }
  });
  EXPECT_GT(texts, 1000);
  EXPECT_GT(edges, 900);
}

TEST_F(Looks, NothingIsCutOffAtTheSmallestSizeWithTheBarOfTheAlarm) {
  each_view([&](FormWindow& window, const std::string& name) {
    EXPECT_LE(window.minimumSizeHint().width(), 1260) << name;
    EXPECT_LE(window.minimumSizeHint().height(), 650) << name;
    for (auto* page : window.findChildren<QScrollArea*>()) {
      if (!page->isVisible()) continue;
      EXPECT_LE(page->widget()->minimumSizeHint().width(), page->viewport()->width()) << name;
      EXPECT_LE(page->widget()->minimumSizeHint().height(), page->viewport()->height()) << name;
    }
    for (auto* words : window.findChildren<QLabel*>()) {
      if (!words->isVisible()) continue;
      const QRect room = words->rect().adjusted(0, 0, 1, 1);
      const QRect needed = words->fontMetrics().boundingRect(room, Qt::TextWordWrap, words->text());
      EXPECT_TRUE(room.width() >= needed.width() && room.height() >= needed.height())
          << name << ": " << words->text().toStdString();
    }
    for (const auto& [control, widget] :
         shown(*desktop->console().windows().find(window.objectName().toStdString()))) {
      const std::string what = name + ": " + control->full_name();
      EXPECT_TRUE(window.rect().contains(place_of(*widget))) << what;
      if (control->kind() != Kind::kButton && control->kind() != Kind::kLabel) continue;
      const QRect room = widget->rect().adjusted(2, 0, -2, 2);
      const QRect needed = widget->fontMetrics().boundingRect(room, Qt::TextWordWrap, qt(control->caption()));
      EXPECT_TRUE(room.width() >= needed.width() && room.height() >= needed.height()) << what;
    }
  });
}

}  // namespace
}  // namespace evac::desktop
