// The world outside of the program, as the script makes it.
#ifndef QUILLA_ROBOT_SCRIPTED_OUTSIDE_H_
#define QUILLA_ROBOT_SCRIPTED_OUTSIDE_H_

#include <ostream>

#include "platform/outside.h"
#include "robot/answers.h"
#include "robot/page_transcript.h"
#include "robot/scripted_event_loop.h"
#include "robot/scripted_port.h"
#include "robot/virtual_clock.h"

namespace quilla::robot {

struct ScriptedOutside {
  explicit ScriptedOutside(std::ostream& transcript)
      : boxes(transcript),
        file_dialogs(transcript),
        port(transcript),
        printer(transcript),
        event_loop(transcript) {}

  QueuedMessageBoxes boxes;
  QueuedFileDialogs file_dialogs;
  ScriptedPort port;
  VirtualClock clock;
  PageTranscript printer;
  ScriptedEventLoop event_loop;
  /// The same, as the program knows it.
  Outside ports{boxes, file_dialogs, port, clock, printer, event_loop};
};

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_SCRIPTED_OUTSIDE_H_
