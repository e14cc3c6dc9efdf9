// The serial port of the desktop on pseudo-terminals: the port by itself, and the whole program
// with quilla-trainer at the other end.
#include "window/qt_serial_port.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <sstream>

#include "formats/hex_records.h"
#include "panel/programming_panel.h"
#include "panel/running_program.h"
#include "platform/failure_of.h"
#include "platform/number_text.h"
#include "robot/scripted_outside.h"
#include "window/qt_clock.h"
#include "window/qt_event_loop.h"

namespace quilla {
namespace {

constexpr const char* kSettings = "2400,N,8,1";

/// The other end of a line, for peers that misbehave.
class Peer {
 public:
  Peer() : end_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
    grantpt(end_);
    unlockpt(end_);
  }
  ~Peer() { Die(); }
  QString name() const { return ptsname(end_); }
  void Die() { close(std::exchange(end_, -1)); }
  void Say(const std::string& bytes) const {
    ASSERT_EQ(write(end_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  /// Adds to `heard` what has arrived.
  void Hear(std::string& heard) const {
    char bytes[0x10000];
    const ssize_t count = read(end_, bytes, sizeof bytes);
    if (count > 0) heard.append(bytes, static_cast<std::size_t>(count));
  }

 private:
  int end_;
};

/// Ports of which the first is a link to whatever line is there.
class QtSerialPortTest : public testing::Test {
 protected:
  void Plug(const QString& line) { ASSERT_TRUE(QFile::link(line, Path("tty0"))); }
  QString Path(const QString& name) const { return folder_.filePath(name); }
  QStringList Prefixes() const { return {Path("none"), Path("tty")}; }
  /// Writes records until there is no room for one; gives all that were taken.
  std::string Fill() {
    const std::string record(43, 'x');
    std::string taken;
    while (!FailureOf([&] { port_.Write(record + std::to_string(taken.size())); })) {
      taken += record + std::to_string(taken.size());
    }
    return taken;
  }

  QTemporaryDir folder_;
  Gate gate_;
  QtEventLoop loop_{gate_, [](Form&) { return std::make_unique<QWidget>(); }};
  QtSerialPort port_{[this] { loop_.Turn(); }, Prefixes()};
};

TEST_F(QtSerialPortTest, TellsWhyItDoesNotOpen) {
  const auto open = [](QtSerialPort& port) { port.Open(1, kSettings); };
  EXPECT_EQ(FailureOf([&] { open(port_); }), ErrorNumber::kPortMissing);
  QFile(Path("tty0")).open(QIODevice::WriteOnly);
  EXPECT_EQ(FailureOf([&] { open(port_); }), ErrorNumber::kPortFailed) << "no line, a file";
  QFile::remove(Path("tty0"));
  const Peer peer;
  Plug(peer.name());
  open(port_);
  port_.SetDtr(true);  // a line without modem signals
  port_.SetRts(true);
  port_.Write("x");
  QtSerialPort second([] {}, Prefixes());
  EXPECT_EQ(FailureOf([&] { open(second); }), ErrorNumber::kPortInUse);
  port_.Close();
  port_.SetDtr(false);
  EXPECT_EQ(FailureOf([&] { port_.Write("x"); }), ErrorNumber::kPortFailed);
  EXPECT_EQ(FailureOf([&] { port_.Read(); }), ErrorNumber::kPortFailed);
}

TEST_F(QtSerialPortTest, SendsAllThatItTookThoughItIsClosed) {
  const Peer peer;
  Plug(peer.name());
  port_.Open(1, kSettings);
  const std::string taken = Fill();
  port_.Close();
  EXPECT_FALSE(port_.IsOpen());
  std::string heard;
  QTimer reader;
  reader.callOnTimeout([&] { peer.Hear(heard); });
  reader.start(20);
  port_.Open(1, kSettings);
  ASSERT_TRUE(QTest::qWaitFor([&] { return heard.size() >= taken.size(); }));
  EXPECT_TRUE(heard.starts_with(taken));
  peer.Say("late");
  EXPECT_TRUE(QTest::qWaitFor([&] { return port_.Read() == "late"; }));
}

TEST_F(QtSerialPortTest, ALineThatIsCutGivesWhatItBroughtAndThenFails) {
  Peer peer;
  Plug(peer.name());
  port_.Open(1, kSettings);
  peer.Say(":01");
  QTest::qWait(20);
  Fill();
  peer.Die();
  QTest::qWait(20);
  EXPECT_EQ(port_.Read(), ":01");
  EXPECT_EQ(FailureOf([&] { port_.Read(); }), ErrorNumber::kPortFailed);
  EXPECT_EQ(FailureOf([&] { port_.Write("x"); }), ErrorNumber::kPortFailed);
}

class LinkTest : public QtSerialPortTest {
 protected:
  ~LinkTest() override {
    trainer_.kill();
    trainer_.waitForFinished();
  }
  /// Starts a trainer and plugs its line in.
  void StartTrainer(QStringList options) {
    options << "--record" << Path("record");
    trainer_.start(QCoreApplication::applicationDirPath() + "/quilla-trainer", options);
    ASSERT_TRUE(trainer_.waitForReadyRead());
    Plug(QString::fromUtf8(trainer_.readLine()).trimmed());
  }
  /// A hex file of so many full records; gives what a download sends of it.
  std::string WriteHexFile(const QString& path, int count) {
    std::ofstream file(path.toStdString(), std::ios::binary);
    std::string sent;
    for (int i = 0; i < count; ++i) {
      std::string record = ":10" + AddressText(0x8000 + 0x10 * i) + "00";
      for (int byte = 0; byte < 0x10; ++byte) record += PaddedHexText((i + byte * 5) % 0x100, 2);
      const std::string checksum = Checksum(record);
      record += checksum.substr(checksum.size() - 2);
      sent += record;
      file << '"' << record << "\"\r\n";
    }
    file << '"' << kEndRecord << "\"\r\n";
    return sent + kEndRecord;
  }
  std::string Record() { return BytesOf(Path("record").toStdString()); }
  /// Chooses a menu entry, says OK to its prompt and gives it a file.
  void Transfer(MenuEntry& entry, const QString& path = {}) {
    if (!path.isEmpty()) outside_.file_dialogs.Queue(path.toStdString());
    outside_.boxes.Queue(BoxAnswer::kOk);
    entry.Choose();
  }
  /// Whether just this arrives at the trainer.
  bool Arrives(const std::string& sent) {
    return QTest::qWaitFor([&] { return Record().size() >= sent.size(); }) && Record() == sent;
  }
  bool TipComes(const std::string& wanted) {
    return QTest::qWaitFor([&] { return tip() == wanted; });
  }
  Session& session() { return panel_.session(); }
  const std::string& tip() { return session().TipsLabel.caption(); }

  QProcess trainer_;
  std::ostringstream transcript_;
  robot::ScriptedOutside outside_{transcript_};
  QtClock clock_{gate_};
  Outside desktop_{outside_.boxes, outside_.file_dialogs, port_, clock_, outside_.printer,
                   loop_,          outside_.storage};
  ProgrammingPanel panel_{desktop_};
};

TEST_F(LinkTest, ADownloadArrivesWholeAndComesBackAsItWas) {
  StartTrainer({"--fast"});
  const std::string records = WriteHexFile(Path("image.hex"), 480);  // 22 KB
  Transfer(session().menu.DownloadFile, Path("image.hex"));
  ASSERT_TRUE(TipComes("Download completed."));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !session().PortOpen; }));
  EXPECT_TRUE(Arrives(records));
  Transfer(session().menu.UploadFile, Path("back.hex"));
  ASSERT_TRUE(TipComes("Enter file name and click 'Save'."));
  EXPECT_EQ(BytesOf(Path("back.hex").toStdString()), BytesOf(Path("image.hex").toStdString()));
}

TEST_F(LinkTest, ASlowLineLosesNothing) {
  StartTrainer({});
  const std::string records = WriteHexFile(Path("image.hex"), 13);
  Transfer(session().menu.DownloadFile, Path("image.hex"));
  ASSERT_TRUE(TipComes("Download completed."));
  EXPECT_TRUE(Arrives(records));
  QTimer watch;
  watch.callOnTimeout([this] {
    if (tip() == "Uploading . . .") trainer_.kill();
  });
  watch.start(1);
  Transfer(session().menu.UploadFile);
  EXPECT_EQ(tip(), "Upload incomplete.") << "the trainer has gone";
  EXPECT_FALSE(session().PortOpen);
  Transfer(session().menu.DownloadFile, Path("image.hex"));
  EXPECT_TRUE(TipComes("Download incomplete."));
}

}  // namespace
}  // namespace quilla
