// Tells a test where things stand on the screen and what they read, by name.
#pragma once

#include <functional>
#include <istream>
#include <memory>
#include <string>

namespace ui::qt {
class QtPlatform;
}

/// Reads questions from standard input and answers each with one line, at any time, also while the
/// program waits. It only looks; what the player does comes through the window system.
///
///   place NAME      "X Y W H" of a control on the screen, in device pixels, or "none"
///   text NAME       what a label, button, menu, field or panel reads; a picture's key
///   spoken NAME     what a screen reader finds at its middle: "button " for what can be pressed,
///                   and its name
///   windows         names of the open windows, the active one first
///   busy            whether one of the program's handlers is at work
///   active          what has the keyboard and its place: "frmQuindle@X Y W H", or a message box
///                   as "box MESSAGE@X Y W H"; "none" if the program hasn't got it
class Probe {
 public:
  /// Carries out what no question is: a verb and the words behind it.
  using Stage = std::function<void(const std::string& verb, std::istream& words)>;

  explicit Probe(
      ui::qt::QtPlatform& platform, Stage stage = [](auto&, auto&) {});
  ~Probe();

 private:
  class Reader;
  std::unique_ptr<Reader> reader_;
};
