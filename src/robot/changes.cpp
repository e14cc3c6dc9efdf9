#include "robot/changes.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <set>
#include <sstream>
#include <utility>

#include "isa/instruction_set.h"
#include "platform/button.h"
#include "platform/grid.h"
#include "platform/number_text.h"
#include "platform/text_box.h"
#include "platform/text_list.h"
#include "robot/report.h"
#include "robot/words.h"
#include "robot/wrapped_line.h"

namespace quilla::robot {
namespace {

constexpr const char* kNobody = "-";

/// The colours that change where the cursor moves and nothing else does.
std::string CursorMove(int from, int to) {
  const std::string off = std::to_string(from) + ",2=own";
  const std::string on = std::to_string(to) + ",2=cursor";
  return "Table1 colors " + (from < to ? off + " " + on : on + " " + off) + "\n";
}

/// The comment that a row has without the user; empty for none.
std::string DefaultComment(const Session& session, int row) {
  if (session.Table1.TextMatrix(row, kMnemonicColumn) == kDataMnemonic) return "Data Byte.";
  const std::string& cell = session.Table1.TextMatrix(row, kOpcodeColumn);
  int opcode = 0;
  if (std::from_chars(cell.data(), cell.data() + std::min<std::size_t>(cell.size(), kByteDigits),
                      opcode, 0x10)
          .ec != std::errc()) {
    return {};
  }
  const bool has_operand = cell.size() > kByteDigits;
  return std::string(BeforeList(opcode))
      .append(has_operand ? session.OperandOf(row) : "")
      .append(has_operand ? AfterList(opcode) : "");
}

/// The rows of the program; a comment that is the default one is told as that.
TableRecord ProgramRecord(const Session& session) {
  TableRecord record(session.Table1);
  for (int row = 0; row < session.Table1.Rows(); ++row) {
    const std::string& comment = session.Table1.TextMatrix(row, kCommentColumn);
    if (!comment.empty() && comment == DefaultComment(session, row)) {
      record.SetText(row, kCommentColumn, TableRecord::kDefault);
    }
  }
  return record;
}

bool StandsInSight(const Control& control) {
  return control.container() == nullptr || control.container()->IsVisible();
}

}  // namespace

std::string Changes::TextOf(const Name& name) {
  const auto& [window, own_name, index] = name;
  const std::string text = window.empty() ? own_name : window + "." + own_name;
  return index == Control::kNoIndex ? text : text + " " + std::to_string(index);
}

struct Changes::News {
  std::vector<std::pair<Name, std::string>> captions;
  std::vector<std::pair<Name, std::string>> texts;
  std::vector<Name> shown;
  std::vector<Name> hidden;
  std::vector<Name> enabled;
  std::vector<Name> disabled;
  std::vector<Name> checked;
  std::vector<Name> unchecked;

  /// Takes note of how a control in sight differs from what it was. What a control that is hidden
  /// itself has besides stays as it was.
  void Compare(const Name& name, Look& before, const Look& now) {
    const auto flag = [&](bool& old, bool value, std::vector<Name>& on, std::vector<Name>& off) {
      if (old != value) (value ? on : off).push_back(name);
      old = value;
    };
    const auto text = [&](std::string& old, const std::string& value, auto& changed) {
      if (old != value) changed.emplace_back(name, value);
      old = value;
    };
    flag(before.visible, now.visible, shown, hidden);
    if (!now.visible) return;
    text(before.caption, now.caption, captions);
    text(before.text, now.text, texts);
    flag(before.enabled, now.enabled, enabled, disabled);
    flag(before.checked, now.checked, checked, unchecked);
  }

  static void PrintTexts(std::ostream& transcript, const char* kind,
                         const std::vector<std::pair<Name, std::string>>& changed) {
    WrappedLine line(transcript, kind);
    for (const auto& [name, text] : changed) line.Add(TextOf(name) + "=" + Quoted(text));
  }

  /// The names in one line, the members of a control array together.
  static void PrintNames(std::ostream& transcript, const char* kind,
                         const std::vector<Name>& names) {
    WrappedLine line(transcript, kind);
    for (auto name = names.begin(); name != names.end();) {
      const auto& [window, own_name, index] = *name;
      std::string text = TextOf({window, own_name, Control::kNoIndex});
      char separator = ' ';
      do {
        const int first = std::get<2>(*name);
        int last = first;
        for (++name; name != names.end() && *name == Name(window, own_name, last + 1); ++name) {
          ++last;
        }
        if (first != Control::kNoIndex) text += separator + RangeText(first, last);
        separator = ',';
      } while (name != names.end() && std::get<0>(*name) == window &&
               std::get<1>(*name) == own_name);
      line.Add(text);
    }
  }

  /// The name of a menu in the place of its entries, where all of them are alike now, or all but
  /// one.
  static void JoinMenus(std::vector<Name>& names, const std::map<Name, Control*>& controls) {
    std::map<const Control*, std::set<Name>> entries;
    for (const auto& [name, control] : controls) {
      const auto* const entry = dynamic_cast<const MenuEntry*>(control);
      if (entry == nullptr || !entry->visible() || entry->is_separator()) continue;
      if (dynamic_cast<const MenuEntry*>(entry->container()) != nullptr) {
        entries[entry->container()].insert(name);
      }
    }
    for (const auto& entry : entries) {
      const std::set<Name>& inside = entry.second;
      const auto is_inside = [&](const Name& name) { return inside.contains(name); };
      const auto first = std::ranges::find_if(names, is_inside);
      if (std::ranges::count_if(names, is_inside) < 2) continue;
      const bool enabled = controls.at(*first)->enabled();
      std::string whole = entry.first->name() + "/*";
      int others = 0;
      for (const Name& name : inside) {
        if (controls.at(name)->enabled() == enabled) continue;
        whole.append("-").append(TextOf(name));
        ++others;
      }
      if (others > 1) continue;
      std::erase_if(names, is_inside);
      names.emplace_back(std::string(), whole, Control::kNoIndex);
    }
    std::ranges::sort(names);
  }

  void Print(std::ostream& transcript) const {
    PrintTexts(transcript, "caption:", captions);
    PrintTexts(transcript, "text:", texts);
    PrintNames(transcript, "shown:", shown);
    PrintNames(transcript, "hidden:", hidden);
    PrintNames(transcript, "enabled:", enabled);
    PrintNames(transcript, "disabled:", disabled);
    PrintNames(transcript, "checked:", checked);
    PrintNames(transcript, "unchecked:", unchecked);
  }
};

std::vector<std::pair<std::string, std::string>> Changes::VariablesOf(const Session& session) {
  auto variables = NumbersOf(session);
  // The number of rows is told with the table.
  std::erase_if(variables, [](const auto& variable) { return variable.first == "Rows"; });
  const auto add = [&](std::string name, std::string value) {
    variables.emplace_back(std::move(name), std::move(value));
  };
  add("SelectionAnchor", std::to_string(session.SelectionAnchor));
  add("ClickedRow", std::to_string(session.ClickedRow));
  add("SelectedInstruction", std::to_string(session.SelectedInstruction));
  add("CurrentOpcode", std::to_string(session.CurrentOpcode));
  for (std::size_t i = 0; i < session.SavedCells.size(); ++i) {
    add("SavedCells(" + std::to_string(i) + ")", Quoted(session.SavedCells[i]));
  }
  add("SavedComment", Quoted(session.SavedComment));
  add("FileName", Quoted(session.FileName));
  add("ProjectPath", Quoted(session.ProjectPath));
  add("HexPath", Quoted(session.HexPath));
  add("HexTitle", Quoted(session.HexTitle));
  add("MessageResult", Quoted(session.MessageResult));
  add("NextLabelNumber", std::to_string(session.NextLabelNumber));
  add("NextVariableNumber", std::to_string(session.NextVariableNumber));
  add("CommPortNumber", std::to_string(session.CommPortNumber));
  add("MSComm1.CommPort", std::to_string(session.MSComm1.CommPort));
  return variables;
}

Changes::Look Changes::LookOf(const Control& control) {
  // That a window opens and closes is told when it does.
  const bool visible = control.visible() || control.container() == nullptr;
  Look look{control.caption(), {}, visible, control.enabled(), false};
  if (const auto* const text_box = dynamic_cast<const TextBox*>(&control)) {
    look.text = text_box->text();
  } else if (const auto* const combo = dynamic_cast<const ComboBox*>(&control)) {
    look.text = combo->text();
  } else if (const auto* const option = dynamic_cast<const Option*>(&control)) {
    look.checked = option->checked();
  } else if (const auto* const entry = dynamic_cast<const MenuEntry*>(&control)) {
    look.checked = entry->checkable() && entry->checked();
  }
  return look;
}

Changes::Name Changes::NameOf(const Control& control) {
  const Form& form = *control.form();
  const bool needs_window = &form != &quilla_.panel()->form() && &form != &control;
  return {needs_window ? form.name() : std::string(), control.name(), control.index()};
}

std::string Changes::NameOf(const Form& form, const Control* control) {
  if (control != nullptr) return TextOf(NameOf(*control));
  return TextOf({&form == &quilla_.panel()->form() ? std::string() : form.name(), kNobody,
                 Control::kNoIndex});
}

bool Changes::IsTold(const TextList& list) {
  const Session& session = quilla_.panel()->session();
  const bool is_copy = dynamic_cast<const ComboBox*>(&list) != nullptr &&
                       &list != &session.LabelCombo && &list != &session.XXCombo;
  return !is_copy || list.IsVisible();
}

void Changes::Begin() {
  const Session& session = quilla_.panel()->session();
  for (const auto& [name, value] : VariablesOf(session)) variables_[name] = value;
  for (Form* const form : quilla_.Forms()) {
    looks_[NameOf(*form)] = LookOf(*form);
    for (const Control* const control : form->controls()) {
      const Name name = NameOf(*control);
      looks_[name] = LookOf(*control);
      if (const auto* const grid = dynamic_cast<const Grid*>(control)) {
        tables_[name] = TableRecord(*grid);
        if (control == &session.Table1) tables_[name] = ProgramRecord(session);
      } else if (const auto* const list = dynamic_cast<const TextList*>(control)) {
        tables_[name] = TableRecord(*list);
      }
    }
    focus_[form] = NameOf(*form, form->focused());
    default_[form] = NameOf(*form, form->default_button());
  }
}

void Changes::Print(std::ostream& transcript) {
  std::vector<Form*> forms = quilla_.Forms();
  std::erase_if(forms, [](const Form* form) { return !form->visible(); });
  // In order of their names, so that it does not matter in which order they were made.
  std::map<Name, Control*> controls;
  for (Form* const form : forms) {
    controls[NameOf(*form)] = form;
    for (Control* const control : form->controls()) controls[NameOf(*control)] = control;
  }
  std::ostringstream lines;
  std::ostringstream tables;
  const bool cursor_moved = PrintTables(tables, controls);
  PrintVariables(lines, cursor_moved);
  lines << tables.str();
  News news;
  for (const auto& [name, control] : controls) {
    if (StandsInSight(*control)) news.Compare(name, looks_[name], LookOf(*control));
  }
  for (auto* const names : {&news.enabled, &news.disabled}) News::JoinMenus(*names, controls);
  news.Print(lines);
  WrappedLine focus(lines, "focus:");
  for (const Form* const form : forms) {
    Add(focus, focus_[form], *form, form->focused());
  }
  focus.End();
  WrappedLine default_button(lines, "default:");
  for (const Form* const form : forms) {
    Add(default_button, default_[form], *form, form->default_button());
  }
  default_button.End();
  transcript << Joined(lines.str());
}

void Changes::Add(WrappedLine& line, std::string& before, const Form& form,
                  const Control* control) {
  if (control != nullptr && !control->IsVisible()) return;
  std::string now = NameOf(form, control);
  if (now == before) return;
  line.Add(now);
  before = std::move(now);
}

void Changes::PrintVariables(std::ostream& transcript, bool cursor_moved) {
  WrappedLine line(transcript, "session:");
  const Session& session = quilla_.panel()->session();
  const auto tell = [&](const char* as, const std::string& value,
                        std::initializer_list<const char*> names) {
    line.Add(std::string(as).append("=").append(value));
    for (const char* name : names) variables_[name] = value;
  };
  // A selection of one row is told as one, and with the cursor if that has come to the row.
  const std::string top = std::to_string(session.SelectionTop);
  const bool is_one_row = session.SelectionTop == session.SelectionBottom;
  if (cursor_moved && is_one_row && session.CurrentRow == session.SelectionTop) {
    tell("Cursor", top, {"CurrentRow", "SelectionTop", "SelectionBottom"});
  } else if (is_one_row &&
             (variables_["SelectionTop"] != top || variables_["SelectionBottom"] != top)) {
    tell("Selection", top, {"SelectionTop", "SelectionBottom"});
  }
  for (const auto& [name, value] : VariablesOf(session)) {
    if (variables_[name] == value) continue;
    line.Add(std::string(name).append("=").append(value));
    variables_[name] = value;
  }
}

void Changes::PrintStrings(std::ostream& transcript, const char* name,
                           const std::vector<const TextList*>& lists) {
  std::vector<TableRecord> before;
  std::vector<TableRecord> now;
  for (const TextList* list : lists) {
    before.push_back(tables_[NameOf(*list)]);
    now.emplace_back(*list);
    const bool is_parallel =
        before.back().Rows() == before[0].Rows() && now.back().Rows() == now[0].Rows();
    if (!is_parallel) return;
  }
  TableRecord::SideBySide(before).PrintTexts(transcript, name, TableRecord::SideBySide(now));
  for (std::size_t i = 0; i < lists.size(); ++i) tables_[NameOf(*lists[i])] = now[i];
}

bool Changes::PrintTables(std::ostream& transcript, const std::map<Name, Control*>& controls) {
  struct Table {
    std::string name;
    TableRecord* before;
    TableRecord now;
  };
  std::vector<Table> changed;
  const Session& session = quilla_.panel()->session();
  const auto compare = [&](const Name& name, const auto& table) {
    TableRecord& before = tables_[name];
    if (!before.Matches(table)) changed.push_back({TextOf(name), &before, TableRecord(table)});
  };
  std::ostringstream rows;
  PrintStrings(rows, "Labels",
               {&session.LabelCombo, &session.LabelEqtList, &session.LabelLineList,
                &session.LabelPlacedList, &session.LabelUsedList});
  PrintStrings(rows, "Variables", {&session.XXCombo, &session.XXEqtList});
  for (const auto& [name, control] : controls) {
    if (control == &session.Table1) {
      TableRecord now = ProgramRecord(session);
      if (now != tables_[name]) changed.push_back({TextOf(name), &tables_[name], std::move(now)});
    } else if (const auto* const grid = dynamic_cast<const Grid*>(control)) {
      compare(name, *grid);
    } else if (const auto* const list = dynamic_cast<const TextList*>(control)) {
      if (IsTold(*list)) compare(name, *list);
    }
  }
  const bool is_selected =
      session.SelectionTop == session.CurrentRow && session.SelectionBottom == session.CurrentRow;
  const std::string cursor_move =
      is_selected ? CursorMove(std::stoi(variables_["CurrentRow"]), session.CurrentRow) : "-";
  bool cursor_moved = false;
  std::ostringstream lists;
  std::ostringstream colors;
  for (Table& table : changed) {
    table.before->PrintTexts(table.now.Columns() == 1 ? lists : rows, table.name, table.now);
    std::ostringstream own_colors;
    table.before->PrintColors(own_colors, table.name + " colors", table.now);
    if (own_colors.str() == cursor_move) {
      cursor_moved = true;
    } else {
      colors << own_colors.str();
    }
    *table.before = std::move(table.now);
  }
  transcript << lists.str() << rows.str() << colors.str();
  return cursor_moved;
}

}  // namespace quilla::robot
