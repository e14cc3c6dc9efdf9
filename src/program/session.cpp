#include "program/session.h"

namespace quilla {

Session::Session(Outside& world) : outside(world), MSComm1(world.serial_port) {
  for (Control* hidden :
       {static_cast<Control*>(&StringTable), static_cast<Control*>(&EditTable),
        static_cast<Control*>(&EditStringTable), static_cast<Control*>(&LabelCombo),
        static_cast<Control*>(&LabelEqtList), static_cast<Control*>(&LabelUsedList),
        static_cast<Control*>(&LabelPlacedList), static_cast<Control*>(&LabelLineList),
        static_cast<Control*>(&XXCombo), static_cast<Control*>(&XXEqtList),
        static_cast<Control*>(&FindCombo), static_cast<Control*>(&PlaceCombo),
        static_cast<Control*>(&ReplaceCombo), static_cast<Control*>(&OriginList),
        static_cast<Control*>(&LastAddressList), static_cast<Control*>(&HexList)}) {
    hidden->PlaceIn(&ProgrammingPanel);
    hidden->Hide();
  }
  TipsLabel.set_tool_tip("Interactive tips on using the software.");
  WriteModeLabel.set_tool_tip("Click here to toggle between 'Insert' and 'Overwrite' modes.");
  SetWriteMode(false);
}

BoxAnswer Session::Ask(BoxIcon icon, const std::string& text, BoxButtons buttons) {
  const BoxAnswer answer = outside.boxes.Show(icon, text, buttons);
  MessageResult = AnswerCode(answer);
  return answer;
}

void Session::AddLabel(const LabelRecord& label) {
  LabelCombo.Add(label.name);
  LabelPlacedList.Add(label.placed);
  LabelUsedList.Add(label.used);
  LabelLineList.Add(label.line);
  LabelEqtList.Add(label.equivalent);
}

void Session::AddVariable(const std::string& name, const std::string& equivalent) {
  XXCombo.Add(name);
  XXEqtList.Add(equivalent);
}

void Session::ClearStrings() {
  for (TextList* list :
       {static_cast<TextList*>(&LabelCombo), &LabelPlacedList, &LabelLineList, &LabelUsedList,
        &LabelEqtList, static_cast<TextList*>(&XXCombo), &XXEqtList}) {
    list->Clear();
  }
}

void Session::SetWriteMode(bool insert) {
  WriteModeLabel.set_caption(insert ? kInsertMode : kOverwriteMode);
  WriteModeLabel.set_color(insert ? kInsertTextColor : kOverwriteTextColor);
}

void Session::OpenPort() {
  MSComm1.SetPortOpen(true);
  PortOpen = true;
}

void Session::ClosePort() {
  if (!PortOpen) return;
  MSComm1.SetPortOpen(false);
  PortOpen = false;
}

}  // namespace quilla
