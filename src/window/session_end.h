// Ends from outside: the desktop's session ends, somebody ends the program by a signal, or the
// display goes. The user is asked as by closing the window; where nobody can answer, unsaved work
// is written to a rescue file.
#ifndef QUILLA_WINDOW_SESSION_END_H_
#define QUILLA_WINDOW_SESSION_END_H_

#include <QObject>
#include <QSessionManager>

#include "panel/quilla.h"
#include "system/end_requests.h"
#include "window/qt_outside.h"

namespace quilla {

class SessionEnd : public QObject {
  Q_OBJECT

 public:
  SessionEnd(Quilla& quilla, QtOutside& outside);
  ~SessionEnd() override;

  /// Asks to end, where somebody can answer, and ends the program or goes on as answered; meanwhile
  /// the work is in a rescue file, since the display may go before the answer comes. Where nobody
  /// can answer, or the question stands already, the program ends and leaves that file.
  void End(bool somebody_can_answer);

 private:
  void Commit(QSessionManager& manager);
  /// Does nothing while the question stands: the work is in the file already.
  void WriteRescue();

  Quilla& quilla_;
  QtOutside& outside_;
  EndRequests requests_{EndRequests::Input::kGoesOn};
  bool asking_ = false;
  bool answered_ = false;  // the last question, by the user
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_SESSION_END_H_
