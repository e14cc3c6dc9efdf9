// Plays a scenario on the real windows, on the display that is there, and leaves pictures of them
// and the files that the scenario saves in a folder:
//   quilla-tour SCENARIO FOLDER
// A comment "# picture NAME" names the picture that is taken where the pointer next moves over a
// bare window.
#include <QApplication>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "robot/robot.h"
#include "scenario.h"
#include "window/widget_hands.h"

namespace quilla::robot {
namespace {

namespace fs = std::filesystem;

constexpr int kUsage = 2;
constexpr int kPaintMs = 50;

/// The names of the pictures of a scenario, in order.
std::vector<std::string> PictureNames(const fs::path& scenario) {
  static const std::string kMark = "# picture ";
  std::vector<std::string> names;
  std::ifstream file(scenario);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(kMark)) names.push_back(line.substr(kMark.size()));
  }
  return names;
}

class PicturingHands : public WidgetHands {
 public:
  PicturingHands(ScriptedEventLoop& event_loop, std::vector<std::string> names)
      : WidgetHands(event_loop), names_(std::move(names)) {}

  void Hover(Control& control) override {
    WidgetHands::Hover(control);
    const auto found = shown().find(dynamic_cast<Form*>(&control));
    if (found != shown().end()) TakePicture(*found->second.window, names_.at(taken_++));
  }

 private:
  static void TakePicture(QWidget& window, const std::string& name) {
    window.activateWindow();
    QTest::qWait(kPaintMs);
    const std::string path = fs::absolute(name + ".png").string();
    if (window.grab().save(QString::fromStdString(path))) std::cout << path << '\n';
  }

  const std::vector<std::string> names_;
  std::size_t taken_ = 0;
};

int Tour(const fs::path& scenario_path, const fs::path& folder) {
  const Scenario scenario = ReadScenarios(scenario_path).at(0);
  const auto names = PictureNames(scenario_path);
  fs::create_directories(folder);
  fs::current_path(folder);
  std::istringstream script(scenario.script);
  std::ostringstream transcript;
  Robot robot(script, transcript, std::cerr, [&](Quilla&, ScriptedEventLoop& event_loop) {
    return std::make_unique<PicturingHands>(event_loop, names);
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
