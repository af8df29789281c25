// The main window: the header strip, and the seven tabs beneath it.
#include "desktop/layouts/layouts.h"
#include "desktop/layouts/parts.h"
#include "model/system_model.h"

namespace evac::desktop {
namespace {

Node header_strip() {
  const Node left = column({use("LblDate").shown(Look::kTitle).wide(26),
                            row({use("PctD1"), use("LblCon").wide(13), use("PctD0"), use("LblSs").wide(13)}),
                            row({use("Picture2").wide(12), space(), extra("Стенд")})});
  const Node right = column({use("LblU", 5).shown(Look::kBig).wide(26),
                             row({use("LblU", 0).shown(Look::kBig).wide(18).grow(1),
                                  use("LblT").of("AlarmTab").shown(Look::kBig).wide(5).called("Осталось")}),
                             fires("PctA").wide(20)})
                         .shown(Look::kValue)
                         .packed();
  return column({row({Node(left).grow(1), Node(right).grow(1)}), notices()}).packed();
}

Node alarm_tab() {
  const Node manual = frame(
      "Frm6",
      column(
          {row({words("Сообщение").wide(5.5), use("CmbF").grow(1), use("LblL").shown(Look::kValue).wide(4)}),
           amount("Повторы", "VS1", "LblKl"),
           row({use("CmdAl").shown(Look::kBig).high(2.6).grow(1),
                use("CmdCan").shown(Look::kBig).high(2.6).grow(1)}),
           amount("№ Алг", "VSFD", "LblFD"),
           row({use("CmdDem").shown(Look::kBig).high(3.2).grow(1),
                use("CmdStF").shown(Look::kStop).high(3.2).grow(2)}),
           amount("Номер группы", "VSRT1", "LblU1"), amount("Кол-во дополн групп", "VSRT2", "LblU2"),
           amount("Номер следующей группы", "VSRT3", "LblU3"), space()}));
  const Node groups =
      row({use("CmdAG").shown(Look::kBig).high(2.8).grow(1), use("CmdTG").shown(Look::kBig).high(2.8).grow(1),
           use("CmdAlAl").shown(Look::kBig).high(2.8).grow(1)});
  const Node lamps =
      frame("Frm8", board("PctA", 1, kZones, 12).shown(Look::kLamp).wide(2.6).high(1.9).called("Зона"));
  const Node status =
      column(
          {use("LblU", 5).shown(Look::kHuge).wide(20).high(3.2),
           use("LblU", 0).shown(Look::kHuge).wide(20).high(1.8),
           row({words("Осталось").wide(5), use("LblT").of("AlarmTab").shown(Look::kHuge).wide(8), space()})})
          .shown(Look::kValue)
          .packed();
  return row({column({Node(lamps).grow(1), groups}).grow(5), column({status, Node(manual).grow(1)}).grow(3)});
}

Node zones_tab() {
  return frame(
      "Frame13",
      column({rows_of({"CmdAZ", "CmdCh", "CmdVol"}, {"Зона", "Канал", "Громк"}, 1, kZones, 8)
                  .each_shown({Look::kCell, Look::kValue, Look::kNormal})
                  .wide(2.2)
                  .high(1.5)
                  .grow(1),
              row({use("CmdAllZ").wide(12), use("CmdGr2").wide(12), use("CmdGrK").wide(12),
                   use("CmdSch").wide(13), column({use("Lbpr").wide(18), use("PB2")}).packed().grow(1)})}));
}

Node channel_panel() {
  Nodes cells = {words(""), words("Источник"), words(""), words("Громкость"), words(""), words("")};
  for (int channel = 1; channel <= kChannels; ++channel) {
    cells.push_back(row({use("L1", channel).shown(Look::kSwatch).wide(1.2), use("Opt", channel)}));
    cells.push_back(use("Label2", channel).shown(Look::kValue).wide(7.5).called("Источник канала"));
    cells.push_back(use("Pic", channel).called("Источник играет"));
    cells.push_back(use("VS_Z", channel).called("Громкость канала").wide(9).grow(1));
    cells.push_back(use("LblZ", channel).shown(Look::kValue).wide(2.2).called("Громкость канала"));
    cells.push_back(use("L2", channel).shown(Look::kSwatch).wide(1.2));
  }
  return frame(
      "Frm5", column({grid(6, std::move(cells)), row({use("L1", kChannels + 1).shown(Look::kSwatch).wide(1.2),
                                                      words("Не выбран"), space()})}));
}

Node terminals_tab() {
  const Node setting =
      frame("Frame6", column({row({use("Option1"), use("Option3"), space()}),
                              row({words("№ пресета"), use("VsUs").called("№ пресета").grow(1),
                                   use("LblUs").shown(Look::kValue).wide(3)}),
                              use("CmdU").shown(Look::kBig).high(3), space()}));
  return row(
      {frame("Frame12", board("CmdAT", 1, kTerminals, 15).shown(Look::kCell).wide(2.2).high(1.6)).grow(3),
       column({channel_panel(), Node(setting).grow(1)}).grow(2)});
}

Node player_tab() {
  return row({frame("Frame9", column({use("LblUP").shown(Look::kTitle),
                                      use("CmdPMP").shown(Look::kBig).high(3), space()}))
                  .grow(1),
              frame("Frame7", 1, column({space()})).grow(2)});
}

Node output_choice(const char* option) {
  Nodes buttons = {words("Выход").wide(4)};
  for (int output = 0; output < 8; ++output) buttons.push_back(use(option, output).called("выход"));
  return row(std::move(buttons)).packed();
}

Node deck(const char* button, const char* state, const char* option) {
  const auto key = [&](int i, const char* sign, const char* what) {
    return use(button, i).with_sign(sign).called(what).high(2.6).grow(1);
  };
  return column(
      {use(state).shown(Look::kValue).high(2).wide(16),
       row({key(0, "play", "Воспроизведение"), key(2, "previous", "Предыдущая дорожка"),
            key(1, "next", "Следующая дорожка"), key(3, "stop", "Стоп"), key(4, "restart", "В начало")}),
       output_choice(option), space()});
}

Node sources_tab() {
  const Node tuner =
      column({use("LblT").of("SourcesTab").shown(Look::kValue).high(2).wide(16),
              row({use("CmdT", 0).high(2.6).grow(1), use("CmdT", 1).high(2.6).grow(1),
                   use("CmdT", 3).with_sign("previous").called("Предыдущая станция").high(2.6).grow(1),
                   use("CmdT", 2).with_sign("next").called("Следующая станция").high(2.6).grow(1),
                   use("CmdT", 4).with_sign("stop").called("Стоп").high(2.6).grow(1)}),
              output_choice("Opt_t"), space()});
  Nodes matrix;
  for (int output = 0; output < 8; ++output) {
    static constexpr const char* kHeads[] = {"CH1", "CH2", "CH3", "CH4", "CH5", "CH6", "CH7", "CH8"};
    Nodes inputs = {words(kHeads[output]).shown(Look::kBig)};
    for (int input = 0; input < 8; ++input)
      inputs.push_back(use("Opt1", 8 * output + input).called(kHeads[output]));
    inputs.push_back(space());
    matrix.push_back(column(std::move(inputs)).grow(1));
  }
  return column(
      {row({frame("Frame1", deck("CmdCD", "LblCD", "Opt_cd")).grow(1),
            frame("Frame2", 0, deck("CmdMP3", "LblMP3", "Opt_mp")).grow(1), frame("Frame3", tuner).grow(1)}),
       frame("Frame4", 1, row(std::move(matrix))).grow(1)});
}

Node control_tab() {
  Nodes heads;
  for (int i = 1; i <= 5; ++i) heads.push_back(use("Cd1", i).grow(1).wide(4));
  const Node scan =
      frame("Frame15",
            column({row({use("CmdSkan").shown(Look::kBig).wide(7).high(2.4),
                         column({use("LbPrB").wide(16), use("PB1")}).packed().grow(1),
                         column({words("Терминал"), use("Lbl_A", 4).shown(Look::kValue).wide(4)}).packed()}),
                    row(std::move(heads)).packed(), use("MSF2").grow(1)}));
  const Node terminals = frame(
      "Frame7", 0,
      column({row({words("Монитор").wide(6), use("CmdZ").wide(6).high(2.2), use("PctM").called("Состояние")}),
              row({words("Ручной опрос").wide(6), use("CmdArm").wide(6).high(2.2),
                   use("CmdSb").wide(6).high(2.2)}),
              use("Label3").wide(14), use("Lbl_m").shown(Look::kValue).wide(15)}));
  const Node timer = frame("Frame7", 2,
                           column({use("CmdTV").wide(6).high(2.2), use("LblTm").wide(14),
                                   use("LblT2").wide(14), use("LblTmr").wide(14), space()}));
  return row(
      {Node(scan).grow(1),
       column({frame("Frame8", row({Node(terminals).grow(1), Node(timer).grow(1)})),
               row({frame("Frame10", use("List5")).grow(1), frame("Frame11", use("List4")).grow(1)}).grow(1)})
           .grow(1)});
}

Node power_tab() {
  static constexpr const char* kOutletArrays[] = {"CmdTW1", "CmdTW2", "CmdTW3", "CmdTW4",
                                                  "CmdTW5", "CmdTW6", "CmdTW7", "CmdTW8"};
  Nodes blocks;
  for (int block = 0; block < kSequencers; ++block)
    blocks.push_back(
        frame("Frame5", block, board(kOutletArrays[block], 0, kOutlets, 4).wide(3.6).high(2.2)).grow(1));
  const Node alarm = frame(
      "Frame5", kSequencers,
      column({use("CmdTW9").shown(Look::kBig).high(3), use("CmdTW10").shown(Look::kBig).high(3), space()}));
  const auto heard = [](const char* what, const char* list) {
    return column({words(what), use(list).wide(6).grow(1)}).grow(1);
  };
  const Node log = row({heard("Вход 1", "List1"), heard("Время", "List2"), heard("Вход 2", "List3")});
  return row(
      {grid(2, std::move(blocks)).grow(2), column({alarm, Node(log).grow(1), use("Command1")}).grow(1)});
}

}  // namespace

WindowLayout form1_layout() {
  return {"Form1",
          column({header_strip(), tabs("SSTab1", {alarm_tab(), zones_tab(), terminals_tab(), player_tab(),
                                                  sources_tab(), control_tab(), power_tab()})
                                      .grow(1)}),
          // Picture stores and listers; the sixth channel row and the last deck buttons, which do nothing;
          // the status lines that nothing writes; the two inputs that only other code could fill.
          {{"PctD2", {}},  {"PctD3", {}}, {"PctD4", {}}, {"Pct_Kon", {}}, {"Pct_Koff", {}}, {"Dir1", {}},
           {"Dir3", {}},   {"File1", {}}, {"Opt", 0},    {"VS_Z", 0},     {"LblZ", 0},      {"CmdCD", 5},
           {"CmdMP3", 5},  {"LblU", 1},   {"LblU", 2},   {"LblU", 3},     {"LblU", 4},      {"LblU", 6},
           {"Label1", {}}, {"Text1", {}}, {"Text2", {}}}};
}

WindowLayout form2_layout() {
  return {"Form2",
          row({use("Picture1").wide(6).high(6),
               column({use("Label1").shown(Look::kTitle), use("Label2"), space()})}),
          {}};
}

}  // namespace evac::desktop
