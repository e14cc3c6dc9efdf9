#include "symbols/name_choice.h"

#include <utility>

#include "symbols/string_lists.h"

namespace quilla {
namespace {

/// Makes an input the live one of the two, or the other.
template <typename Input>
void SetLive(Input& input, bool live) {
  input.set_enabled(live);
  input.set_active(live);
}

}  // namespace

NameChoice::NameChoice(Box& box, const Names& names, const char* accept_caption, ComboBox& known,
                       Rules rules)
    : rules_(std::move(rules)),
      new_option_(&box, names.new_option, "New:"),
      text_(&box, names.text, kLongestName),
      known_option_(&box, names.known_option, "Existing:"),
      known_(known),
      accept_button_(&box, names.accept_button, accept_caption) {
  known_.PlaceIn(&box);
  known_.Show();
  new_option_.Click = [this] { NewOption_Click(); };
  known_option_.Click = [this] { KnownOption_Click(); };
  text_.TextChange = [this] { Text_Change(); };
}

void NameChoice::Open(Button& accept) {
  accept_ = &accept;
  known_option_.set_enabled(!known_.IsEmpty());
  known_.SelectFirst();
  new_option_.set_enabled(true);
  new_option_.set_checked(true);
  SetLive(known_, false);
  text_.set_text({});
  SetLive(text_, true);
  accept.set_enabled(false);
}

void NameChoice::OpenKnown() {
  SetLive(text_, false);
  SetLive(known_, true);
  known_.SelectFirst();
}

void NameChoice::Disable() {
  new_option_.set_enabled(false);
  known_option_.set_enabled(false);
  text_.set_enabled(false);
}

void NameChoice::RowPicked() {
  if (IsKnown()) {
    Accept();
  } else {
    Text_Change();
  }
}

void NameChoice::AskAgain() {
  text_.set_text({});
  text_.SetFocus();
}

void NameChoice::NewOption_Click() {
  SetLive(known_, false);
  if (!rules_.options_keep_inputs) text_.set_text({});
  SetLive(text_, true);
  text_.SetFocus();
  SetAcceptable(rules_.options_accept);
}

void NameChoice::KnownOption_Click() {
  SetLive(text_, false);
  SetLive(known_, true);
  if (!rules_.options_keep_inputs) {
    text_.set_text({});
    known_.SelectFirst();
  }
  known_.SetFocus();
  if (rules_.options_accept || MayAccept()) Accept();
}

void NameChoice::Text_Change() {
  if (!text_.enabled()) return;
  const bool acceptable = MayAccept() && IsGoodName(text_.text());
  SetAcceptable(acceptable);
  if (acceptable) accept_->MakeDefault();
}

void NameChoice::SetAcceptable(bool acceptable) {
  accept_button_.set_enabled(acceptable);
  if (other_accept_button_ != nullptr) other_accept_button_->set_enabled(acceptable);
}

void NameChoice::Accept() {
  accept_->set_enabled(true);
  accept_->MakeDefault();
}

}  // namespace quilla
