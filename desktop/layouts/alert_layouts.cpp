// The settings windows of alerting.
#include "desktop/layouts/layouts.h"
#include "desktop/layouts/parts.h"
#include "model/system_model.h"

namespace evac::desktop {
namespace {

// A message: its file, its length, and the two buttons that let it be heard.
Node message(const char* file, const char* length, const char* play, const char* stop) {
  return column({row({use(file).called("Сообщение").wide(12).grow(1),
                      use(length).shown(Look::kValue).wide(4).called("Длина")}),
                 row({use(play).grow(1), use(stop).grow(1)})});
}

Node supervision() {
  return column({row({use("ChkM"), use("ChkZ"), space()}), amount("Часы", "VSH", "LblH", 6),
                 amount("Минуты", "VSM", "LblM", 6), amount_of("LblCycles", "VSkS", "LblKs", 6)});
}

Node algorithms() {
  // Stops in step with the words of the heading.
  const std::vector<double> stops = {4.6, 4.8, 8.7, 4.2};
  return frame(
      "Frm3",
      row({column({use("LblHead").wide(24), pile("Lst1", 1, kZones).cut_at(stops).wide(26).high(13).grow(1),
                   row({use("CmdAdd").high(2).grow(1), use("CmdDel").high(2).grow(1)})})
               .grow(1),
           column({amount("№ алгоритма", "VSNA", "LblNa", 6),
                   message("CmbF3", "LblL3", "CmdSound3", "CmdStop3"), amount("Повторы", "VS3", "LblKl3", 6),
                   use("CmdZ").high(2), use("CmdPF").high(2), use("List1").wide(14).high(5).grow(1)})}));
}

}  // namespace

WindowLayout form5_layout() {
  const Node types =
      column({words("Тип оповещения").shown(Look::kBig), use("Opt1", 0), use("Opt1", 1), use("Opt1", 2),
              words("Источник звука").shown(Look::kBig), use("Opt2", 0), use("Opt2", 1), space()});
  const Node block = frame("Frm1", column({message("CmbF1", "LblL", "CmdSound1", "CmdStop1"),
                                           amount("Повторы", "VS1", "LblKl", 5)}));
  const Node manual = frame("Frm2", column({message("CmbF2", "LblL2", "CmdSound2", "CmdStop2"),
                                            amount("Повторы", "VS2", "Lblkl2", 5)}));
  const Node shown_only =
      row({column({amount("С зоны", "VsFr", "LblFr", 6), amount("По зону", "VsTo", "LblTo", 6),
                   amount("Порядок", "VsPo", "LblPo", 6)})
               .grow(1),
           column({amount_of("LblGroup", "VSRT1", "LblU1", 11), amount_of("LblMore", "VSRT2", "LblU2", 11),
                   amount_of("LblNext", "VSRT3", "LblU3", 11)})
               .grow(1)});
  const Node watch = column({words("Контроль терминалов").shown(Look::kBig), supervision()});
  return {"Form5",
          column({row({types, column({block, manual}).grow(1), Node(watch).grow(1)}),
                  Node(algorithms()).grow(1), shown_only,
                  row({use("ChkUK"), use("ChkA"), space(), use("CmdSave").wide(8).high(2.2),
                       use("Command2").wide(8).high(2.2)})}),
          {}};
}

WindowLayout form7_layout() {
  return {"Form7",
          column({frame("Frame1", board("Chk", 0, kZones, 12).wide(3.6)).grow(1), use("ChkAll"),
                  foot({use("CmdSave"), use("Command2")})}),
          {}};
}

}  // namespace evac::desktop
