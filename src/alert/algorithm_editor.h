// The steps of the algorithms in the settings window: lists of records, one for each zone of fire.
#pragma once

#include "alert/message_lists.h"
#include "alert/zone_choice.h"
#include "store/alert_store.h"

namespace evac {

class AlgorithmEditor {
 public:
  struct Doors {
    const AlgorithmState& algorithms;
    AlertStore& store;
    Form5& form5;
    MessageLists& messages;
    ZoneChoice& zone_choice;
    Boxes& boxes;
  };
  explicit AlgorithmEditor(const Doors& doors) : doors_(doors) {}

  // Fills the lists from the table and shows algorithm 1.
  void load();
  void algorithm_changed();
  void add_step();
  // Only the last step of the shown algorithm can go.
  void delete_step();
  void choose_zones();
  // Prints the table, not the lists; a box says where, or why not.
  void print();
  // What the lists hold.
  AlertStore::AlgorithmLines lines() const;

 private:
  ListBox& current_list() { return doors_.form5.Lst1[current_]; }
  void take_message_of(std::string_view record);

  int current_ = 1;        // the algorithm shown
  int alg_order_ = 0;      // its records
  std::string alg_zones_;  // zones of the next step; it keeps them for the one after

  const Doors doors_;
};

}  // namespace evac
