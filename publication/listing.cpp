// How a listing reads, and how its score is read back.
#include "publication/listing.h"

#include <algorithm>

#include "core/text/number.h"
#include "core/text/text.h"

namespace publication {
namespace {

constexpr const char* States[] = {
    "None",          "Alabama",        "Alaska",        "Arizona",    "Arkansas",
    "California",    "Colorado",       "Connecticut",   "Delaware",   "District of Columbia",
    "Florida",       "Georgia",        "Hawaii",        "Idaho",      "Illinois",
    "Indiana",       "Iowa",           "Kansas",        "Kentucky",   "Louisiana",
    "Maine",         "Maryland",       "Massachusetts", "Michigan",   "Minnesota",
    "Mississippi",   "Missouri",       "Montana",       "Nebraska",   "Nevada",
    "New Hampshire", "New Jersey",     "New Mexico",    "New York",   "North Carolina",
    "North Dakota",  "Ohio",           "Oklahoma",      "Oregon",     "Pennsylvania",
    "Rhode Island",  "South Carolina", "South Dakota",  "Tennessee",  "Texas",
    "Utah",          "Vermont",        "Virginia",      "Washington", "West Virginia",
    "Wisconsin",     "Wyoming"};

}  // namespace

std::int32_t ParseScore(std::string_view text) {
  std::string plain(text);
  std::erase(plain, ',');
  return core::ClampTo<std::int32_t>(core::WholeIn(plain));
}

std::string ListingText(const Listing& listing) {
  std::string text = core::Masked(listing.score) + " by " + listing.name + " of " + listing.town;
  if (listing.state != "None") text += ", " + listing.state;
  if (listing.country != "United States") text += ", " + listing.country;
  return text;
}

const ListedRow* BestUnmarked(const std::vector<ListedRow>& rows) {
  const auto best = std::find_if(rows.begin(), rows.end(), [](const ListedRow& row) {
    return !row.score.empty() && !core::EndsWith(row.name, "*");
  });
  return best == rows.end() ? nullptr : &*best;
}

std::vector<std::string> StateNames() {
  return {std::begin(States), std::end(States)};
}

}  // namespace publication
