#include "window/box_pages.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <array>
#include <initializer_list>
#include <string_view>

#include "window/box_page.h"
#include "window/keypad.h"
#include "window/widgets.h"

namespace quilla {
namespace {

using Names = std::initializer_list<std::string_view>;

constexpr int kMargin = 12;
constexpr int kInputWidthInDigits = 16;
constexpr int kCommentWidthInDigits = 80;

void AddIf(QBoxLayout* layout, QWidget* widget, int stretch = 0) {
  if (widget != nullptr) layout->addWidget(widget, stretch);
}

QBoxLayout* Row(const WidgetMaker& make, Names names) {
  auto* const row = new QHBoxLayout;
  for (const std::string_view name : names) AddIf(row, make.Make(name));
  row->addStretch();
  return row;
}

/// A page that is filled from the top left corner on.
QVBoxLayout* NewColumn(QWidget* page) {
  auto* const column = new QVBoxLayout(page);
  column->setContentsMargins(kMargin, 4, kMargin, 4);
  column->setSpacing(4);
  return column;
}

// Two rows of keys, register pairs one above the other.
void FillRegisterPage(const WidgetMaker& make, BoxPage* page) {
  constexpr std::array<std::array<int, 5>, 2> kRows = {{{0, 2, 4, 7, 8}, {1, 3, 5, 6, 9}}};
  auto* const column = NewColumn(page);
  auto* const heading = new QHBoxLayout;
  AddIf(heading, make.Make("RegisterCaption"));
  AddIf(heading, make.MakeBold("RegisterLabel"));
  heading->addStretch();
  column->addLayout(heading);

  QWidget* const keys = NewKeyBlock(page);
  auto* const grid = static_cast<QGridLayout*>(keys->layout());
  const WidgetMaker make_key(make.mirror(), keys);
  for (std::size_t row = 0; row < kRows.size(); ++row) {
    for (std::size_t place = 0; place < kRows[row].size(); ++place) {
      QWidget* const key = make_key.Make("REG", kRows[row][place], ButtonShape::kKey);
      if (key == nullptr) continue;
      key->setMinimumWidth(DigitsWidth(*key, kKeyWidthInDigits));
      grid->addWidget(key, static_cast<int>(row), static_cast<int>(place));
    }
  }
  column->addWidget(keys);
  column->addWidget(new QLabel("Or type the letter: S for SP, P for PSW.", page));
  column->addStretch();
  page->set_keys(keys);
  page->setFocusPolicy(Qt::StrongFocus);
}

// The value on the left, sixteen digit keys as on a trainer's keyboard, and what takes the value.
void FillDigitPage(const WidgetMaker& make, BoxPage* page, std::string_view caption,
                   std::string_view value, std::string_view keys_name, std::string_view accept) {
  auto* const row = new QHBoxLayout(page);
  row->setContentsMargins(kMargin, 4, kMargin, 4);
  row->setSpacing(16);
  auto* const display = new QVBoxLayout;
  AddIf(display, make.Make(caption));
  AddIf(display, MakeBigDigits(make, value));
  display->addStretch();
  row->addLayout(display);

  QWidget* const keys = MakeKeypad(make.mirror(), page, keys_name);
  row->addWidget(keys, 0, Qt::AlignTop);
  auto* const actions = new QVBoxLayout;
  AddIf(actions, make.Make(accept));
  actions->addStretch();
  row->addLayout(actions);
  row->addStretch();
  page->set_keys(keys);
}

void FillNumberPage(const WidgetMaker& make, BoxPage* page) {
  FillDigitPage(make, page, "DataTypeLabel", "NumberLabel", "NUM", "NumberAcceptButton");
  make.MakeOutOfSight("NumberFocusButton");
}

void FillDataPage(const WidgetMaker& make, BoxPage* page) {
  FillDigitPage(make, page, "DataCaption", "DataLabel", "DataNum", "DataAcceptButton");
}

// A new name or one that exists, and what to do with it.
void FillChoicePage(const WidgetMaker& make, BoxPage* page, std::string_view heading,
                    Names new_name, Names existing_name, Names buttons) {
  auto* const column = NewColumn(page);
  AddIf(column, make.MakeBold(heading));
  auto* const grid = new QGridLayout;
  int row = 0;
  for (const Names& pair : {new_name, existing_name}) {
    int place = 0;
    for (const std::string_view name : pair) {
      QWidget* const widget = make.Make(name);
      if (widget == nullptr) continue;
      if (place > 0) widget->setFixedWidth(DigitsWidth(*widget, kInputWidthInDigits));
      grid->addWidget(widget, row, place++);
    }
    ++row;
  }
  grid->setColumnStretch(2, 1);
  column->addLayout(grid);
  column->addLayout(Row(make, buttons));
  column->addStretch();
}

void FillLabelPage(const WidgetMaker& make, BoxPage* page) {
  FillChoicePage(make, page, "LabelHeading", {"NewLabelOption", "LabelText"},
                 {"ExistingLabelOption", "LabelCombo"}, {"LabelAcceptButton"});
}

void FillVariablePage(const WidgetMaker& make, BoxPage* page) {
  FillChoicePage(make, page, "XXHeading", {"NewXXOption", "XXText"},
                 {"ExistingXXOption", "XXCombo"},
                 {"XXAcceptButton", "XXFindButton", "XXReplaceButton", "XXDoneButton"});
}

void FillPlacePage(const WidgetMaker& make, BoxPage* page) {
  FillChoicePage(make, page, "PlaceHeading", {"NewPlaceOption", "PlaceText"},
                 {"ExistingPlaceOption", "PlaceCombo"}, {"PlaceAcceptButton", "PlaceDoneButton"});
}

void FillReplacePage(const WidgetMaker& make, BoxPage* page) {
  FillChoicePage(make, page, "ReplaceHeading", {"NewReplaceOption", "ReplaceText"},
                 {"ExistingReplaceOption", "ReplaceCombo"},
                 {"ReplaceAcceptButton", "ReplaceDoneButton"});
}

void FillFindPage(const WidgetMaker& make, BoxPage* page) {
  auto* const column = NewColumn(page);
  AddIf(column, make.MakeBold("FindHeading"));
  auto* const row = new QHBoxLayout;
  AddIf(row, make.Make("FindCaption"));
  if (QWidget* const combo = make.Make("FindCombo")) {
    combo->setFixedWidth(DigitsWidth(*combo, kInputWidthInDigits));
    row->addWidget(combo);
  }
  row->addStretch();
  column->addLayout(row);
  column->addLayout(Row(make, {"FindButton", "FindDoneButton"}));
  column->addStretch();
}

void FillTextPage(const WidgetMaker& make, BoxPage* page, std::string_view heading,
                  std::string_view text, Names buttons) {
  auto* const column = NewColumn(page);
  AddIf(column, make.MakeBold(heading));
  if (QWidget* const edit = make.Make(text)) {
    edit->setMaximumWidth(DigitsWidth(*edit, kCommentWidthInDigits));
    column->addWidget(edit);
  }
  column->addLayout(Row(make, buttons));
  column->addStretch();
}

void FillCommentsPage(const WidgetMaker& make, BoxPage* page) {
  FillTextPage(make, page, "CommentsHeading", "CommentsTxt",
               {"CommentNextButton", "DefaultCommentButton", "CommentContinueButton",
                "CommentDoneButton", "CommentCancelButton"});
}

void FillPrintCommentPage(const WidgetMaker& make, BoxPage* page) {
  FillTextPage(make, page, "PrintCommentHeading", "PrintCommentText",
               {"ClearComments", "PrintCommentDoneButton", "PrintCommentCancelButton"});
}

struct PageLayout {
  std::string_view box;
  void (*fill)(const WidgetMaker&, BoxPage*);
};

constexpr std::array kLayouts = {PageLayout{"RegisterBox", FillRegisterPage},
                                 PageLayout{"NumberBox", FillNumberPage},
                                 PageLayout{"DataBox", FillDataPage},
                                 PageLayout{"LabelBox", FillLabelPage},
                                 PageLayout{"XXBox", FillVariablePage},
                                 PageLayout{"PlaceBox", FillPlacePage},
                                 PageLayout{"FindBox", FillFindPage},
                                 PageLayout{"ReplaceBox", FillReplacePage},
                                 PageLayout{"CommentsBox", FillCommentsPage},
                                 PageLayout{"PrintCommentBox", FillPrintCommentPage}};

}  // namespace

QWidget* BuildBoxPage(FormMirror& mirror, Box& box, QWidget* parent) {
  auto* const page = new BoxPage(parent);
  for (const PageLayout& layout : kLayouts) {
    if (layout.box == box.name()) layout.fill(WidgetMaker(mirror, page), page);
  }
  mirror.Bind(box, *page);
  return page;
}

}  // namespace quilla
