// The question before a command that gives up the program: whether to save its changes first.
#ifndef QUILLA_PROGRAM_OFFER_TO_SAVE_H_
#define QUILLA_PROGRAM_OFFER_TO_SAVE_H_

#include "program/session.h"

namespace quilla {

/// Asks Yes, No or Cancel where there are unsaved changes. True when the command may go on: there
/// are none, they are to be lost, or they have been saved.
bool OfferToSave(Session& session);

/// Asks the question of OfferToSave; the answer goes to `MessageResult`.
void AskToSaveChanges(Session& session);

/// Acts on the answer that `MessageResult` holds: saves on a Yes. False on a Cancel, and where
/// changes are still unsaved after the save.
bool SaveAsAnswered(Session& session);

}  // namespace quilla

#endif  // QUILLA_PROGRAM_OFFER_TO_SAVE_H_
