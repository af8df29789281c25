// What the console needs of its machine besides the line and the files; each host gives these a body.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/event_loop.h"
#include "platform/files.h"
#include "platform/serial_port.h"
#include "platform/windows.h"

namespace evac {

// One of the four media controls. There is no notice of a file's end: it is followed by the clock.
class Media {
 public:
  virtual ~Media() = default;
  // The file plays as soon as the event is over, unless it is held or stopped by then.
  virtual void set_file(std::string_view path) = 0;
  // Above 0 when the file that was set can be played.
  virtual int ready_state() = 0;
  virtual void play() = 0;
  // Halts the output and keeps the position; a later play continues.
  virtual void hold() = 0;
  // Halts the output and goes back to the start.
  virtual void stop() = 0;
  // Seconds.
  virtual double duration() = 0;
  virtual double position() = 0;
  virtual void seek(double seconds) = 0;
  // Hundredths of a decibel: 0 full, -10000 silence.
  virtual void set_volume(int hundredths) = 0;
};

// The digital-input cards: two ports of 32 inputs each.
class Cards {
 public:
  virtual ~Cards() = default;
  // A handle of 0 or more; negative when there is no such card.
  virtual std::int16_t register_card(int type, int number) = 0;
  virtual void release_card(std::int16_t handle) = 0;
  // False when nothing was read: a card that fails gives the word last read, and `word` stays as it is when
  // the handle is no card's.
  [[nodiscard]] virtual bool read_port(std::int16_t handle, int port, std::int32_t& word) = 0;
};

// Boxes hold everything: no tick and no byte is handled until they are answered.
class Boxes {
 public:
  virtual ~Boxes() = default;
  virtual void message(std::string_view text, std::string_view title = {}) = 0;
  // Yes is true.
  virtual bool ask(std::string_view text, std::string_view title) = 0;
  // The text typed, empty when cancelled.
  virtual std::string input(std::string_view prompt, std::string_view title, std::string_view preset) = 0;
};

class Tone {
 public:
  virtual ~Tone() = default;
  // Hertz and milliseconds.
  virtual void beep(int frequency, int duration) = 0;
};

class Process {
 public:
  virtual ~Process() = default;
  // The folder in which the program was started, such as "C:\ZEF".
  virtual std::string working_folder() const = 0;
  // Ends the program at once.
  [[noreturn]] virtual void end() = 0;
  // A forced restart of the machine, now.
  virtual void restart(int flags) = 0;
};

struct MediaControls {
  Media& MP;   // the player
  Media& MP1;  // messages of the timer, the manual message
  Media& MP2;  // messages of an alert, previews in the settings
  Media& MP3;  // silent reading of a track's length
};

struct Machine {
  EventLoop& loop;
  WindowHost& windows;
  SerialPort& port;
  Files& files;
  MediaControls media;
  Cards& cards;
  Boxes& boxes;
  Tone& tone;
  Process& process;
};

}  // namespace evac
