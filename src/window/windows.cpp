#include "window/windows.h"

#include <map>
#include <string>

#include "program/vocabulary.h"
#include "window/data_window.h"
#include "window/main_window.h"
#include "window/print_info_window.h"
#include "window/renumber_window.h"
#include "window/splash_window.h"
#include "window/watch_window.h"
#include "window/zoom.h"

namespace quilla {
namespace {

using Maker = std::unique_ptr<QWidget> (*)(Gate&, EventLoop&, Form&);

template <typename Window>
std::unique_ptr<QWidget> Make(Gate& gate, EventLoop& event_loop, Form& form) {
  return std::make_unique<Window>(gate, event_loop, form);
}

}  // namespace

std::unique_ptr<QWidget> MakeWindow(Gate& gate, EventLoop& event_loop, Form& form) {
  static const std::map<std::string, Maker> kMakers = {
      {kDataDialog, Make<DataWindow>},         {kOpenForm, Make<SplashWindow>},
      {kPrintInfo, Make<PrintInfoWindow>},     {kProgrammingPanel, Make<MainWindow>},
      {kRenumberDialog, Make<RenumberWindow>}, {kWatchWindowDialog, Make<WatchWindow>},
  };
  std::unique_ptr<QWidget> window = kMakers.at(form.name())(gate, event_loop, form);
  AddZoom(*window);
  return window;
}

}  // namespace quilla
