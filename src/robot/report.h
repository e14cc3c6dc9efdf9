// What the printing commands of the script write down: the models as a user would see them.
#ifndef QUILLA_ROBOT_REPORT_H_
#define QUILLA_ROBOT_REPORT_H_

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "platform/control.h"
#include "platform/grid.h"
#include "platform/text_list.h"
#include "program/session.h"

namespace quilla::robot {

/// The variables of the session that are numbers and flags, by name.
std::vector<std::pair<std::string, std::string>> NumbersOf(const Session& session);
/// The session: its numbers, its texts, and the input boxes on view.
void PrintState(std::ostream& transcript, const Session& session);

/// One control: its name as the script wrote it, and what it has of caption, text, entries and
/// settings.
void PrintControl(std::ostream& transcript, const std::string& name, const Control& control);

/// Whether a cell of the row has a text.
bool HoldsText(const Grid& grid, int row);
/// The cells of a row, a blank before each.
void PrintCells(std::ostream& transcript, const Grid& grid, int row);

/// Rows `first` to `last`, as far as the grid has them, that hold a text.
void PrintRows(std::ostream& transcript, const std::string& name, const Grid& grid, int first,
               int last);
/// A colour: its six digits, "-" for the grid's own, "cursor" for the selection colour.
std::string ColorText(CellColor color);
/// Each cell whose colour is not the grid's own.
void PrintColors(std::ostream& transcript, const std::string& name, const Grid& grid);
/// Each entry of a list.
void PrintList(std::ostream& transcript, const std::string& name, const TextList& list);

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_REPORT_H_
