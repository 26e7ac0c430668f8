// The 68 positions of the picture store.
#include "core/cards/card_images.h"

#include <algorithm>

#include "core/cards/card.h"
#include "core/text/number.h"
#include "core/text/text.h"

namespace core {
namespace {

constexpr int lastOfDesigns = 12;
constexpr int emptyPlace = 13;
constexpr int pointer = 66;
constexpr int largeEmptyPlace = 67;
constexpr int emblem = 68;

// The keys of a design's three positions, in their order.
constexpr std::array<const char*, 3> designKeys = {"FULL", "BACK", "HALF"};

constexpr PictureSize emblemSize = {71, 96};
constexpr PictureSize faceSize = {69, 94};
constexpr std::array<PictureSize, 3> palmSizes = {{{76, 98}, {71, 96}, {74, 97}}};
constexpr std::array<PictureSize, 3> otherDesignSizes = {{{75, 97}, {69, 94}, {73, 97}}};

bool IsPosition(int position) {
  return position >= 1 && position <= CardImages::count;
}

std::size_t PlaceInDesign(int position) {
  return static_cast<std::size_t>((position - 1) % 3);
}

int DesignNumber(int position) {
  return (position - 1) / 3 + 1;
}

std::string FaceKey(int position) {
  const int face = position - CardImages::firstFace;
  return Digits(face % king + 1) + suitOrder[static_cast<std::size_t>(face / king)];
}

// The key of a position that keeps its key whatever the design.
std::string LastingKey(int position) {
  switch (position) {
    case emptyPlace:
      return "EMPTY";
    case pointer:
      return "POINTER";
    case largeEmptyPlace:
      return "Empty";
    case emblem:
      return "QDLE";
    default:
      return FaceKey(position);
  }
}

}  // namespace

CardImages::CardImages() {
  for (int position = lastOfDesigns + 1; position <= count; ++position) {
    keys_[static_cast<std::size_t>(position)] = LastingKey(position);
  }
  ChooseDesign(Design::Palm);
}

void CardImages::ChooseDesign(Design design) {
  for (int position = 1; position <= lastOfDesigns; ++position) {
    const bool chosen = DesignNumber(position) == static_cast<int>(design);
    keys_[static_cast<std::size_t>(position)] = chosen ? designKeys[PlaceInDesign(position)] : "";
  }
}

std::string CardImages::KeyAt(int position) const {
  return IsPosition(position) ? keys_[static_cast<std::size_t>(position)] : std::string();
}

std::optional<int> CardImages::Find(std::string_view key) const {
  const std::string trimmed = Trimmed(key);
  if (trimmed.empty()) return std::nullopt;
  const auto found = std::find(keys_.begin(), keys_.end(), trimmed);
  if (found == keys_.end()) return std::nullopt;
  return static_cast<int>(found - keys_.begin());
}

std::string CardImages::ArtworkAt(int position) {
  if (!IsPosition(position)) return {};
  if (position == largeEmptyPlace) return "EmptyLarge";
  if (position > lastOfDesigns) return LastingKey(position);
  return designKeys[PlaceInDesign(position)] + Digits(DesignNumber(position));
}

PictureSize CardImages::SizeAt(int position) {
  if (!IsPosition(position)) return {0, 0};
  if (position <= 3) return palmSizes[PlaceInDesign(position)];
  if (position <= lastOfDesigns) return otherDesignSizes[PlaceInDesign(position)];
  if (position == pointer) return {32, 32};
  if (position == largeEmptyPlace) return {76, 100};
  return position == emptyPlace || position == emblem ? emblemSize : faceSize;
}

}  // namespace core
