// The settings windows of equipment, zones, terminals and their names.
#include "desktop/layouts/layouts.h"
#include "desktop/layouts/parts.h"
#include "model/system_model.h"

namespace evac::desktop {
namespace {

constexpr int kSourceRows = 6;

Node source_rows() {
  Nodes cells = {words(""), words("Источник"), words("Громкость"), words(""), words("#"), words("")};
  // The first row is the sixth channel, and stands lowest.
  for (const int i : {1, 2, 3, 4, 5, 0}) {
    cells.push_back(use("LblC", i).wide(5));
    cells.push_back(use("Combo1", i).called("Источник").wide(10));
    cells.push_back(use("VS_Z", i).called("Громкость").wide(10).grow(1));
    cells.push_back(use("LblZ", i).shown(Look::kValue).wide(2.4));
    cells.push_back(use("VS_N", i).called("Выход источника").wide(7));
    cells.push_back(use("LblN", i).shown(Look::kValue).wide(2.4));
  }
  return grid(kSourceRows, std::move(cells));
}

Node outlet_grid() {
  static constexpr const char* kColumns[] = {"Chk1", "Chk2", "Chk3", "Chk4", "Chk5", "Chk6", "Chk7", "Chk8"};
  Nodes columns;
  for (int block = 1; block <= kSequencers; ++block) {
    Nodes boxes = {use("LblB", block).shown(Look::kBig).wide(3.5)};
    for (int outlet = 0; outlet < kOutlets; ++outlet)
      boxes.push_back(use(kColumns[block - 1], outlet).called("Выход блока питания"));
    columns.push_back(column(std::move(boxes)).packed());
  }
  return row(std::move(columns));
}

// Cells of zones or terminals beside the legend of channels.
Node cells_and_legend(int cells, int columns, Nodes legend_foot) {
  Nodes legend;
  for (int channel = 1; channel <= kChannels + 1; ++channel) {
    legend.push_back(use("L1", channel).shown(Look::kSwatch).wide(2));
    legend.push_back(use("Label2", channel).wide(7.5));
    legend.push_back(channel <= kChannels ? use("LblZ", channel).shown(Look::kValue).wide(2.4) : words(""));
  }
  Nodes side = {words("Звуковые каналы").shown(Look::kBig), grid(3, std::move(legend)),
                words("Двойное нажатие включает и выключает, правое назначает канал.").wide(13)};
  for (Node& node : legend_foot) side.push_back(std::move(node));
  side.push_back(space());
  for (const char* button : {"Command2", "Command1", "Command3"}) side.push_back(use(button).high(2.2));
  return row({board("Lbl", 1, cells, columns).shown(Look::kCell).wide(2.6).high(1.8).grow(1),
              column(std::move(side))});
}

Node name_window() {
  return column({use("List1").cut_at({4}).wide(22).high(18).grow(1),
                 row({words("Номер").wide(7.5), use("VS1").called("Номер").grow(1),
                      use("LblZ").shown(Look::kValue).wide(3)}),
                 row({words("Наименование").wide(7.5), use("Txt1").called("Наименование").grow(1)}),
                 row({use("CmdAdd").high(2.2).grow(1), use("CmdDel").high(2.2).grow(1),
                      use("CmdSave").high(2.2).grow(1)})});
}

}  // namespace

WindowLayout form22_layout() {
  const Node cards =
      frame("Frame3", grid(2, {use("LblK1").wide(6), use("PctD1").called("Карта зон 1-64"),
                               use("LblK2").wide(6), use("PctD2").called("Карта зон 65-120")}));
  return {"Form22",
          column({row({source_rows().grow(1),
                       column({frame("Frame1", column({use("Opt1"), use("Opt2")})), cards, space()})}),
                  frame("Frame2", outlet_grid()), foot({use("Command1"), use("Command2")})}),
          // The two pictures that the cards' indicators take.
          {{"PctD", {}}, {"PctD3", {}}}};
}

WindowLayout form33_layout() {
  return {"Form33", cells_and_legend(kZones, 12, {}), {}};
}

WindowLayout form55_layout() {
  return {"Form55",
          cells_and_legend(
              kTerminals, 17,
              {words("№ пресета").shown(Look::kBig),
               row({use("VsUs").called("№ пресета").grow(1), use("LblUs").shown(Look::kValue).wide(3)})}),
          {}};
}

WindowLayout form6_layout() {
  return {"Form6", name_window(), {}};
}

WindowLayout form4_layout() {
  return {"Form4", name_window(), {}};
}

}  // namespace evac::desktop
