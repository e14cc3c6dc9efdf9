// The world outside of the program, as the script makes it.
#ifndef QUILLA_ROBOT_SCRIPTED_OUTSIDE_H_
#define QUILLA_ROBOT_SCRIPTED_OUTSIDE_H_

#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "platform/outside.h"
#include "robot/answers.h"
#include "robot/page_transcript.h"
#include "robot/scripted_event_loop.h"
#include "robot/scripted_port.h"
#include "robot/surroundings.h"
#include "robot/virtual_clock.h"
#include "system/disk_storage.h"

namespace quilla::robot {

struct ScriptedOutside : Surroundings {
  explicit ScriptedOutside(std::ostream& transcript)
      : boxes(transcript),
        file_dialogs(transcript),
        port(transcript),
        printer(transcript),
        event_loop(transcript) {}

  void QueueAnswer(BoxAnswer answer) override { boxes.Queue(answer); }
  void QueuePath(std::optional<std::string> path) override { file_dialogs.Queue(std::move(path)); }
  void SetPortState(int number, PortState state) override { port.SetState(number, state); }
  void Feed(const std::string& bytes) override { port.Feed(bytes); }
  void Pass(int milliseconds) override { clock.Pass(milliseconds); }
  void PassAll() override { clock.PassAll(); }
  const Form* modal() const override { return event_loop.modal(); }
  Form* active() const override { return event_loop.active(); }
  void Use(Form& form) override { event_loop.Use(form); }

  QueuedMessageBoxes boxes;
  QueuedFileDialogs file_dialogs;
  ScriptedPort port;
  VirtualClock clock;
  PageTranscript printer;
  ScriptedEventLoop event_loop;
  DiskStorage storage;
  /// The same, as the program knows it.
  Outside ports{boxes, file_dialogs, port, clock, printer, event_loop, storage};
};

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_SCRIPTED_OUTSIDE_H_
