// Labels in place: the place tool puts labels on rows, the delete tool takes them off.
#ifndef QUILLA_SYMBOLS_LABEL_PLACEMENT_H_
#define QUILLA_SYMBOLS_LABEL_PLACEMENT_H_

#include <string>

#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/name_choice.h"
#include "symbols/string_lists.h"

namespace quilla {

class LabelPlacement {
 public:
  LabelPlacement(Session& session, StateMachine& states, StringLists& strings);

  /// What stands in the place tool's box for a new name.
  const std::string& NewName() const { return name_.NewName(); }

 private:
  void PlaceStatus(bool status);
  void PlaceAcceptButton_Click();
  void PlaceDoneButton_Click();
  void DeleteLabels_Click();

  void PickRow(int row);
  /// Takes the mark off the picked row.
  void Unmark();
  void TakeLabelOff(int row, int column);
  void PlaceNewLabel(int row);
  void PlaceKnownLabel(int row);
  bool MayReplaceLabel(int row);
  /// Asks whether a label that stands elsewhere may move, and takes it off its old row.
  bool MayMoveLabel(int label, int row);

  Session& session_;
  StateMachine& states_;
  StringLists& strings_;

  Box PlaceBox_{&session_.ProgrammingPanel, "PlaceBox"};
  Label PlaceHeading_{&PlaceBox_, "PlaceHeading", "Label"};
  NameChoice name_{
      PlaceBox_,
      {"NewPlaceOption", "PlaceText", "ExistingPlaceOption", "PlaceAcceptButton"},
      "Place",
      session_.PlaceCombo,
      {.RowPicked = [this] { return session_.CurrentPanelState == PanelState::kPlaceOnRow; },
       .options_keep_inputs = true}};
  Button PlaceDoneButton_{&PlaceBox_, "PlaceDoneButton", "Done"};
};

}  // namespace quilla

#endif  // QUILLA_SYMBOLS_LABEL_PLACEMENT_H_
