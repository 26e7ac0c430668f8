// The window that composes a listing for the public score list and mails it to the list's keeper.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/suite/game_entry.h"
#include "core/suite/suite.h"
#include "publication/listing.h"
#include "ui/window.h"

namespace publication {

/// Opened from the high score window, whose rows it is given; the suite and the entry outlive it.
class frmComposeHighScore : public ui::Window {
 public:
  frmComposeHighScore(core::Suite& suite, const core::GameEntry& entry,
                      std::vector<ListedRow> rows);

 private:
  void Load() override;
  void Activate() override;
  void SetTips();
  void BindFields();
  void LayOut();
  void SelectState(const std::string& state);
  void OfferScoreOf(const ListedRow& row);
  void OfferNoScore();

  void ComposeListing();
  void PutValidScoreBack();
  void txtScore_Change();
  void cmdSubmit_Click();
  void cmdCancel_Click();

  /// Whether the list takes the score; tells the player why if it doesn't.
  bool IsListable();
  bool SendMail();
  void KeepFields();

  core::Suite& suite_;
  const core::GameEntry& entry_;
  const std::vector<ListedRow> rows_;
  std::int32_t ValidScore = 0;  ///< the highest score that may be sent; 0 if there is none

  ui::Label lblInfo{
      this, "lblInfo",
      "Please verify the information below. After making any changes click on the 'Submit' command "
      "button. This will e-mail the high score data to Corvane for posting on the Pastimo High "
      "Score Web Page. At a minimum, please include your name and score. Note that you must meet "
      "the minimum required score before it will be posted to the web. The minimum scores for each "
      "game are posted on the website. Click on 'Cancel' to cancel this operation."};
  ui::Label lblName{this, "lblName", "Name:"};
  ui::Field txtName{this, "txtName"};
  ui::Label lblScore{this, "lblScore", "Score:"};
  ui::Field txtScore{this, "txtScore"};
  ui::Label lblHomeTown{this, "lblHomeTown", "Home Town:"};
  ui::Field txtHomeTown{this, "txtHomeTown"};
  ui::Label lblState{this, "lblState", "State:"};
  ui::List cmboState{this, "cmboState"};
  ui::Label lblCountry{this, "lblCountry", "Country:"};
  ui::Field txtCountry{this, "txtCountry"};
  ui::Label lblSample{this, "lblSample", "Your listing will look like:"};
  ui::Field txtSample{this, "txtSample"};
  ui::Label lblOther{this, "lblOther", "Additional comments for Corvane:"};
  ui::Field txtOther{this, "txtOther"};
  ui::Button cmdSubmit{this, "cmdSubmit", "&Submit", "", &frmComposeHighScore::cmdSubmit_Click};
  ui::Button cmdCancel{this, "cmdCancel", "&Cancel", "", &frmComposeHighScore::cmdCancel_Click};
};

}  // namespace publication
