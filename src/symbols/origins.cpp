#include "symbols/origins.h"

namespace quilla {
namespace {

/// What a new origin adds to the count of lines in use, besides the row it inserts.
constexpr int kLinesOfOrigin = 3;

}  // namespace

Origins::Origins(Session& session, StateMachine& states, Rows& rows)
    : session_(session), states_(states), rows_(rows) {
  session_.menu.NewOrigin.Click = [this] { states_.ControlTransfer(PanelState::kNewOrigin); };
  states_.SetReady([this] { UpdateOrigins(); });
}

bool Origins::AddOrigin(const std::string& address) {
  Grid& table = session_.Table1;
  if (session_.OriginList.IsEmpty()) {
    session_.OriginList.Add(address);
    table.SetTextMatrix(0, kLabelColumn, kOrigin);
    table.SetTextMatrix(0, kAddressColumn, address);
    session_.LastLine = 1;
    rows_.NextLine(1);
    return true;
  }
  if (IsTaken(address)) return false;
  session_.LastLine += kLinesOfOrigin;
  rows_.AddRows(session_.LastLine);
  session_.OriginList.Add(address);
  rows_.InsertLine(session_.CurrentRow, 1);
  const int row = --session_.CurrentRow;
  table.SetTextMatrix(row, kLabelColumn, kOrigin);
  table.SetTextMatrix(row, kAddressColumn, address);
  ColorOrigin(row);
  rows_.NextLine(row + 1);
  return true;
}

bool Origins::ChangeOrigin(const std::string& address) {
  const int row = session_.ClickedRow;
  const int listed = session_.OriginList.Find(session_.Table1.TextMatrix(row, kAddressColumn));
  if (listed >= 0) session_.OriginList.Remove(listed);
  if (IsTaken(address)) return false;
  session_.Table1.SetTextMatrix(row, kAddressColumn, address);
  UpdateOrigins();
  return true;
}

void Origins::ClickLabel(int row) {
  if (!session_.IsOrigin(row)) return;
  session_.ClickedRow = row;
  states_.ControlTransfer(PanelState::kChangeOrigin);
}

bool Origins::IsTaken(const std::string& address) {
  if (session_.OriginList.Find(address) < 0) return false;
  session_.ShowCritical("Origin Address already used. Enter another address.");
  return true;
}

void Origins::UpdateOrigins() {
  session_.OriginList.Clear();
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    if (!session_.IsOrigin(row)) continue;
    session_.OriginList.Add(session_.Table1.TextMatrix(row, kAddressColumn));
    ColorOrigin(row);
  }
}

void Origins::ColorOrigin(int row) {
  for (int column = 0; column < kProgramColumns; ++column) {
    session_.Table1.PaintBack(row, column, kOriginColor);
  }
}

}  // namespace quilla
