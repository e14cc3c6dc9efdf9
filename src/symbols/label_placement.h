// Labels in place: the place tool puts labels on rows, the delete tool takes them off.
#ifndef QUILLA_SYMBOLS_LABEL_PLACEMENT_H_
#define QUILLA_SYMBOLS_LABEL_PLACEMENT_H_

#include <string>

#include "platform/text_box.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/string_lists.h"

namespace quilla {

class LabelPlacement {
 public:
  LabelPlacement(Session& session, StateMachine& states, StringLists& strings);

  /// What stands in the place tool's box for a new name.
  const std::string& NewName() const { return PlaceText_.text(); }

 private:
  void PlaceStatus(bool status);
  void RowPicked();
  void NewPlaceOption_Click();
  void ExistingPlaceOption_Click();
  void PlaceText_Change();
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

  Box PlaceBox_;
  Label PlaceHeading_;
  Option NewPlaceOption_;
  TextBox PlaceText_;
  Option ExistingPlaceOption_;
  Button PlaceAcceptButton_;
  Button PlaceDoneButton_;
};

}  // namespace quilla

#endif  // QUILLA_SYMBOLS_LABEL_PLACEMENT_H_
