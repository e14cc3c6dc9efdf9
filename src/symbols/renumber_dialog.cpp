#include "symbols/renumber_dialog.h"

#include <utility>

#include "program/opcode_cell.h"

namespace quilla {
namespace {

constexpr const char* kCaption = "Equivalents Tool Window";
constexpr const char* kHeadings[] = {"Label", "Current", "New"};
constexpr int kHeadingRows = 1;

enum EquivalentColumn : int { kName, kCurrent, kNew };

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
    : session_(session),
      names_(names),
      box_changed_(std::move(box_changed)),
      Frame_(&form, names.frame) {
  Table_.SetFixedRows(kHeadingRows);
  Table_.Click = [this] { Table_Click(); };
  AcceptButton_.Click = [this] { AcceptButton_Click(); };
  AcceptButton_.KeyPress = DigitKeyPress(std::move(digit));
  DelayTimer_.Fire = [this] { AcceptButton_.SetFocus(); };
}

void EquivalentsPage::Load(const TextList& names, const TextList& equivalents) {
  Table_.SetRows(0);
  Table_.SetRows(kHeadingRows + names.Count());
  for (int column = 0; column < kColumns; ++column) {
    Table_.SetTextMatrix(0, column, kHeadings[column]);
    Table_.SetColAlignment(column, kAlignCentreTop);
  }
  for (int i = 0; i < names.Count(); ++i) {
    Table_.SetTextMatrix(i + kHeadingRows, kName, names[i]);
    Table_.SetTextMatrix(i + kHeadingRows, kCurrent, equivalents[i]);
    Table_.SetTextMatrix(i + kHeadingRows, kNew, equivalents[i]);
  }
  EditBox_.Hide();
  NameLabel_.set_caption({});
  Display_.set_caption(names_.zero);
  AcceptButton_.set_enabled(true);
}

void EquivalentsPage::AddDigit(int digit) {
  Display_.set_caption(ShiftIn(Display_.caption(), digit));
  AcceptButton_.SetFocus();
}

void EquivalentsPage::Table_Click() {
  const int row = Table_.MouseRow();
  if (row < kHeadingRows || Table_.MouseCol() != kName) return;
  NameLabel_.set_caption(Table_.TextMatrix(row, kName));
  EditBox_.Show();
  box_changed_();
  AcceptButton_.set_enabled(true);
  AcceptButton_.MakeDefault();
  Display_.set_caption(names_.zero);
  DelayTimer_.Enable();  // the box is only about to appear
}

void EquivalentsPage::AcceptButton_Click() {
  Table_.SetTextMatrix(Table_.Row(), kNew, Display_.caption());
  EditBox_.Hide();
  box_changed_();
  AcceptButton_.set_enabled(false);
}

RenumberDialog::RenumberDialog(Session& session) : session_(session) {
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
  labels_.set_visible(labels);
  variables_.set_visible(!labels);
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
  for (int row = kHeadingRows; row < labels_.table().Rows(); ++row) {
    const std::string& equivalent = labels_.table().TextMatrix(row, kNew);
    const int label = row - kHeadingRows;
    if (session_.LabelEqtList[label] == equivalent) continue;
    session_.LabelEqtList.Set(label, equivalent);
    changed[session_.LabelCombo[label]] = equivalent;
  }
  RewriteOperands(session_, changed, WithLabel);
}

void RenumberDialog::TakeVariables() {
  NewEquivalents changed;
  for (int row = kHeadingRows; row < variables_.table().Rows(); ++row) {
    const std::string& equivalent = variables_.table().TextMatrix(row, kNew);
    if (variables_.table().TextMatrix(row, kCurrent) == equivalent) continue;
    session_.XXEqtList.Set(row - kHeadingRows, equivalent);
    changed[variables_.table().TextMatrix(row, kName)] = equivalent;
  }
  RewriteOperands(session_, changed, WithVariable);
}

}  // namespace quilla
