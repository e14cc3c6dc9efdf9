// Plays a scenario on the real windows, on the display that is there, and leaves pictures of them
// and the files that the scenario saves in a folder:
//   quilla-tour SCENARIO FOLDER
// A comment "# picture NAME" names a picture to be taken at the next line that ends in `changes`.
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

/// For each `changes` of a scenario the name of its picture; empty where none is wanted.
std::vector<std::string> PictureNames(const fs::path& scenario) {
  static const std::string kMark = "# picture ";
  std::vector<std::string> names;
  std::string name;
  std::ifstream file(scenario);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(kMark)) name = line.substr(kMark.size());
    if (line.starts_with("> ") && line.ends_with(" changes")) {
      names.push_back(std::exchange(name, {}));
    }
  }
  return names;
}

class PicturingHands : public WidgetHands {
 public:
  PicturingHands(ScriptedEventLoop& event_loop, std::vector<std::string> names)
      : WidgetHands(event_loop), event_loop_(event_loop), names_(std::move(names)) {}

  void OnState() override {
    const std::string& name = names_.at(step_++);
    for (const auto& [form, window] : shown()) {
      const bool used = form == event_loop_.active() ||
                        (event_loop_.active() == nullptr && form->name() == kProgrammingPanel);
      if (used && !name.empty()) TakePicture(*window.window, name);
    }
  }

 private:
  static void TakePicture(QWidget& window, const std::string& name) {
    window.activateWindow();
    QTest::qWait(kPaintMs);
    const std::string path = fs::absolute(name + ".png").string();
    if (window.grab().save(QString::fromStdString(path))) {
      std::cout << path << '\n';
    }
  }

  ScriptedEventLoop& event_loop_;
  const std::vector<std::string> names_;
  std::size_t step_ = 0;
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
