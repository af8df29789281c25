// What the window shows besides the controls: what the host has to say.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "desktop/keyboard_state.h"

namespace evac::desktop {

class Notices;
class ScanFeed;

// What the host has to say, each subject in its own place: faults with the sign, information without.
class NoticesView : public QWidget {
 public:
  NoticesView(Notices& notices, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QRect place_of(int subject) const;
  Notices& notices_;
};

// The texts of boxes that answered themselves; a press dismisses them.
class BoxNoteView : public QPushButton {
 public:
  BoxNoteView(Notices& notices, QWidget* parent);
  QSize sizeHint() const override { return {80, fontMetrics().height() * 3 / 2}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void show_boxes();
  Notices& notices_;
};

// The layout of the keyboard and Caps Lock, for who types what can't be seen; empty where the host can't
// tell.
class KeyboardNote : public QLabel {
 public:
  KeyboardNote(std::function<KeyboardState()> read, QWidget* parent);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void look();

  const std::function<KeyboardState()> read_;
  QTimer timer_;
};

// What the weekly timer does next and what it never will, looked at once a second while it is on show.
class TimerAheadView : public QListWidget {
 public:
  TimerAheadView(std::function<QStringList()> read, QWidget* parent);
  QSize sizeHint() const override { return {minimumWidth(), fontMetrics().height() * 6}; }

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void look();

  const std::function<QStringList()> read_;
  QStringList lines_;
  QTimer timer_;
};

// How far the scan of the terminals is: a bar over the whole pass, and in words. Keeps its place at rest.
class ScanProgressView : public QWidget {
 public:
  ScanProgressView(ScanFeed& feed, QWidget* parent);
  QSize sizeHint() const override { return {fontMetrics().height() * 20, fontMetrics().height() * 3 / 2}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ScanFeed& feed_;
};

}  // namespace evac::desktop
