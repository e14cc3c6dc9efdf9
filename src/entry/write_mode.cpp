#include "entry/write_mode.h"

namespace quilla {

WriteModeSwitch::WriteModeSwitch(Session& session, Rows& rows) : session_(session), rows_(rows) {
  session_.menu.WriteMode.Click = [this] { WriteMode_Click(); };
  session_.WriteModeLabel.Click = [this] { WriteMode_Click(); };
}

void WriteModeSwitch::WriteMode_Click() {
  session_.SetWriteMode(!session_.IsInsertMode());
  if (!session_.IsInsertMode() || !session_.IsReady()) return;
  rows_.InsertLine(session_.CurrentRow, 1);
  rows_.NextLine(session_.CurrentRow - 1);
}

}  // namespace quilla
