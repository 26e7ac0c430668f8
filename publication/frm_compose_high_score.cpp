// What may be sent to the public score list, how it reads, and how it is sent.
#include "publication/frm_compose_high_score.h"

#include <algorithm>

#include "core/suite/deployment.h"
#include "core/text/number.h"
#include "core/text/text.h"
#include "publication/submission_mail.h"

namespace publication {
namespace {

constexpr int InnerWidth = 520;

}  // namespace

frmComposeHighScore::frmComposeHighScore(core::Suite& suite, const core::GameEntry& entry,
                                         std::vector<ListedRow> rows)
    : ui::Window(suite.platform, "frmComposeHighScore"),
      suite_(suite),
      entry_(entry),
      rows_(std::move(rows)) {
  SetTips();
  BindFields();
  LayOut();
}

void frmComposeHighScore::SetTips() {
  txtName.Tip = "Enter your name";
  txtScore.Tip = "Enter your high score";
  txtHomeTown.Tip = "Enter your home town";
  cmboState.Tip = "Select your state";
  txtCountry.Tip = "Enter your Country";
  txtSample.Tip = "Sample listing";
  txtOther.Tip = "Place additional information you want to send to Corvane here";
}

void frmComposeHighScore::BindFields() {
  for (ui::Field* field : {&txtName, &txtScore, &txtHomeTown, &txtCountry}) {
    field->OnChange = ui::Bind(this, &frmComposeHighScore::ComposeListing);
    field->OnGotFocus = [field] { field->SelectAll(); };
  }
  txtScore.OnChange = ui::Bind(this, &frmComposeHighScore::txtScore_Change);
  cmboState.OnClick = ui::Bind(this, &frmComposeHighScore::ComposeListing);
}

void frmComposeHighScore::LayOut() {
  Resizable = false;
  lblInfo.Wrap = true;
  txtSample.ReadOnly = true;
  txtOther.Multiline = true;
  cmdSubmit.DialogRole = ui::Button::Role::Default;
  cmdCancel.DialogRole = ui::Button::Role::Cancel;
  layout_.Row({&lblInfo});
  layout_.Row({&lblName, &txtName});
  layout_.Row({&lblScore, &txtScore});
  layout_.Row({&lblHomeTown, &txtHomeTown});
  layout_.Row({&lblState, &cmboState});
  layout_.Row({&lblCountry, &txtCountry});
  layout_.Row({&lblSample, &txtSample});
  layout_.Row({&lblOther, &txtOther});
  layout_.Buttons({&cmdSubmit, &cmdCancel});
  NormalSize = OuterFor({InnerWidth, ui::PlaceForm(layout_, InnerWidth)});
}

void frmComposeHighScore::Load() {
  const core::Shared& shared = suite_.shared;
  Caption = "High score submission for " + shared.GameTitle;
  cmboState.Items = StateNames();
  cmboState.Index = 0;
  txtOther.Text = "";
  txtHomeTown.Text = shared.PlayerHometown;
  txtCountry.Text = shared.PlayerCountry;
  SelectState(shared.PlayerState);
  if (const ListedRow* best = BestUnmarked(rows_)) {
    OfferScoreOf(*best);
  } else {
    OfferNoScore();
  }
}

void frmComposeHighScore::Activate() {
  suite_.platform.SetFocus(txtName);
}

/// A state that isn't in the list, as a changed settings file can hold, leaves "None".
void frmComposeHighScore::SelectState(const std::string& state) {
  const auto& names = cmboState.Items();
  const auto found = std::find(names.begin(), names.end(), state);
  if (found != names.end()) cmboState.Index = static_cast<int>(found - names.begin());
}

void frmComposeHighScore::OfferScoreOf(const ListedRow& row) {
  txtName.Text = row.name;
  ValidScore = ParseScore(row.score);
  txtScore.Text = core::Digits(ValidScore);
  ComposeListing();
}

void frmComposeHighScore::OfferNoScore() {
  txtName.Text = suite_.shared.PlayerName;
  txtScore.Text = "0";
  suite_.Tell(ui::Sign::Information,
              "There are no valid scores in the High Score Table. They all appear to have been "
              "attained after customizing the scoring. The 'Submit' command button will be "
              "disabled.");
  cmdSubmit.Enabled = false;
}

void frmComposeHighScore::ComposeListing() {
  const std::int32_t score = ParseScore(txtScore.Text());
  if (score > ValidScore) {
    PutValidScoreBack();
    return;
  }
  txtSample.Text =
      ListingText({score, txtName.Text(), txtHomeTown.Text(), cmboState.Text(), txtCountry.Text()});
}

void frmComposeHighScore::PutValidScoreBack() {
  suite_.Tell(ui::Sign::Exclamation,
              "Sorry, but the score you have entered is greater than the highest valid score "
              "attained so far in this game. According to the High Score Table, the highest score "
              "attained using the default settings is '" +
                  core::Masked(ValidScore) + "'. Please enter a valid score.");
  txtScore.Text = core::Digits(ValidScore);  // this change writes the listing
  txtScore.SelectAll();
  if (IsOpen()) suite_.platform.SetFocus(txtScore);  // it can have been closed behind the box
}

/// Each rewriting is a change of its own, which ends at the first text that is its own rewriting.
void frmComposeHighScore::txtScore_Change() {
  txtScore.Text = core::Digits(ParseScore(txtScore.Text()));
  ComposeListing();
}

void frmComposeHighScore::cmdSubmit_Click() {
  if (!IsListable()) return;
  if (!SendMail()) {
    suite_.Tell(ui::Sign::Critical,
                "Sorry, but there was an error attempting to access your e-mail messaging system. "
                "The Pastimo cannot access all email systems. Please send your score through "
                "regular email to " +
                    core::deployment::SubmissionAddress +
                    ". Be sure to include your name, score, game name and home state or country.");
    return;
  }
  KeepFields();
  suite_.Tell(ui::Sign::Information, "The message has been successfully placed in your out box.");
  Unload();
}

bool frmComposeHighScore::IsListable() {
  const core::Shared& shared = suite_.shared;
  if (shared.CustomScoring || core::EndsWith(shared.PlayerName, "*")) {
    suite_.TellPlainly(
        "Sorry, we are unable to submit this score because custom scoring was enabled when it was "
        "achieved.");
    return false;
  }
  const std::string sorry =
      "Sorry, in order to list your " + shared.GameTitle + " high score on the web you must ";
  if (ParseScore(txtScore.Text()) < entry_.listedFrom) {
    suite_.Tell(ui::Sign::Information, sorry + "achieve a minimum score of " +
                                           core::Masked(entry_.listedFrom) +
                                           ".\r\nKeep playing, you can do it!");
    return false;
  }
  if (shared.TimeLimit != entry_.listedLimit) {
    suite_.Tell(ui::Sign::Information, sorry + "be using the default time limit of " +
                                           core::Digits(entry_.listedLimit) + " seconds.");
    return false;
  }
  return true;
}

bool frmComposeHighScore::SendMail() {
  const core::Shared& shared = suite_.shared;
  const auto mail = SubmissionMail(
      shared.GameTitle, NoteText(txtSample.Text(), shared.EnhancedScoring, txtOther.Text()));
  return std::all_of(mail.begin(), mail.end(), [this](const MailOperation& operation) {
    return suite_.platform.MailStep(operation.name, operation.value);
  });
}

void frmComposeHighScore::KeepFields() {
  core::Shared& shared = suite_.shared;
  shared.PlayerName = txtName.Text();
  shared.PlayerHometown = txtHomeTown.Text();
  shared.PlayerState = cmboState.Text();
  shared.PlayerCountry = txtCountry.Text();
}

void frmComposeHighScore::cmdCancel_Click() {
  KeepFields();
  Unload();
}

}  // namespace publication
