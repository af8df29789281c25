// The tabs of zones, terminals, music sources and power.
#include <array>

#include "desktop/layouts/form1_tabs.h"
#include "desktop/view/pictures.h"
#include "platform/pictures.h"

namespace evac::desktop {

Node zones_tab(Form1& form) {
  return frame(form.Frame13,
               column({rows_of({{all(form.CmdAZ), "Зона", "Зона", Look::kCell, "выключена", "включена"},
                                {all(form.CmdCh), "Кан.", "Канал зоны", Look::kSwatch},
                                {all(form.CmdVol), "Гром.", "Громкость зоны"}},
                               10)
                           .wide(2)
                           .high(1.3)
                           .grow(1),
                       row({use(form.CmdAllZ).wide(12).key("В"), use(form.CmdGr2).wide(12).key("у"),
                            use(form.CmdGrK).wide(12).key("м"), use(form.CmdSch).wide(13).key("С"),
                            column({use(form.Lbpr).wide(15), use(form.PB2).called("Ход считывания")})
                                .packed()
                                .grow(1)})}));
}

namespace {

Node channel_panel(TerminalsTab& tab) {
  Nodes cells = {words(""), words("Источник"), words(""), words("Громкость"), words(""), words("")};
  for (int channel = 1; channel <= kChannels; ++channel) {
    const std::string number = " канала " + std::to_string(channel);
    cells.push_back(row({use(tab.L1[channel]).shown(Look::kSwatch).wide(1.2), use(tab.Opt[channel])}));
    cells.push_back(use(tab.Label2[channel]).shown(Look::kValue).wide(7.5).called("Источник" + number));
    cells.push_back(use(tab.Pic[channel]).called("Источник" + number + " играет"));
    cells.push_back(use(tab.VS_Z[channel]).called("Громкость" + number).wide(7).grow(1));
    cells.push_back(use(tab.LblZ[channel]).shown(Look::kValue).wide(2.2).called("Громкость" + number));
    cells.push_back(use(tab.L2[channel]).shown(Look::kSwatch).wide(1.2));
  }
  return frame(tab.Frm5, column({grid(6, std::move(cells)),
                                 row({use(tab.L1[kChannels + 1]).shown(Look::kSwatch).wide(1.2),
                                      words("Не выбран"), space()})}));
}

}  // namespace

Node terminals_tab(Form1& form) {
  TerminalsTab& tab = form;
  const Node setting =
      frame(tab.Frame6, column({row({use(tab.Option1), use(tab.Option3), space()}),
                                row({words("№ пресета"), use(tab.VsUs).called("Номер пресета").grow(1),
                                     use(tab.LblUs).shown(Look::kValue).wide(3).called("Номер пресета")}),
                                use(tab.CmdU).shown(Look::kBig).high(2.2).key("У"), space()}));
  const Node terminals = board(tab.CmdAT, 17)
                             .shown(Look::kCell)
                             .wide(2)
                             .high(1.2)
                             .called("Терминал")
                             .switching("не выбран", "выбран");
  return row(
      {frame(tab.Frame12, terminals).grow(3), column({channel_panel(tab), Node(setting).grow(1)}).grow(2)});
}

namespace {

Node output_choice(SourceOutputs& outputs, const std::string& source) {
  Nodes buttons = {words("Выход").wide(4)};
  for (OptionButton& output : outputs)
    buttons.push_back(use(output).called(source + " выход " + output.caption()));
  return row(std::move(buttons)).packed();
}

// A key that can be lit has a form for that.
Node key(Button& button, std::string_view off, const std::string& what, std::string_view on = {}) {
  return use(button).with_signs(off, on).called(what).high(2).grow(1);
}

Node deck(Frame& around, const std::string& source, ControlArray<Button>& keys, Label& state,
          SourceOutputs& outputs) {
  return frame(around, column({use(state).shown(Look::kValue).high(1.2).wide(16).called(source),
                               row({key(keys[0], sign::kPlay, source + " воспроизведение", picture::kPlay.on),
                                    key(keys[2], sign::kPrevious, source + " предыдущая дорожка"),
                                    key(keys[1], sign::kNext, source + " следующая дорожка"),
                                    key(keys[3], sign::kStop, source + " стоп", picture::kStop.on),
                                    key(keys[4], sign::kRestart, source + " в начало", sign::kRestartOn)}),
                               output_choice(outputs, source), space()}));
}

Node tuner(SourcesTab& tab) {
  return frame(tab.Frame3, column({use(tab.LblT).shown(Look::kValue).high(1.2).wide(16).called("Тюнер"),
                                   row({use(tab.CmdT[0]).high(2).grow(1), use(tab.CmdT[1]).high(2).grow(1),
                                        key(tab.CmdT[3], sign::kPrevious, "Предыдущая станция"),
                                        key(tab.CmdT[2], sign::kNext, "Следующая станция"),
                                        key(tab.CmdT[4], sign::kStop, "Тюнер стоп", picture::kStop.on)}),
                                   output_choice(tab.Opt_t, "Тюнер"), space()}));
}

// What each channel carries, and whether it plays: the same as on the tab of the terminals.
Node channels(TerminalsTab& tab) {
  Nodes cells;
  for (int channel = 1; channel <= kChannels; ++channel) {
    const std::string number = " канала " + std::to_string(channel);
    cells.push_back(row({use(tab.L1[channel]).shown(Look::kSwatch).wide(1.2),
                         use(tab.Label2[channel]).shown(Look::kValue).wide(7.5).called("Источник" + number),
                         use(tab.Pic[channel]).called("Источник" + number + " играет"), space()})
                        .grow(1));
  }
  return row(std::move(cells));
}

Node audio_matrix(SourcesTab& tab) {
  Nodes outputs;
  for (int output = 0; output < SourcesTab::kMatrixOutputs; ++output) {
    const std::string head = "CH" + std::to_string(output + 1);
    Nodes inputs = {words(head).shown(Look::kBig)};
    for (int input = 0; input < SourcesTab::kMatrixRows; ++input)
      inputs.push_back(use(tab.Opt1[SourcesTab::kMatrixRows * output + input])
                           .called(head + (input == 0 ? " без звука" : " вход " + std::to_string(input)))
                           .grow(1));
    outputs.push_back(column(std::move(inputs)).packed().grow(1));
  }
  return frame(tab.Frame4, row(std::move(outputs)));
}

}  // namespace

Node sources_tab(Form1& form) {
  SourcesTab& tab = form;
  return column(
      {channels(form),
       row({deck(tab.Frame1, "CD", tab.CmdCD, tab.LblCD, tab.Opt_cd).grow(1),
            deck(tab.Frame2, "MP3", tab.CmdMP3, tab.LblMP3, tab.Opt_mp).grow(1), tuner(tab).grow(1)}),
       audio_matrix(tab).grow(1)});
}

Node power_tab(Form1& form) {
  PowerTab& tab = form;
  const std::array outlets = {&tab.CmdTW1, &tab.CmdTW2, &tab.CmdTW3, &tab.CmdTW4,
                              &tab.CmdTW5, &tab.CmdTW6, &tab.CmdTW7, &tab.CmdTW8};
  Nodes blocks;
  for (int block = 0; block < kSequencers; ++block)
    blocks.push_back(frame(tab.Frame5[block], board(*outlets[static_cast<std::size_t>(block)], 4)
                                                  .wide(3.6)
                                                  .high(1.5)
                                                  .called("Блок " + std::to_string(block + 1) + " выход")
                                                  .with_signs(picture::kSwitchOff, picture::kSwitchOn)
                                                  .switching("выключен", "включен"))
                         .grow(1));
  const auto alarm_channel = [](Button& button, const char* name) {
    return use(button)
        .shown(Look::kBig)
        .wide(8)
        .high(2.6)
        .with_signs(picture::kSwitchOff, picture::kSwitchOn)
        .called(name)
        .switching("выключен", "включен");
  };
  const Node alarm =
      frame(tab.Frame5[kSequencers], column({alarm_channel(tab.CmdTW9, "Аварийный канал 9").grow(1),
                                             alarm_channel(tab.CmdTW10, "Аварийный канал 10").grow(1)}));
  return row({grid(2, std::move(blocks)).grow(1), alarm});
}

}  // namespace evac::desktop
