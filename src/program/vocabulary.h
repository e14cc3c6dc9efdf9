// The words of the whole system: the columns of the program table, the texts and colours that mean
// something wherever they stand, and the names of the windows.
#ifndef QUILLA_PROGRAM_VOCABULARY_H_
#define QUILLA_PROGRAM_VOCABULARY_H_

#include <string_view>

#include "platform/grid.h"

namespace quilla {

/// The columns of `Table1`.
enum Column : int { kLabelColumn, kAddressColumn, kMnemonicColumn, kOpcodeColumn, kCommentColumn };
inline constexpr int kProgramColumns = 5;
/// Their widths in 1/1440 inch, in the window and on paper.
inline constexpr int kProgramColWidthList[kProgramColumns] = {1080, 600, 1680, 1080, 7140};

/// The fixed texts of rows and captions that the logic tests.
inline constexpr std::string_view kOrigin = "Origin";
inline constexpr const char* kDataMnemonic = "DFB";
inline constexpr const char* kUnknownAddress = "XXXX";
inline constexpr const char* kUnknownByte = "XX";
inline constexpr const char* kInsertMode = "Insert";
inline constexpr const char* kOverwriteMode = "Overwrite";
inline constexpr const char* kOffersDataMode = "Data &Mode";
inline constexpr const char* kOffersProgramMode = "Program &Mode";
inline constexpr const char* kTitle = "Brelvanor Quilla - ";
inline constexpr const char* kNewFileName = "Pgm1.baf";
inline constexpr const char* kYesFlag = "1";
inline constexpr const char* kNoFlag = "0";

/// Colours as the grid takes them, blue-green-red, and what they mean in a cell.
inline constexpr CellColor kRed{0x0000FF};
inline constexpr CellColor kGreen{0x00FF00};
inline constexpr CellColor kBlue{0xFF0000};
inline constexpr CellColor kWhite{0xFFFFFF};
inline constexpr CellColor kBlack{0x000000};
inline constexpr CellColor kOriginColor{0xE0E0E0};
inline constexpr CellColor kPickedColor = kGreen;
inline constexpr CellColor kCandidateColor = kRed;
inline constexpr CellColor kFoundColor = kBlue;
inline constexpr CellColor kCommentColor{0xC0FFC0};
inline constexpr CellColor kEnabledColor = kGreen;  // an interrupt line that is heard
inline constexpr CellColor kMaskedColor = kRed;     // and one that is not
inline constexpr unsigned kOverwriteTextColor = 255;
inline constexpr unsigned kInsertTextColor = 32768;

/// The windows, by the names that their forms have.
inline constexpr const char* kOpenForm = "OpenForm";
inline constexpr const char* kProgrammingPanel = "ProgrammingPanel";
inline constexpr const char* kRenumberDialog = "RenumberDialog";
inline constexpr const char* kDataDialog = "DataDialog";
inline constexpr const char* kPrintInfo = "PrintInfo";
inline constexpr const char* kWatchWindowDialog = "WatchWindowDialog";

}  // namespace quilla

#endif  // QUILLA_PROGRAM_VOCABULARY_H_
