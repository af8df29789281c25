// The settings windows of equipment, zones, terminals and their names.
#include "desktop/layouts/layouts.h"
#include "desktop/layouts/parts.h"

namespace evac::desktop {
namespace {

Node source_rows(Form22& form) {
  Nodes cells = {words(""), words("Источник"), words("Громкость"), words(""), words("#"), words("")};
  // The first row is the sixth channel, and stands lowest.
  for (const int i : {1, 2, 3, 4, 5, 0}) {
    const std::string channel = " канала " + std::to_string(i > 0 ? i : kSourceRows);
    cells.push_back(use(form.LblC[i]).wide(5));
    cells.push_back(use(form.Combo1[i]).called("Источник" + channel).wide(10));
    cells.push_back(use(form.VS_Z[i]).called("Громкость" + channel).wide(10).grow(1));
    cells.push_back(use(form.LblZ[i]).shown(Look::kValue).wide(2.4).called("Громкость" + channel));
    cells.push_back(use(form.VS_N[i]).called("Выход источника" + channel).wide(7));
    cells.push_back(use(form.LblN[i]).shown(Look::kValue).wide(2.4).called("Выход источника" + channel));
  }
  return grid(6, std::move(cells));
}

Node outlet_grid(Form22& form) {
  Nodes columns;
  for (int block = 1; block <= kSequencers; ++block) {
    Nodes boxes = {use(form.LblB[block]).shown(Look::kBig).wide(3.5)};
    for (CheckBox& outlet : form.Chk(block))
      boxes.push_back(use(outlet).called("Блок питания " + std::to_string(block) + " " + outlet.caption()));
    columns.push_back(column(std::move(boxes)).packed());
  }
  return row(std::move(columns));
}

// Cells of zones or terminals beside the legend of channels.
Node cells_and_legend(CellWindow& form, const Node& cells, Nodes legend_foot) {
  Nodes legend;
  for (int channel = 1; channel <= kChannels + 1; ++channel) {
    legend.push_back(use(form.L1[channel]).shown(Look::kSwatch).wide(2));
    legend.push_back(use(form.Label2[channel]).wide(7.5));
    legend.push_back(channel <= kChannels ? use(form.LblZ[channel]).shown(Look::kValue).wide(2.4)
                                          : words(""));
  }
  Nodes side = {words("Звуковые каналы").shown(Look::kBig), grid(3, std::move(legend)),
                words("Двойное нажатие включает и выключает, правое назначает канал.").wide(13)};
  for (Node& node : legend_foot) side.push_back(std::move(node));
  side.push_back(space());
  side.push_back(use(form.Command2).high(2.2).key("И"));
  side.push_back(use(form.Command1).high(2.2).key("С"));
  side.push_back(use(form.Command3).high(2.2).key("В"));
  return row({Node(cells).shown(Look::kCell).wide(2.4).high(1.8).grow(1), column(std::move(side))});
}

Node name_window(NameWindow& form) {
  return column(
      {use(form.List1).called("Имена").cut_at({4}).wide(22).high(14).grow(1),
       row({words("Номер").wide(7.5), use(form.VS1).called("Номер").grow(1),
            use(form.LblZ).shown(Look::kValue).wide(3).called("Номер")}),
       row({words("Наименование").wide(7.5), use(form.Txt1).called("Наименование").grow(1)}),
       row({use(form.CmdAdd).high(2.2).key("Д").grow(1), use(form.CmdDel).high(2.2).key("У").grow(1),
            use(form.CmdSave).high(2.2).key("С").grow(1)})});
}

}  // namespace

WindowLayout layout(Form22& form) {
  const Node cards =
      frame(form.Frame3, grid(2, {use(form.LblK1).wide(6), use(form.PctD1).called("Карта зон 1-64"),
                                  use(form.LblK2).wide(6), use(form.PctD2).called("Карта зон 65-120")}));
  return {
      form,
      column({row({source_rows(form).grow(1),
                   column({frame(form.Frame1, column({use(form.Opt1), use(form.Opt2)})), cards, space()})}),
              frame(form.Frame2, outlet_grid(form)),
              foot({use(form.Command1).key("С"), use(form.Command2).key("В")})}),
      // The two pictures that the cards' indicators take.
      OutOfSight(form.PctD, form.PctD3)};
}

WindowLayout layout(Form33& form) {
  return {form,
          cells_and_legend(form, board(form.Lbl, 12).called("Зона").switching("выключена", "включена"), {})};
}

WindowLayout layout(Form55& form) {
  const Node terminals = board(form.Lbl, 17).called("Терминал").switching("выключен", "включен");
  return {form,
          cells_and_legend(form, terminals,
                           {words("№ пресета").shown(Look::kBig),
                            row({use(form.VsUs).called("Номер пресета").grow(1),
                                 use(form.LblUs).shown(Look::kValue).wide(3).called("Номер пресета")})})};
}

WindowLayout layout(Form6& form) {
  return {form, name_window(form)};
}

WindowLayout layout(Form4& form) {
  return {form, name_window(form)};
}

}  // namespace evac::desktop
