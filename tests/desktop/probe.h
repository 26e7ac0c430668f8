// Tells a test where things stand on the screen and what they read, by name.
#pragma once

#include <memory>

namespace ui::qt {
class QtPlatform;
}

/// Reads questions from standard input and answers each with one line, at any time, also while the
/// program waits. It only looks; what the player does comes through the window system.
///
///   place NAME      "X Y W H" on the screen in device pixels, or "none"
///   text NAME       what a label, button, menu, field or panel reads; a picture's key
///   spoken NAME     what a screen reader finds at its middle: "button " for what can be pressed,
///                   and its name
///   windows         names of the open windows, the active one first
class Probe {
 public:
  explicit Probe(ui::qt::QtPlatform& platform);
  ~Probe();

 private:
  class Reader;
  std::unique_ptr<Reader> reader_;
};
