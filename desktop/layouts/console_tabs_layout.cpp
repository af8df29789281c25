// The tabs of zones, terminals, music sources and power.
#include <array>

#include "desktop/layouts/form1_tabs.h"
#include "desktop/view/pictures.h"

namespace evac::desktop {

Node zones_tab(Form1& form) {
  return frame(form.Frame13,
               column({rows_of({{all(form.CmdAZ), "Зона", Look::kCell},
                                {all(form.CmdCh), "Канал", Look::kValue},
                                {all(form.CmdVol), "Громк"}},
                               8)
                           .wide(2.2)
                           .high(1.5)
                           .grow(1),
                       row({use(form.CmdAllZ).wide(12), use(form.CmdGr2).wide(12), use(form.CmdGrK).wide(12),
                            use(form.CmdSch).wide(13),
                            column({use(form.Lbpr).wide(18), use(form.PB2)}).packed().grow(1)})}));
}

namespace {

Node channel_panel(TerminalsTab& tab) {
  Nodes cells = {words(""), words("Источник"), words(""), words("Громкость"), words(""), words("")};
  for (int channel = 1; channel <= kChannels; ++channel) {
    cells.push_back(row({use(tab.L1[channel]).shown(Look::kSwatch).wide(1.2), use(tab.Opt[channel])}));
    cells.push_back(use(tab.Label2[channel]).shown(Look::kValue).wide(7.5).called("Источник канала"));
    cells.push_back(use(tab.Pic[channel]).called("Источник играет"));
    cells.push_back(use(tab.VS_Z[channel]).called("Громкость канала").wide(9).grow(1));
    cells.push_back(use(tab.LblZ[channel]).shown(Look::kValue).wide(2.2).called("Громкость канала"));
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
                                row({words("№ пресета"), use(tab.VsUs).called("№ пресета").grow(1),
                                     use(tab.LblUs).shown(Look::kValue).wide(3)}),
                                use(tab.CmdU).shown(Look::kBig).high(3), space()}));
  return row({frame(tab.Frame12, board(tab.CmdAT, 15).shown(Look::kCell).wide(2.2).high(1.6)).grow(3),
              column({channel_panel(tab), Node(setting).grow(1)}).grow(2)});
}

namespace {

Node output_choice(SourceOutputs& outputs) {
  Nodes buttons = {words("Выход").wide(4)};
  for (OptionButton& output : outputs) buttons.push_back(use(output).called("выход"));
  return row(std::move(buttons)).packed();
}

Node key(Button& button, std::string_view sign_shown, const char* what) {
  return use(button).with_sign(sign_shown).called(what).high(2.6).grow(1);
}

Node deck(Frame& around, ControlArray<Button>& keys, Label& state, SourceOutputs& outputs) {
  return frame(around,
               column({use(state).shown(Look::kValue).high(2).wide(16),
                       row({key(keys[0], sign::kPlay, "Воспроизведение"),
                            key(keys[2], sign::kPrevious, "Предыдущая дорожка"),
                            key(keys[1], sign::kNext, "Следующая дорожка"), key(keys[3], sign::kStop, "Стоп"),
                            key(keys[4], sign::kRestart, "В начало")}),
                       output_choice(outputs), space()}));
}

Node tuner(SourcesTab& tab) {
  return frame(tab.Frame3,
               column({use(tab.LblT).shown(Look::kValue).high(2).wide(16),
                       row({use(tab.CmdT[0]).high(2.6).grow(1), use(tab.CmdT[1]).high(2.6).grow(1),
                            key(tab.CmdT[3], sign::kPrevious, "Предыдущая станция"),
                            key(tab.CmdT[2], sign::kNext, "Следующая станция"),
                            key(tab.CmdT[4], sign::kStop, "Стоп")}),
                       output_choice(tab.Opt_t), space()}));
}

Node audio_matrix(SourcesTab& tab) {
  Nodes outputs;
  for (int output = 0; output < SourcesTab::kMatrixOutputs; ++output) {
    const std::string head = "CH" + std::to_string(output + 1);
    Nodes inputs = {words(head).shown(Look::kBig)};
    for (int input = 0; input < SourcesTab::kMatrixRows; ++input)
      inputs.push_back(use(tab.Opt1[SourcesTab::kMatrixRows * output + input]).called(head));
    inputs.push_back(space());
    outputs.push_back(column(std::move(inputs)).grow(1));
  }
  return frame(tab.Frame4, row(std::move(outputs)));
}

}  // namespace

Node sources_tab(Form1& form) {
  SourcesTab& tab = form;
  return column({row({deck(tab.Frame1, tab.CmdCD, tab.LblCD, tab.Opt_cd).grow(1),
                      deck(tab.Frame2, tab.CmdMP3, tab.LblMP3, tab.Opt_mp).grow(1), tuner(tab).grow(1)}),
                 audio_matrix(tab).grow(1)});
}

Node power_tab(Form1& form) {
  PowerTab& tab = form;
  const std::array outlets = {&tab.CmdTW1, &tab.CmdTW2, &tab.CmdTW3, &tab.CmdTW4,
                              &tab.CmdTW5, &tab.CmdTW6, &tab.CmdTW7, &tab.CmdTW8};
  Nodes blocks;
  for (int block = 0; block < kSequencers; ++block)
    blocks.push_back(
        frame(tab.Frame5[block], board(*outlets[static_cast<std::size_t>(block)], 4).wide(3.6).high(2.2))
            .grow(1));
  const Node alarm =
      frame(tab.Frame5[kSequencers], column({use(tab.CmdTW9).shown(Look::kBig).high(3),
                                             use(tab.CmdTW10).shown(Look::kBig).high(3), space()}));
  const auto heard = [](const char* what, ListBox& list) {
    return column({words(what), use(list).wide(6).grow(1)}).grow(1);
  };
  const Node log = row({heard("Вход 1", tab.List1), heard("Время", tab.List2), heard("Вход 2", tab.List3)});
  return row(
      {grid(2, std::move(blocks)).grow(2), column({alarm, Node(log).grow(1), use(tab.Command1)}).grow(1)});
}

}  // namespace evac::desktop
