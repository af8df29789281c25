// The steps of the algorithms in the settings window: lists of records, one for each zone of fire.
#pragma once

#include "alert/message_lists.h"
#include "alert/zone_choice.h"
#include "store/alert_store.h"

namespace evac {

class AlgorithmEditor {
 public:
  AlgorithmEditor(const AlgorithmState& algorithms, AlertStore& store, Form5& form5, MessageLists& messages,
                  ZoneChoice& zone_choice, Boxes& boxes)
      : algorithms_(algorithms),
        store_(store),
        form5_(form5),
        messages_(messages),
        zone_choice_(zone_choice),
        boxes_(boxes) {}

  // Fills the lists from the table and shows algorithm 1.
  void load();
  void algorithm_changed();
  void add_step();
  // Only the last step of the shown algorithm can go.
  void delete_step();
  void choose_zones();
  // Prints the table, not the lists.
  void print();
  // What the lists hold.
  AlertStore::AlgorithmLines lines() const;

 private:
  ListBox& current_list() { return form5_.Lst1[current_]; }
  void take_message_of(std::string_view record);

  const AlgorithmState& algorithms_;
  AlertStore& store_;
  Form5& form5_;
  MessageLists& messages_;
  ZoneChoice& zone_choice_;
  Boxes& boxes_;

  int current_ = 1;        // the algorithm shown
  int alg_order_ = 0;      // its records
  std::string alg_zones_;  // zones of the next step; it keeps them for the one after
};

}  // namespace evac
