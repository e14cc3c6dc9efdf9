// Texts between the models and Qt. Model texts are bytes, mostly UTF-8.
#ifndef QUILLA_WINDOW_QT_TEXT_H_
#define QUILLA_WINDOW_QT_TEXT_H_

#include <QString>
#include <string>
#include <string_view>

namespace quilla {

/// A model text as the user reads it: UTF-8 where it is valid, else the whole text taken as
/// Windows-1252.
QString ToQt(std::string_view text);

/// What the user typed, in UTF-8.
std::string FromQt(const QString& text);

/// The caption of a label as it is shown: `&&` is one ampersand.
QString LabelText(std::string_view caption);

/// The object name of a control's widget: the name, and the index of an array's control after a
/// blank, such as "INST 5".
QString WidgetName(const std::string& name, int index);

}  // namespace quilla

#endif  // QUILLA_WINDOW_QT_TEXT_H_
