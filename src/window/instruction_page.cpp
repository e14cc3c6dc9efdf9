#include "window/instruction_page.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <array>
#include <limits>
#include <optional>
#include <string_view>

#include "isa/instruction_set.h"
#include "window/bindings.h"
#include "window/qt_text.h"
#include "window/quiet_label.h"

namespace quilla {
namespace {

constexpr int kFamilyGap = 10;
constexpr int kKeyGap = 2;
constexpr int kMostColumns = 4;
// A longer pause ends the typing of a name.
constexpr int kLongestNamePauseMs = 1000;

struct Family {
  const char* heading = nullptr;
  std::array<std::string_view, kMostColumns> columns;  // the names of each column, from the top
};

constexpr std::array kFamilies = {
    Family{"Data transfer", {"MOV LXI LDA LDAX LHLD", "MVI XCHG STA STAX SHLD"}},
    Family{"Arithmetic", {"ADD ADC ADI ACI DAD", "SUB SBB SUI SBI DAA", "INR DCR INX DCX"}},
    Family{"Logic", {"ANA ORA XRA CMP CMA", "ANI ORI XRI CPI STC", "RLC RRC RAL RAR CMC"}},
    Family{"Branch", {"JMP JC JNC JZ JNZ", "PCHL JP JM JPE JPO"}},
    Family{"Call and return",
           {"CALL CC CNC CZ CNZ", "RST CP CM CPE CPO", "RET RC RNC RZ RNZ", " RP RM RPE RPO"}},
    Family{"Stack", {"PUSH POP XTHL SPHL"}},
    Family{"I/O and machine", {"IN OUT RIM SIM", "DI EI NOP HLT"}},
};

}  // namespace

InstructionPage::InstructionPage(FormMirror& mirror, QWidget* parent)
    : BoxPage(parent), mirror_(mirror) {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(6, 2, 6, 4);
  column->setSpacing(2);
  column->addLayout(MakeHintLine());
  column->addLayout(MakeFamilies());
  MakeTabStop(0);
}

QLayout* InstructionPage::MakeHintLine() {
  auto* const line = new QHBoxLayout;
  line->setSpacing(0);
  line->addWidget(Make(mirror_, this, "InstructionCaption"));
  line->addSpacing(kFamilyGap);
  line->addWidget(MakeBold(mirror_, this, "InstructionLabel", 0));
  line->addWidget(Make(mirror_, this, "InstructionLabel", 1));
  line->addSpacing(kFamilyGap);
  auto* const how = new QuietLabel("Click a key, or type its name and press Enter.", this);
  how->setAlignment(Qt::AlignRight);
  how->MayBeCut();
  line->addWidget(how, 1);
  return line;
}

// One grid for all keys, so that they are of one size; a narrow column parts the families.
QLayout* InstructionPage::MakeFamilies() {
  auto* const grid = new QGridLayout;
  grid->setSpacing(kKeyGap);
  int column = 0;
  for (const Family& family : kFamilies) {
    auto* const heading = new QLabel(family.heading, this);
    const int first_column = column;
    for (const std::string_view names : family.columns) {
      if (names.empty()) break;
      const QByteArray text(names.data(), static_cast<qsizetype>(names.size()));
      int row = 0;
      for (const QByteArray& name : text.split(' ')) {
        ++row;
        if (!name.isEmpty()) AddKey(name.constData(), *grid, {column, row});
      }
      grid->setColumnStretch(column++, 1);
    }
    grid->addWidget(heading, 0, first_column, 1, column - first_column);
    grid->setColumnMinimumWidth(column++, kFamilyGap);
  }
  return grid;
}

void InstructionPage::AddKey(const char* name, QGridLayout& layout, QPoint place) {
  const int index = FindInstructionKey(name);
  QWidget* const key = MakeKey(mirror_, this, "INST", index);
  key->setFocusPolicy(Qt::ClickFocus);
  key->installEventFilter(this);
  connect(static_cast<QPushButton*>(key), &QPushButton::clicked, this, [this] { typed_.clear(); });
  layout.addWidget(key, place.y(), place.x());
  key_of_.insert(key, keys_.size());
  keys_.push_back({key, &mirror_.Get<Button>("INST", index), place});
}

// One key at a time is reached with Tab; from there the arrows lead on.
void InstructionPage::MakeTabStop(std::size_t key) {
  keys_[last_key_].widget->setFocusPolicy(Qt::ClickFocus);
  last_key_ = key;
  keys_[last_key_].widget->setFocusPolicy(Qt::StrongFocus);
}

void InstructionPage::FocusLastKey() { keys_[last_key_].widget->setFocus(Qt::OtherFocusReason); }

bool InstructionPage::eventFilter(QObject* watched, QEvent* event) {
  const auto key = key_of_.constFind(watched);
  if (key == key_of_.constEnd()) return false;
  if (event->type() == QEvent::FocusIn) {
    typed_.clear();
    MakeTabStop(*key);
  }
  return event->type() == QEvent::KeyPress && HandleKey(static_cast<const QKeyEvent&>(*event));
}

bool InstructionPage::HandleKey(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Left:
      return MoveBy({-1, 0});
    case Qt::Key_Right:
      return MoveBy({1, 0});
    case Qt::Key_Up:
      return MoveBy({0, -1});
    case Qt::Key_Down:
      return MoveBy({0, 1});
    default:
      break;
  }
  const QString text = event.text();
  if (text.size() == 1 && text[0].isLetter()) return LookUp(text.toUpper());
  if (event.key() != Qt::Key_Shift) typed_.clear();
  return false;
}

// To the next key in that direction; a gap is stepped over, and an end is the end.
bool InstructionPage::MoveBy(QPoint direction) {
  const QPoint from = keys_[last_key_].place;
  std::size_t nearest = last_key_;
  int distance = std::numeric_limits<int>::max();
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    const QPoint way = keys_[i].place - from;
    const int steps = QPoint::dotProduct(way, direction);
    if (steps <= 0 || way != direction * steps || steps >= distance) continue;
    nearest = i;
    distance = steps;
  }
  MoveTo(nearest);
  return true;
}

// Letters typed in one go are a name or the beginning of one. A letter that leads nowhere begins
// anew, and the same letter again goes on to the next key with it.
bool InstructionPage::LookUp(const QString& letter) {
  if (!since_typed_.isValid() || since_typed_.elapsed() > kLongestNamePauseMs) typed_.clear();
  since_typed_.start();
  for (const QString& beginning : {typed_ + letter, letter}) {
    const std::optional<std::size_t> key = KeyOf(beginning);
    if (!key) continue;
    MoveTo(*key);
    typed_ = beginning;
    break;
  }
  return true;
}

std::optional<std::size_t> InstructionPage::KeyOf(const QString& beginning) const {
  std::optional<std::size_t> found;
  const std::size_t first = beginning.size() > 1 ? last_key_ : last_key_ + 1;
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    const std::size_t key = (first + i) % keys_.size();
    const QString name = ToQt(keys_[key].button->caption());
    if (name == beginning) return key;
    if (!found && name.startsWith(beginning)) found = key;
  }
  return found;
}

void InstructionPage::MoveTo(std::size_t key) {
  typed_.clear();
  keys_[key].widget->setFocus(Qt::TabFocusReason);
  const Button* const button = keys_[key].button;
  mirror_.gate().Enter([button] { button->Hover(); });
}

}  // namespace quilla

#include "moc_instruction_page.cpp"
