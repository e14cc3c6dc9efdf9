#include "program/offer_to_save.h"

#include <string>

namespace quilla {

bool OfferToSave(Session& session) {
  if (!session.FileChanged) return true;
  AskToSaveChanges(session);
  return SaveAsAnswered(session);
}

void AskToSaveChanges(Session& session) {
  session.Ask(BoxIcon::kQuestion, "Save changes to " + session.FileName + "?",
              BoxButtons::kYesNoCancel);
}

bool SaveAsAnswered(Session& session) {
  if (session.MessageResult == AnswerCode(BoxAnswer::kCancel)) return false;
  if (session.MessageResult != AnswerCode(BoxAnswer::kYes)) return true;
  session.menu.SaveFile.Click();
  return !session.FileChanged;
}

}  // namespace quilla
