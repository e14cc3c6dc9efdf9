#include "window/box_pages.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <algorithm>
#include <array>
#include <initializer_list>
#include <string_view>

#include "window/bindings.h"
#include "window/box_hints.h"
#include "window/box_page.h"
#include "window/keypad.h"
#include "window/qt_text.h"
#include "window/quiet_label.h"

namespace quilla {
namespace {

using Names = std::initializer_list<std::string_view>;

constexpr int kMargin = 12;
constexpr int kColumnGap = 24;
constexpr int kInputWidthInDigits = 16;
constexpr int kCommentWidthInDigits = 80;

void AddRow(QVBoxLayout* column, FormMirror& mirror, QWidget* page, Names names) {
  auto* const row = new QHBoxLayout;
  for (const std::string_view name : names) row->addWidget(Make(mirror, page, name));
  row->addStretch();
  column->addLayout(row);
}

/// The left part of a page, filled from the top on.
QVBoxLayout* NewColumn(QWidget* page) {
  auto* const column = new QVBoxLayout;
  column->setSpacing(4);
  static_cast<QBoxLayout*>(page->layout())->addLayout(column);
  return column;
}

/// What the box says of itself, to the right of the rest and in line as the controls change.
void AddHint(FormMirror& mirror, const Box& box, QWidget* page) {
  auto* const hint = new QuietLabel(HintOf(mirror, box), page);
  hint->setObjectName(ToQt(box.name()) + "Hint");
  hint->MayBeCut();
  QObject::connect(&mirror.gate(), &Gate::Left, hint, [&mirror, &box, hint] {
    if (hint->isVisible()) hint->setText(HintOf(mirror, box));
  });
  static_cast<QBoxLayout*>(page->layout())->addWidget(hint, 1, Qt::AlignTop);
}

// Two rows of keys, register pairs one above the other.
void FillRegisterPage(FormMirror& mirror, BoxPage* page) {
  constexpr std::array<std::array<int, 5>, 2> kRows = {{{0, 2, 4, 7, 8}, {1, 3, 5, 6, 9}}};
  auto* const column = NewColumn(page);
  auto* const heading = new QHBoxLayout;
  heading->addWidget(Make(mirror, page, "RegisterCaption"));
  heading->addWidget(MakeBold(mirror, page, "RegisterLabel"));
  heading->addStretch();
  column->addLayout(heading);

  QWidget* const keys = NewKeyBlock(page);
  auto* const grid = static_cast<QGridLayout*>(keys->layout());
  for (std::size_t row = 0; row < kRows.size(); ++row) {
    for (std::size_t place = 0; place < kRows[row].size(); ++place) {
      QWidget* const key = MakeKey(mirror, keys, "REG", kRows[row][place]);
      key->setMinimumWidth(DigitsWidth(*key, kKeyWidthInDigits));
      grid->addWidget(key, static_cast<int>(row), static_cast<int>(place));
    }
  }
  column->addWidget(keys, 1);
  page->set_keys(keys);
  page->setFocusPolicy(Qt::StrongFocus);
}

// The value on the left, sixteen digit keys as on a trainer's keyboard, and what takes the value.
void FillDigitPage(FormMirror& mirror, BoxPage* page, std::string_view caption,
                   std::string_view value, std::string_view keys_name, std::string_view accept) {
  auto* const row = static_cast<QBoxLayout*>(page->layout());
  auto* const display = new QVBoxLayout;
  display->addWidget(Make(mirror, page, caption));
  display->addWidget(MakeBigDigits(mirror, page, value));
  display->addStretch();
  row->addLayout(display);

  QWidget* const keys = MakeKeypad(mirror, page, keys_name);
  row->addWidget(keys);
  auto* const actions = new QVBoxLayout;
  actions->addWidget(Make(mirror, page, accept));
  actions->addStretch();
  row->addLayout(actions);
  page->set_keys(keys);
}

void FillNumberPage(FormMirror& mirror, BoxPage* page) {
  FillDigitPage(mirror, page, "DataTypeLabel", "NumberLabel", "NUM", "NumberAcceptButton");
  MakeOutOfSight(mirror, page, "NumberFocusButton");
}

void FillDataPage(FormMirror& mirror, BoxPage* page) {
  FillDigitPage(mirror, page, "DataCaption", "DataLabel", "DataNum", "DataAcceptButton");
}

// A new name or one that exists, and what to do with it.
void FillChoicePage(FormMirror& mirror, BoxPage* page, std::string_view heading, Names new_name,
                    Names existing_name, Names buttons) {
  auto* const column = NewColumn(page);
  column->addWidget(MakeBold(mirror, page, heading));
  auto* const grid = new QGridLayout;
  int row = 0;
  for (const Names& pair : {new_name, existing_name}) {
    int place = 0;
    for (const std::string_view name : pair) {
      QWidget* const widget = Make(mirror, page, name);
      if (place > 0) widget->setFixedWidth(DigitsWidth(*widget, kInputWidthInDigits));
      grid->addWidget(widget, row, place++);
    }
    ++row;
  }
  grid->setColumnStretch(2, 1);
  column->addLayout(grid);
  AddRow(column, mirror, page, buttons);
  column->addStretch();
}

void FillLabelPage(FormMirror& mirror, BoxPage* page) {
  FillChoicePage(mirror, page, "LabelHeading", {"NewLabelOption", "LabelText"},
                 {"ExistingLabelOption", "LabelCombo"}, {"LabelAcceptButton"});
}

void FillVariablePage(FormMirror& mirror, BoxPage* page) {
  FillChoicePage(mirror, page, "XXHeading", {"NewXXOption", "XXText"},
                 {"ExistingXXOption", "XXCombo"},
                 {"XXAcceptButton", "XXFindButton", "XXReplaceButton", "XXDoneButton"});
}

void FillPlacePage(FormMirror& mirror, BoxPage* page) {
  FillChoicePage(mirror, page, "PlaceHeading", {"NewPlaceOption", "PlaceText"},
                 {"ExistingPlaceOption", "PlaceCombo"}, {"PlaceAcceptButton", "PlaceDoneButton"});
}

void FillReplacePage(FormMirror& mirror, BoxPage* page) {
  FillChoicePage(mirror, page, "ReplaceHeading", {"NewReplaceOption", "ReplaceText"},
                 {"ExistingReplaceOption", "ReplaceCombo"},
                 {"ReplaceAcceptButton", "ReplaceDoneButton"});
}

void FillFindPage(FormMirror& mirror, BoxPage* page) {
  auto* const column = NewColumn(page);
  column->addWidget(MakeBold(mirror, page, "FindHeading"));
  auto* const row = new QHBoxLayout;
  row->addWidget(Make(mirror, page, "FindCaption"));
  QWidget* const combo = Make(mirror, page, "FindCombo");
  combo->setFixedWidth(DigitsWidth(*combo, kInputWidthInDigits));
  row->addWidget(combo);
  row->addStretch();
  column->addLayout(row);
  AddRow(column, mirror, page, {"FindButton", "FindDoneButton"});
  column->addStretch();
}

void FillTextPage(FormMirror& mirror, BoxPage* page, std::string_view heading,
                  std::string_view text, Names buttons) {
  auto* const column = NewColumn(page);
  column->addWidget(MakeBold(mirror, page, heading));
  QWidget* const edit = Make(mirror, page, text);
  edit->setMaximumWidth(DigitsWidth(*edit, kCommentWidthInDigits));
  column->addWidget(edit);
  AddRow(column, mirror, page, buttons);
  column->addStretch();
}

void FillCommentsPage(FormMirror& mirror, BoxPage* page) {
  FillTextPage(mirror, page, "CommentsHeading", "CommentsTxt",
               {"CommentNextButton", "DefaultCommentButton", "CommentContinueButton",
                "CommentDoneButton", "CommentCancelButton"});
}

void FillPrintCommentPage(FormMirror& mirror, BoxPage* page) {
  FillTextPage(mirror, page, "PrintCommentHeading", "PrintCommentText",
               {"ClearComments", "PrintCommentDoneButton", "PrintCommentCancelButton"});
}

struct BoxLayout {
  std::string_view box;
  void (*fill)(FormMirror&, BoxPage*);
};

constexpr std::array kLayouts = {
    BoxLayout{"RegisterBox", FillRegisterPage}, BoxLayout{"NumberBox", FillNumberPage},
    BoxLayout{"DataBox", FillDataPage},         BoxLayout{"LabelBox", FillLabelPage},
    BoxLayout{"XXBox", FillVariablePage},       BoxLayout{"PlaceBox", FillPlacePage},
    BoxLayout{"FindBox", FillFindPage},         BoxLayout{"ReplaceBox", FillReplacePage},
    BoxLayout{"CommentsBox", FillCommentsPage}, BoxLayout{"PrintCommentBox", FillPrintCommentPage}};

}  // namespace

QWidget* BuildBoxPage(FormMirror& mirror, Box& box, QWidget* parent) {
  auto* const page = new BoxPage(parent);
  const auto* const layout = std::find_if(kLayouts.begin(), kLayouts.end(),
                                          [&](const auto& each) { return each.box == box.name(); });
  if (layout == kLayouts.end()) qFatal("no layout for %s", box.name().c_str());
  auto* const row = new QHBoxLayout(page);
  row->setContentsMargins(kMargin, 4, kMargin, 4);
  row->setSpacing(kColumnGap);
  layout->fill(mirror, page);
  AddHint(mirror, box, page);
  Bind(mirror, box, *page);
  return page;
}

}  // namespace quilla
