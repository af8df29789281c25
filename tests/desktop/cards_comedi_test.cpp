// The input cards on a comedi of the test's own: which subdevices become ports, and what a failing read
// gives.
#include "desktop/cards_comedi.h"

#include <comedilib.h>
#include <gtest/gtest.h>

#include <string_view>
#include <vector>

struct comedi_t_struct {
  struct Subdevice {
    int type, channels;
    unsigned inputs;
  };
  std::vector<Subdevice> subdevices;
  bool broken = false, open = false;
};

namespace {
// An analogue part first, as such cards have it.
comedi_t card = {
    {{COMEDI_SUBD_AI, 16, 0}, {COMEDI_SUBD_DI, 32, 0}, {COMEDI_SUBD_DO, 32, 0}, {COMEDI_SUBD_DI, 32, 0}}};
comedi_t small = {{{COMEDI_SUBD_DI, 32, 0}, {COMEDI_SUBD_DI, 8, 0}}};
}  // namespace

extern "C" {
comedi_t* comedi_open(const char* name) {
  comedi_t* found = std::string_view(name) == "card"    ? &card
                    : std::string_view(name) == "small" ? &small
                                                        : nullptr;
  if (found) found->open = true;
  return found;
}
int comedi_close(comedi_t* it) {
  it->open = false;
  return 0;
}
int comedi_get_n_subdevices(comedi_t* it) {
  return static_cast<int>(it->subdevices.size());
}
int comedi_get_subdevice_type(comedi_t* it, unsigned subdevice) {
  return it->subdevices.at(subdevice).type;
}
int comedi_get_n_channels(comedi_t* it, unsigned subdevice) {
  return it->subdevices.at(subdevice).channels;
}
int comedi_dio_bitfield2(comedi_t* it, unsigned subdevice, unsigned mask, unsigned* bits, unsigned base) {
  if (it->broken || mask != 0 || base != 0) return -1;
  *bits = it->subdevices.at(subdevice).inputs;
  return 0;
}
int comedi_errno() {
  return 5;
}
}

namespace evac::desktop {
namespace {

constexpr int kType = 17;

TEST(ComediCards, ReadTheTwoDigitalInputSubdevicesAsPorts) {
  ComediCards cards({{0, "card"}});
  ASSERT_EQ(cards.register_card(kType, 0), 0);
  EXPECT_EQ(cards.register_card(kType, 1), -1);
  EXPECT_EQ(cards.trouble(), "");
  card.subdevices[1].inputs = 0x80000001u;
  card.subdevices[3].inputs = 4;
  std::int32_t word = 0;
  EXPECT_TRUE(cards.read_port(0, 0, word));
  EXPECT_EQ(word, static_cast<std::int32_t>(0x80000001u));
  EXPECT_TRUE(cards.read_port(0, 1, word));
  EXPECT_EQ(word, 4);
  word = 0;
  EXPECT_FALSE(cards.read_port(-1, 0, word));
  EXPECT_EQ(word, 0);
  cards.release_card(0);
  EXPECT_FALSE(card.open);
  EXPECT_FALSE(cards.read_port(0, 1, word));
  EXPECT_EQ(word, 0);
}

TEST(ComediCards, AFailingReadKeepsTheWordAndIsToldUntilItWorksAgain) {
  ComediCards cards({{0, "card"}});
  cards.register_card(kType, 0);
  card.subdevices[1].inputs = 64;
  std::int32_t word = 0;
  EXPECT_TRUE(cards.read_port(0, 0, word));
  card.broken = true;
  card.subdevices[1].inputs = 0;
  word = 0;
  EXPECT_FALSE(cards.read_port(0, 0, word));
  EXPECT_EQ(word, 64);
  EXPECT_EQ(cards.trouble(), "Плата 0, порт 0 не читается, ошибка 5");
  card.broken = false;
  EXPECT_TRUE(cards.read_port(0, 0, word));
  EXPECT_EQ(word, 0);
  EXPECT_EQ(cards.trouble(), "");
}

TEST(ComediCards, ADeviceThatIsMissingOrTooSmallIsNoCardAndIsTold) {
  ComediCards cards({{0, "/dev/nowhere"}, {1, "small"}});
  EXPECT_EQ(cards.register_card(kType, 0), -1);
  EXPECT_EQ(cards.register_card(kType, 1), -1);
  EXPECT_FALSE(small.open);
  EXPECT_EQ(cards.trouble(),
            "Плата 0 (/dev/nowhere) не открывается, ошибка 5; Плата 1 (small): нет двух портов по 32 входа");
}

}  // namespace
}  // namespace evac::desktop
