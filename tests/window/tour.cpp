// Plays a script of the robot on the real windows, on the display that is there, and leaves its
// transcript, pictures of each step and the files that it saves in a folder:
//   quilla-tour SCRIPT FOLDER
#include <QApplication>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include "robot/robot.h"
#include "window/widget_hands.h"

namespace quilla::robot {
namespace {

namespace fs = std::filesystem;

constexpr int kUsage = 2;
constexpr int kPaintMs = 50;

/// Takes a picture before a command is chosen and before a box is closed.
class PicturingHands : public WidgetHands {
 public:
  using WidgetHands::WidgetHands;

  void Click(Control& control) override {
    if (dynamic_cast<MenuEntry*>(&control) != nullptr || control.name().ends_with("DoneButton")) {
      QWidget& window = WindowOf(*control.form());
      window.activateWindow();
      QTest::qWait(kPaintMs);
      const auto name = QString("%1-%2.png").arg(++taken_).arg(control.name().c_str());
      if (window.grab().save(name)) std::cout << fs::absolute(name.toStdString()).string() << '\n';
    }
    WidgetHands::Click(control);
  }

 private:
  int taken_ = 0;
};

int Tour(const char* script_path, const char* folder) {
  std::ifstream script(script_path);
  fs::create_directories(folder);
  fs::current_path(folder);
  std::ofstream transcript("transcript.txt");
  Robot robot(script, transcript, std::cerr, [](Quilla&, ScriptedEventLoop& event_loop) {
    return std::make_unique<PicturingHands>(event_loop);
  });
  return robot.Play();
}

}  // namespace
}  // namespace quilla::robot

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc != 3) {
    std::cerr << "usage: quilla-tour SCRIPT FOLDER\n";
    return quilla::robot::kUsage;
  }
  return quilla::robot::Tour(argv[1], argv[2]);
}
