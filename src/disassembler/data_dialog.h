// The disassembler: a dialog in which the user marks the bytes of a hex file as instructions or
// data, and the stages, a timer each, that make a new program of them.
#ifndef QUILLA_DISASSEMBLER_DATA_DIALOG_H_
#define QUILLA_DISASSEMBLER_DATA_DIALOG_H_

#include <array>
#include <vector>

#include "disassembler/marked_bytes.h"
#include "disassembler/program_layout.h"
#include "platform/button.h"
#include "platform/form.h"
#include "platform/grid.h"
#include "platform/text_list.h"
#include "platform/timer.h"
#include "program/rows.h"
#include "program/session.h"
#include "symbols/address_assignment.h"
#include "symbols/origins.h"

namespace quilla {

class DataDialog {
 public:
  DataDialog(Session& session, Rows& rows, Origins& origins, AddressAssignment& addresses);

  Form& form() { return form_; }

 private:
  static constexpr int kColumns = 3;
  static constexpr int kStageMs = 10;

  void DisassembleFile_Click();
  void Form_Load();
  void ListData();
  void Form_Unload();
  void DataType_Click(int index);
  void DataTable_MouseUp();
  void AssignDataType(int last_row, int first_row);
  void DoneButton_Click();
  void CancelButton_Click();
  void CheckTimer_Timer();
  void CopyTimer_Timer();
  void DisassembleTimer_Timer();
  void CommentTimer_Timer();
  void SetPointer(FormPointer pointer) { session_.ProgrammingPanel.set_pointer(pointer); }

  Session& session_;
  Rows& rows_;
  Origins& origins_;
  AddressAssignment& addresses_;

  // What the table shows, without its heading row, and what the stages make of it.
  std::vector<MarkedByte> bytes_;
  ProgramLayout layout_;

  Form form_{kDataDialog};
  Grid DataTable_{&form_, "DataTable", kColumns};
  std::array<Option, 3> DataType_{Option(&form_, "DataType", "&Data Byte.", 0),
                                  Option(&form_, "DataType", "&Mnemonic.", 1),
                                  Option(&form_, "DataType", "&Unwanted.", 2)};
  Label Label5_{&form_, "Label5", "Data Type:"};
  Label DataTypeLabel_{&form_, "DataTypeLabel"};
  TextList OriginList_{&form_, "OriginList"};
  Button DoneButton_{&form_, "DoneButton", "Done"};
  Button CancelButton_{&form_, "CancelButton", "Cancel"};
  // What the next selection makes of its bytes, and the ends of the selection.
  Category data_type_ = Category::kUnwanted;
  int SelectionStartRow_ = 0;
  int SelectionEndRow_ = 0;

  Timer CheckTimer_{session_.outside.clock, "CheckTimer", kStageMs};
  Timer CopyTimer_{session_.outside.clock, "CopyTimer", kStageMs};
  Timer DisassembleTimer_{session_.outside.clock, "DisassembleTimer", kStageMs};
  Timer CommentTimer_{session_.outside.clock, "CommentTimer", kStageMs};
};

}  // namespace quilla

#endif  // QUILLA_DISASSEMBLER_DATA_DIALOG_H_
