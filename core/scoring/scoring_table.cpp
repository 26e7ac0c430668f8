// The usual tests of a scoring dialog's fields.
#include "core/scoring/scoring_table.h"

namespace core {
namespace {

FieldTest Replacing(std::function<bool(double)> refuses, std::string message,
                    std::optional<std::int64_t> replacement) {
  FieldTest test{[refuses](double value, const ScoringDialog&) { return refuses(value); },
                 std::move(message)};
  if (replacement) {
    test.shows = [text = Digits(*replacement)](const ScoringDialog&) { return text; };
    test.stores = replacement;
  }
  return test;
}

}  // namespace

FieldTest Below(std::int64_t limit, std::string message) {
  return Replacing([limit](double v) { return v < static_cast<double>(limit); }, std::move(message),
                   limit);
}

FieldTest Above(std::int64_t limit, std::string message) {
  return Replacing([limit](double v) { return v > static_cast<double>(limit); }, std::move(message),
                   limit);
}

FieldTest Outside(std::int64_t low, std::int64_t high, std::string message,
                  std::optional<std::int64_t> replacement) {
  return Replacing(
      [low, high](double v) {
        return v < static_cast<double>(low) || v > static_cast<double>(high);
      },
      std::move(message), replacement);
}

}  // namespace core
