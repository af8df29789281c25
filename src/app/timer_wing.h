// The rooms of the weekly timer.
#pragma once

#include "app/forms.h"
#include "console/preset_recall.h"
#include "model/system_model.h"
#include "platform/machine.h"
#include "timer/event_preview.h"
#include "timer/programme_editor.h"
#include "timer/schedule.h"
#include "timer/timer_engine.h"

namespace evac {

struct TimerWing {
  // What the console has and these rooms stand on.
  struct Ground {
    const Machine& machine;
    SystemModel& model;
    Forms& forms;
    DataFolder& folder;
    Link& link;
    Tuner& tuner;
    PresetRecall& presets;
    Volume& volume;
    Transport& transport;
    PlayLists& lists;
    MessageCatalogue& messages;
  };
  explicit TimerWing(const Ground& ground);

  Programmes programmes;
  TimerMessage message;
  TimerActions actions;
  TimerEngine engine;
  ProgrammeEditor editor;
  EventPreview preview;
  Schedule schedule;
};

}  // namespace evac
