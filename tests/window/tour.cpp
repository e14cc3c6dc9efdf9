// Plays a scenario on the real windows, on the display that is there, and leaves pictures of them
// and the files that the scenario saves in a folder:
//   quilla-tour SCENARIO FOLDER
// A picture is taken where the pointer moves over a bare window.
#include <QApplication>
#include <QTest>
#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

#include "robot/robot.h"
#include "scenario.h"
#include "window/widget_hands.h"

namespace quilla::robot {
namespace {

namespace fs = std::filesystem;

constexpr int kUsage = 2;
constexpr int kPaintMs = 50;

class PicturingHands : public WidgetHands {
 public:
  using WidgetHands::WidgetHands;

  void Hover(Control& control) override {
    WidgetHands::Hover(control);
    const auto found = shown().find(dynamic_cast<Form*>(&control));
    if (found == shown().end()) return;
    QWidget& window = *found->second.window;
    window.activateWindow();
    QTest::qWait(kPaintMs);
    const fs::path path = fs::absolute(std::to_string(++taken_) + ' ' + control.name() + ".png");
    if (window.grab().save(QString::fromStdString(path.string())))
      std::cout << path.string() << '\n';
  }

 private:
  int taken_ = 0;
};

int Tour(const fs::path& scenario_path, const fs::path& folder) {
  const Scenario scenario = ReadScenarios(scenario_path).at(0);
  fs::create_directories(folder);
  fs::current_path(folder);
  std::istringstream script(scenario.script);
  std::ostringstream transcript;
  Robot robot(script, transcript, std::cerr, [](Quilla&, ScriptedEventLoop& event_loop) {
    return std::make_unique<PicturingHands>(event_loop);
  });
  const int result = robot.Play();
  const std::string difference = FirstDifference(scenario.transcript, transcript.str());
  if (!difference.empty()) std::cerr << difference;
  return difference.empty() ? result : 1;
}

}  // namespace
}  // namespace quilla::robot

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc != 3) {
    std::cerr << "usage: quilla-tour SCENARIO FOLDER\n";
    return quilla::robot::kUsage;
  }
  const auto folder = std::filesystem::absolute(argv[2]);
  return quilla::robot::Tour(std::filesystem::absolute(argv[1]), folder);
}
