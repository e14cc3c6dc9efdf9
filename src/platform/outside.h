// All that the system needs of the world outside, in one place.
#ifndef QUILLA_PLATFORM_OUTSIDE_H_
#define QUILLA_PLATFORM_OUTSIDE_H_

#include <string>

#include "platform/dialogs.h"
#include "platform/form.h"
#include "platform/serial_port.h"
#include "platform/storage.h"
#include "platform/timer.h"

namespace quilla {

/// The event loop that windows live in.
class EventLoop {
 public:
  virtual ~EventLoop() = default;

  /// Shows a window, or brings one that is shown to the front; the caller goes on.
  void Show(Form& form);
  /// Shows a window and waits until it is closed; the windows behind it take no input meanwhile.
  void ShowModal(Form& form);
  /// Closes a window from code and ends its modal wait; nothing if it is not shown.
  void Unload(Form& form);
  /// The user closes a window by its frame: its QueryUnload may keep it open.
  void CloseByFrame(Form& form);

  /// Lets waiting events be handled, on behalf of `waiter`, and comes back.
  virtual void Yield(const Control& waiter) = 0;
  /// Ends the program: nothing further happens once the running handler returns.
  virtual void End() = 0;
  /// Waits, handling nothing, until the program is ended from outside. It does not come back.
  virtual void NeverReturn() = 0;

 protected:
  virtual void OpenWindow(Form& form) = 0;
  /// Brings a window that is shown to the front.
  virtual void RaiseWindow(Form& form) = 0;
  virtual void CloseWindow(Form& form) = 0;
  /// Handles events until the form is out of sight.
  virtual void WaitUntilClosed(Form& form) = 0;
};

class PagePrinter {
 public:
  virtual ~PagePrinter() = default;
  /// Begins a run: its sheets are one print job of the document `name`. Gives false, and begins
  /// none, if the user was asked where to print and gave no place.
  virtual bool BeginRun(const std::string& name) = 0;
  /// Prints a page layout as it stands, one sheet on the default printer. Fails with
  /// `kWriteFailed` if the printer refuses it.
  virtual void PrintForm(const Form& layout) = 0;
  /// Ends the run. One without sheets leaves nothing behind.
  virtual void EndRun() = 0;
};

struct Outside {
  MessageBoxes& boxes;
  FileDialogs& file_dialogs;
  SerialPort& serial_port;
  Clock& clock;
  PagePrinter& printer;
  EventLoop& event_loop;
  Storage& storage;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_OUTSIDE_H_
