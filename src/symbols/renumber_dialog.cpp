#include "symbols/renumber_dialog.h"

#include <utility>

#include "program/opcode_cell.h"

namespace quilla {
namespace {

constexpr const char* kCaption = "Equivalents Tool Window";
constexpr const char* kHeadings[] = {"Label", "Current", "New"};
constexpr int kHeadingRows = 1;
constexpr int kCentred = 3;
constexpr int kFocusDelayMs = 10;

enum EquivalentColumn : int { kName, kCurrent, kNew, kColumns };

constexpr EquivalentsPage::Names kLabelNames = {"LabelFrame", "LabelTable", "EqtBox",
                                                "LabelLabel", "EqtLabel",   "EqtAcceptButton",
                                                "DelayTimer", "0000"};
constexpr EquivalentsPage::Names kVariableNames = {
    "VariableFrame", "VariableTable",  "XXBox",        "VariableLabel",
    "XXLabel",       "XXAcceptButton", "XXDelayTimer", "00"};

using NewEquivalents = std::unordered_map<std::string_view, std::string_view>;

/// Rewrites the Opcode cell of every row whose operand string has a new equivalent.
template <typename Rewrite>
void RewriteOperands(Session& session, const NewEquivalents& equivalents, const Rewrite& rewrite) {
  if (equivalents.empty()) return;
  for (int row = 1; row < session.Table1.Rows(); ++row) {
    const std::string& operand = session.OperandOf(row);
    if (operand.empty()) continue;
    const auto found = equivalents.find(operand);
    if (found == equivalents.end()) continue;
    session.Table1.SetTextMatrix(
        row, kOpcodeColumn, rewrite(session.Table1.TextMatrix(row, kOpcodeColumn), found->second));
  }
}

}  // namespace

EquivalentsPage::EquivalentsPage(Session& session, Form& form, const Names& names,
                                 std::function<void()> box_changed, std::function<void(int)> digit)
    : Frame(&form, names.frame),
      Table(&Frame, names.table, kColumns),
      zero_(names.zero),
      box_changed_(std::move(box_changed)),
      EditBox(&Frame, names.box),
      NameLabel(&EditBox, names.name_label),
      Display(&EditBox, names.display, names.zero),
      AcceptButton(&EditBox, names.accept, "Accept"),
      DelayTimer(session.outside.clock, names.timer, kFocusDelayMs) {
  Table.SetFixedRows(kHeadingRows);
  Table.Click = [this] { Table_Click(); };
  AcceptButton.Click = [this] { AcceptButton_Click(); };
  AcceptButton.KeyPress = DigitKeyPress(std::move(digit));
  DelayTimer.Fire = [this] { AcceptButton.SetFocus(); };
}

void EquivalentsPage::Load(const TextList& names, const TextList& equivalents) {
  Table.SetRows(0);
  Table.SetRows(kHeadingRows + names.Count());
  for (int column = 0; column < kColumns; ++column) {
    Table.SetTextMatrix(0, column, kHeadings[column]);
    Table.SetColAlignment(column, kCentred);
  }
  for (int i = 0; i < names.Count(); ++i) {
    Table.SetTextMatrix(i + kHeadingRows, kName, names[i]);
    Table.SetTextMatrix(i + kHeadingRows, kCurrent, equivalents[i]);
    Table.SetTextMatrix(i + kHeadingRows, kNew, equivalents[i]);
  }
  EditBox.Hide();
  NameLabel.set_caption({});
  Display.set_caption(zero_);
  AcceptButton.set_enabled(true);
}

void EquivalentsPage::AddDigit(int digit) {
  Display.set_caption(ShiftIn(Display.caption(), digit));
  AcceptButton.SetFocus();
}

void EquivalentsPage::Table_Click() {
  const int row = Table.MouseRow();
  if (row < kHeadingRows || Table.MouseCol() != kName) return;
  NameLabel.set_caption(Table.TextMatrix(row, kName));
  EditBox.Show();
  box_changed_();
  AcceptButton.set_enabled(true);
  AcceptButton.MakeDefault();
  Display.set_caption(zero_);
  DelayTimer.Enable();  // the box is only about to appear
}

void EquivalentsPage::AcceptButton_Click() {
  Table.SetTextMatrix(Table.Row(), kNew, Display.caption());
  EditBox.Hide();
  box_changed_();
  AcceptButton.set_enabled(false);
}

RenumberDialog::RenumberDialog(Session& session)
    : session_(session),
      labels_(
          session, form_, kLabelNames, [this] { ShowDigitKeys(); },
          [this](int digit) { NUM_Click(digit); }),
      variables_(
          session, form_, kVariableNames, [this] { ShowDigitKeys(); },
          [this](int digit) { NUM_Click(digit); }),
      NUM_(&DigitBox_, "NUM", [this](int digit) { NUM_Click(digit); }) {
  form_.set_caption(kCaption);
  form_.Unload = [this] {
    labels_.Unload();
    variables_.Unload();
  };
  LabelsOption_.Click = [this] { ShowPage(true); };
  VariablesOption_.Click = [this] { ShowPage(false); };
  DoneButton_.Click = [this] { DoneButton_Click(); };
  session_.menu.EqtOption.Click = [this] { EqtOption_Click(); };
}

void RenumberDialog::EqtOption_Click() {
  if (session_.LabelCombo.IsEmpty() && session_.XXCombo.IsEmpty()) {
    session_.ShowInformation("No strings available.");
    return;
  }
  session_.FileChanged = true;
  Form_Load();
  session_.outside.event_loop.ShowModal(form_);
}

void RenumberDialog::Form_Load() {
  form_.set_default_button(nullptr);
  labels_.Load(session_.LabelCombo, session_.LabelEqtList);
  variables_.Load(session_.XXCombo, session_.XXEqtList);
  VariablesOption_.set_enabled(!session_.XXCombo.IsEmpty());
  LabelsOption_.set_enabled(!session_.LabelCombo.IsEmpty());
  ShowPage(!session_.LabelCombo.IsEmpty());
}

void RenumberDialog::ShowPage(bool labels) {
  labels_.Frame.set_visible(labels);
  variables_.Frame.set_visible(!labels);
  (labels ? LabelsOption_ : VariablesOption_).set_checked(true);
  ShowDigitKeys();
}

void RenumberDialog::NUM_Click(int index) {
  (labels_.IsEditing() ? labels_ : variables_).AddDigit(index);
}

void RenumberDialog::ShowDigitKeys() {
  DigitBox_.set_visible(labels_.IsEditing() || variables_.IsEditing());
}

void RenumberDialog::DoneButton_Click() {
  TakeLabels();
  TakeVariables();
  session_.outside.event_loop.Unload(form_);
}

void RenumberDialog::TakeLabels() {
  NewEquivalents changed;
  for (int row = kHeadingRows; row < labels_.Table.Rows(); ++row) {
    const std::string& equivalent = labels_.Table.TextMatrix(row, kNew);
    const int label = row - kHeadingRows;
    if (session_.LabelEqtList[label] == equivalent) continue;
    session_.LabelEqtList.Set(label, equivalent);
    changed[session_.LabelCombo[label]] = equivalent;
  }
  RewriteOperands(session_, changed, WithLabel);
}

void RenumberDialog::TakeVariables() {
  NewEquivalents changed;
  for (int row = kHeadingRows; row < variables_.Table.Rows(); ++row) {
    const std::string& equivalent = variables_.Table.TextMatrix(row, kNew);
    if (variables_.Table.TextMatrix(row, kCurrent) == equivalent) continue;
    session_.XXEqtList.Set(row - kHeadingRows, equivalent);
    changed[variables_.Table.TextMatrix(row, kName)] = equivalent;
  }
  RewriteOperands(session_, changed, WithVariable);
}

}  // namespace quilla
