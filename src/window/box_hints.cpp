#include "window/box_hints.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "platform/text_box.h"
#include "platform/text_list.h"
#include "symbols/string_lists.h"

namespace quilla {
namespace {

constexpr const char* kNameRule = "1 to 6 small letters or digits, a letter first.";
constexpr const char* kGivesRowBack = "Esc gives the row back.";

/// A box that takes a name, new or known, for what has been picked in the table.
struct NameBox {
  std::string_view box;
  std::string_view text;
  std::string_view known_option;
  std::string_view accept;
  const char* kind;
  std::string_view names;  // the list of this kind's names
  std::string_view other_names;
  const char* picking;  // what has to be picked for the name; null where the row is settled
  const char* leaving;
};

constexpr std::array kNameBoxes = {
    NameBox{"LabelBox", "LabelText", "ExistingLabelOption", "LabelAcceptButton", "label",
            "LabelCombo", "XXCombo", nullptr, kGivesRowBack},
    NameBox{"XXBox", "XXText", "ExistingXXOption", "XXAcceptButton", "variable", "XXCombo",
            "LabelCombo", nullptr, kGivesRowBack},
    NameBox{"PlaceBox", "PlaceText", "ExistingPlaceOption", "PlaceAcceptButton", "label",
            "LabelCombo", "XXCombo", "Pick the row that gets the label: click it, or Space on it.",
            "Done when all labels stand where they should."},
    NameBox{"ReplaceBox", "ReplaceText", "ExistingReplaceOption", "ReplaceAcceptButton", "label",
            "LabelCombo", "XXCombo", "Pick the red cells that get the name: click, or Space.",
            "Done takes the colours off."},
};

const char* FaultOf(const std::string& name) {
  if (name.empty() || IsGoodName(name)) return nullptr;
  const bool begins_well = name.front() >= 'a' && name.front() <= 'z';
  return begins_well ? "The key is grey: only small letters and digits."
                     : "The key is grey: a name begins with a small letter.";
}

QString LineOnName(const FormMirror& mirror, const NameBox& box) {
  if (mirror.Get<Option>(box.known_option).checked()) {
    return QStringLiteral("The arrows or a letter choose a %1 from the list.").arg(box.kind);
  }
  const std::string& name = mirror.Get<TextBox>(box.text).text();
  if (const char* const fault = FaultOf(name)) return fault;
  if (!name.empty() && mirror.Get<ComboBox>(box.names).Find(name) >= 0) {
    return "A name used before: choose Existing.";
  }
  if (!name.empty() && mirror.Get<ComboBox>(box.other_names).Find(name) >= 0) {
    return QStringLiteral("A name used before, and no %1: choose another.").arg(box.kind);
  }
  return kNameRule;
}

QString NameHint(const FormMirror& mirror, const NameBox& box) {
  QStringList lines(LineOnName(mirror, box));
  if (!mirror.Get<Option>(box.known_option).enabled()) {
    lines << QStringLiteral("Existing is grey while there is no %1.").arg(box.kind);
  }
  if (box.picking != nullptr) lines << box.picking;
  lines << box.leaving;
  return lines.join('\n');
}

// One box for three tasks, which show different keys.
QString VariableHint(const FormMirror& mirror, NameBox box) {
  if (mirror.Get<Button>("XXFindButton").visible()) {
    return "Find colours every row with the variable.\nDone takes the colours off.";
  }
  if (mirror.Get<Button>("XXReplaceButton").visible()) {
    box.picking = "Pick the red cells that get the name: click, or Space.";
    box.leaving = "Done takes the colours off.";
  }
  return NameHint(mirror, box);
}

// The key that accepts is grey while a single digit is asked for.
QString NumberHint(const FormMirror& mirror) {
  if (!mirror.Get<Button>("NumberAcceptButton").enabled()) {
    return QString("0 to 7, clicked or typed, and the row is written.\n") + kGivesRowBack;
  }
  return "Four hexadecimal digits, clicked or typed.\n"
         "Each moves the others to the left.\n"
         "Enter accepts. Esc leaves all as it was.";
}

QString CommentHint(const FormMirror& mirror) {
  QStringList lines(
      "Pick the row first: click it, or Space on it.\n"
      "Any text; \" and & cannot be typed.\nIgnore gives the old one back.");
  if (!mirror.Get<Button>("DefaultCommentButton").enabled()) {
    lines << "Default Comment is grey: no instruction.";
  }
  if (!mirror.Get<Button>("CommentNextButton").enabled()) {
    lines << "Next is grey: there is no row below.";
  }
  return lines.join('\n');
}

}  // namespace

QString HintOf(const FormMirror& mirror, const Box& box) {
  for (const NameBox& each : kNameBoxes) {
    if (each.box != box.name()) continue;
    return each.box == "XXBox" ? VariableHint(mirror, each) : NameHint(mirror, each);
  }
  if (box.name() == "NumberBox") return NumberHint(mirror);
  if (box.name() == "CommentsBox") return CommentHint(mirror);
  if (box.name() == "RegisterBox") {
    return QString(
               "Or type the letter: S for SP, P for PSW.\n"
               "Grey keys do not go with this instruction.\n") +
           kGivesRowBack;
  }
  if (box.name() == "DataBox") {
    return "Two hexadecimal digits, clicked or typed.\n"
           "Enter writes them as a row at the cursor.\n"
           "Ctrl+M leads back to the instructions.";
  }
  if (box.name() == "FindBox") {
    return "Find colours every row with the label.\nDone takes the colours off.";
  }
  if (box.name() == "PrintCommentBox") return "A line for the head of every printed page.";
  return {};
}

}  // namespace quilla
