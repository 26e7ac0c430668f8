// Chance that a test has staged.
#pragma once

#include <deque>
#include <utility>

#include "core/cards/chance.h"

/// Draws what is staged, and then at random.
class StagedChance : public core::Chance {
 public:
  explicit StagedChance(std::deque<double> staged = {}) : draws(std::move(staged)) {}

  std::deque<double> draws;

  double Draw() override {
    if (draws.empty()) return core::Chance::Draw();
    const double draw = draws.front();
    draws.pop_front();
    return draw;
  }
};
