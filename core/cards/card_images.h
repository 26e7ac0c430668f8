// The store of card pictures: which key stands at which position, and what is painted there.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace core {

// The four designs of card backs. A game's own number for a design can be another one.
enum class Design { Palm = 1, Magic, Night, Hot };

struct PictureSize {
  int width;   // pixels
  int height;  // pixels
};

// Knows the pictures by position and key only; the artwork is the platform's.
class CardImages {
 public:
  static constexpr int count = 68;

  // The range of the 52 card faces, from the ace of spades to the king of diamonds.
  static constexpr int firstFace = 14;
  static constexpr int lastFace = 65;

  // With the keys "FULL", "BACK" and "HALF" on the Palm Tree design.
  CardImages();

  // Moves the keys "FULL", "BACK" and "HALF" to the three positions of the design.
  void ChooseDesign(Design design);

  // The key at a position from 1 to 68; empty where there is none.
  std::string KeyAt(int position) const;

  // The position that carries the key, trimmed, in exactly this case ("EMPTY" is not "Empty").
  std::optional<int> Find(std::string_view key) const;

  // The name of the artwork file of a position, without extension. It stays with the position
  // whatever key that carries: "FULL1", "BACK1", "HALF1" for 1 to 3, "FULL2" and so on to 12, for
  // 67 "EmptyLarge", else the key. Empty outside of 1 to 68.
  static std::string ArtworkAt(int position);

  // The size of a position's picture; 0 by 0 outside of 1 to 68.
  static PictureSize SizeAt(int position);

 private:
  std::array<std::string, count + 1> keys_;  // by position; 0 is not used
};

}  // namespace core
