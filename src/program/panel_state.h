// The states of the main panel, one for each task, under their numbers.
#ifndef QUILLA_PROGRAM_PANEL_STATE_H_
#define QUILLA_PROGRAM_PANEL_STATE_H_

namespace quilla {

enum class PanelState : int {
  kReady = 1,              // program mode, waiting for an instruction key
  kByteOperand = 2,        // the variable of an 8-bit instruction
  kRegister = 3,           // register or memory of arithmetic and logic
  kLabelOperand = 4,       // the label of a jump, a call or a direct address
  kPair = 5,               // the pair of DAD, DCX, INX
  kNumber = 6,             // reserved
  kLxiPair = 7,            // the pair of LXI
  kLxiOperand = 8,         // the label of LXI
  kMovDestination = 9,     // the first register of MOV
  kMovSource = 10,         // the second register of MOV
  kStackPair = 11,         // the pair of PUSH, POP
  kRestart = 12,           // the number of RST
  kIndirectPair = 13,      // the pair of LDAX, STAX
  kMviRegister = 14,       // the register of MVI
  kMviOperand = 15,        // the variable of MVI
  kPlaceLabel = 16,        // placing labels, no row picked
  kPlaceOnRow = 17,        // placing labels, a row picked
  kReposition = 18,        // reserved
  kComment = 19,           // comments, no row picked
  kCommentRow = 20,        // comments, a row picked
  kEdit = 21,              // reserved
  kFindLabel = 22,         // finding a label
  kReplaceLabel = 23,      // replacing labels, nothing clicked yet
  kReplacePicked = 24,     // replacing labels, a click has happened
  kChangeOrigin = 25,      // a new address for an origin row
  kEquivalent = 26,        // reserved
  kEquivalentNumber = 27,  // reserved
  kNewOrigin = 28,         // the address of a new origin
  kDataReady = 29,         // data mode, waiting for a byte
  kDeleteMarked = 30,      // reserved
  kDeleteLabels = 31,      // taking labels off their rows
  kFindVariable = 32,      // finding a variable
  kReplaceVariable = 33,   // replacing variables, nothing clicked yet
  kVariablePicked = 34,    // replacing variables, a click has happened
  kPrintComment = 35,      // the comment line of printed pages
};

}  // namespace quilla

#endif  // QUILLA_PROGRAM_PANEL_STATE_H_
