#include "disassembler/data_dialog.h"

#include <algorithm>
#include <new>
#include <optional>
#include <string>

#include "disassembler/stages.h"
#include "formats/hex_file.h"
#include "platform/failure.h"
#include "platform/number_text.h"
#include "program/default_comment.h"

namespace quilla {
namespace {

constexpr const char* kCaption = "Disassemble Dialog - ";
constexpr int kReadChannel = 5;
constexpr int kHeadingRows = 1;

enum DataColumn : int { kAddress, kData, kCategory };
constexpr const char* kHeadList[] = {"Address", "Data", "Category"};
constexpr int kColWidthList[] = {930, 600, 930};

}  // namespace

DataDialog::DataDialog(Session& session, Rows& rows, Origins& origins, AddressAssignment& addresses)
    : session_(session), rows_(rows), origins_(origins), addresses_(addresses) {
  DataTable_.SetFixedRows(kHeadingRows);
  OriginList_.Hide();
  form_.Unload = [this] { Form_Unload(); };
  for (Option& option : DataType_) {
    option.Click = [this, &option] { DataType_Click(option.index()); };
  }
  DataTable_.MouseDown = [this] { SelectionStartRow_ = DataTable_.Row(); };
  DataTable_.MouseUp = [this] { DataTable_MouseUp(); };
  DoneButton_.Click = [this] { DoneButton_Click(); };
  CancelButton_.Click = [this] { CancelButton_Click(); };
  CheckTimer_.Fire = [this] { CheckTimer_Timer(); };
  CopyTimer_.Fire = [this] { CopyTimer_Timer(); };
  DisassembleTimer_.Fire = [this] { DisassembleTimer_Timer(); };
  CommentTimer_.Fire = [this] { CommentTimer_Timer(); };
  session_.menu.DisassembleFile.Click = [this] { DisassembleFile_Click(); };
}

void DataDialog::DisassembleFile_Click() {
  const HexFileChannels channels{.read = kReadChannel, .clean_up = kReadChannel};
  if (OpenHexFile(session_, channels) != HexFileOpening::kGood) return;
  try {
    Form_Load();
  } catch (const Failure&) {  // more bytes than the table holds
    session_.ShowCritical("Unable to open " + session_.HexTitle + ".");
    return;
  }
  session_.outside.event_loop.ShowModal(form_);
}

void DataDialog::Form_Load() {
  form_.set_caption(kCaption + session_.HexTitle);
  Clear(layout_);
  OriginList_.Clear();
  ListData();
  DoneButton_.set_enabled(false);
  DataType_[static_cast<std::size_t>(Category::kUnwanted)].set_checked(true);
  DataType_Click(static_cast<int>(Category::kUnwanted));
  session_.SetTip("Select the mnemonics && data bytes and click 'Done', or click 'Cancel'.");
}

void DataDialog::ListData() {
  bytes_ = ListBytes(session_.HexList.items());
  DataTable_.SetRows(0);
  DataTable_.SetRows(kHeadingRows + static_cast<int>(bytes_.size()));
  for (int column = 0; column < kColumns; ++column) {
    DataTable_.SetTextMatrix(0, column, kHeadList[column]);
    DataTable_.SetColWidth(column, kColWidthList[column]);
  }
  int row = kHeadingRows;
  for (const MarkedByte& byte : bytes_) {
    DataTable_.SetTextMatrix(row, kAddress, AddressText(byte.address));
    DataTable_.SetTextMatrix(row, kData, byte.digits.text());
    DataTable_.SetTextMatrix(row, kCategory, TextOf(byte.category));
    ++row;
  }
  DataTable_.SelectCell(std::min(kHeadingRows, DataTable_.Rows() - 1), 0);
}

void DataDialog::Form_Unload() {
  for (Timer* timer : {&CheckTimer_, &CopyTimer_, &DisassembleTimer_, &CommentTimer_}) {
    timer->Disable();
  }
  SetPointer(FormPointer::kNormal);
}

void DataDialog::DataType_Click(int index) {
  data_type_ = static_cast<Category>(index);
  DataTypeLabel_.set_caption(std::string(TextOf(data_type_)));
}

void DataDialog::DataTable_MouseUp() {
  SelectionEndRow_ = DataTable_.RowSel();
  AssignDataType(std::max(SelectionStartRow_, SelectionEndRow_),
                 std::min(SelectionStartRow_, SelectionEndRow_));
}

void DataDialog::AssignDataType(int last_row, int first_row) {
  for (int row = std::max(first_row, kHeadingRows); row <= last_row; ++row) {
    DataTable_.SetTextMatrix(row, kCategory, DataTypeLabel_.caption());
    bytes_[static_cast<std::size_t>(row - kHeadingRows)].category = data_type_;
  }
  if (data_type_ != Category::kUnwanted) DoneButton_.set_enabled(true);
}

void DataDialog::DoneButton_Click() {
  session_.SetTip("Checking Data . . .");
  SetPointer(FormPointer::kBusy);
  CheckTimer_.Enable();
}

void DataDialog::CancelButton_Click() {
  session_.SetTip(session_.ReadyState() == PanelState::kReady ? "Program Mode." : "Data Mode.");
  session_.outside.event_loop.Unload(form_);
}

void DataDialog::CheckTimer_Timer() {
  std::optional<std::string> fault;
  bool done = false;
  try {
    fault = CheckMarks(bytes_, layout_);
    done = !fault;
  } catch (const std::bad_alloc&) {
    session_.ShowCritical("Insufficient memory.");
  } catch (const Failure&) {  // more rows than the stores hold: no word about it
  }
  session_.LastLine = layout_.LastLine;
  OriginList_.Assign(layout_.OriginList);
  if (done) {
    session_.SetTip("Copying Opcodes . . .");
    CopyTimer_.Enable();
    return;
  }
  if (fault) session_.ShowCritical(*fault);
  SetPointer(FormPointer::kNormal);
  if (fault) session_.outside.event_loop.Show(form_);
}

void DataDialog::CopyTimer_Timer() {
  session_.FileName = kNewFileName;
  session_.ProgrammingPanel.set_caption(kTitle + session_.FileName);
  CopyOpcodes(layout_, session_, rows_, origins_);
  SetPointer(FormPointer::kNormal);
  session_.SetTip(" Disassembling Opcodes . . .");
  DisassembleTimer_.Enable();
}

void DataDialog::DisassembleTimer_Timer() {
  NameOperands(layout_, session_);
  addresses_.Assign_Address(true);
  PlaceLabels(session_);
  session_.SetTip("Adding Comments . . .");
  CommentTimer_.Enable();
}

void DataDialog::CommentTimer_Timer() {
  for (int row = 0; row < session_.Table1.Rows(); ++row) ApplyDefaultComment(session_, row);
  session_.SetTip("Disassembling completed successfully.");
  session_.FileChanged = true;
  session_.FileOrigin = FileOrigin::kDisassembled;
  session_.outside.event_loop.Unload(form_);
}

}  // namespace quilla
