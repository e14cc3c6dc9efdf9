#include "window/qt_text.h"

#include <QByteArray>
#include <array>

#include "platform/control.h"

namespace quilla {
namespace {

// Windows-1252 is Latin-1 but for this range; its five unassigned bytes keep their own number.
constexpr unsigned kFirstSpecial = 0x80;
constexpr std::array<char16_t, 32> kSpecials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString FromWindows1252(std::string_view text) {
  QString result;
  result.reserve(static_cast<qsizetype>(text.size()));
  for (const char character : text) {
    const unsigned byte = static_cast<unsigned char>(character);
    const bool special = byte >= kFirstSpecial && byte < kFirstSpecial + kSpecials.size();
    result += QChar(special ? kSpecials[byte - kFirstSpecial] : static_cast<char16_t>(byte));
  }
  return result;
}

}  // namespace

QString ToQt(std::string_view text) {
  const auto bytes = QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()));
  return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : FromWindows1252(text);
}

std::string FromQt(const QString& text) { return text.toStdString(); }

QString LabelText(std::string_view caption) { return ToQt(caption).replace("&&", "&"); }

QString WidgetName(const std::string& name, int index) {
  const QString text = QString::fromStdString(name);
  return index == Control::kNoIndex ? text : text + ' ' + QString::number(index);
}

}  // namespace quilla
