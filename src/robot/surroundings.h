// What a script does beside the hands: it answers boxes and dialogs, works the serial port, lets
// time pass, and knows which window it uses.
#ifndef QUILLA_ROBOT_SURROUNDINGS_H_
#define QUILLA_ROBOT_SURROUNDINGS_H_

#include <optional>
#include <string>

#include "platform/dialogs.h"
#include "platform/form.h"
#include "robot/scripted_port.h"

namespace quilla::robot {

class Surroundings {
 public:
  virtual ~Surroundings() = default;

  /// Queues an answer for the next box that has a choice.
  virtual void QueueAnswer(BoxAnswer answer) = 0;
  /// Queues the path that the next file dialog gives, or nothing for a cancel.
  virtual void QueuePath(std::optional<std::string> path) = 0;
  virtual void SetPortState(int number, PortState state) = 0;
  /// Makes bytes arrive at the open port.
  virtual void Feed(const std::string& bytes) = 0;
  /// Lets time pass, or all timers come to rest.
  virtual void Pass(int milliseconds) = 0;
  virtual void PassAll() = 0;
  /// The modal dialog that all other windows stand behind; null if there is none.
  virtual const Form* modal() const = 0;
  /// The window that was used last; null for the panel.
  virtual Form* active() const = 0;
  virtual void Use(Form& form) = 0;
};

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_SURROUNDINGS_H_
