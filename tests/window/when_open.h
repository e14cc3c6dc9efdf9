// Answers dialogs that hold their caller until they are closed.
#ifndef QUILLA_TESTS_WINDOW_WHEN_OPEN_H_
#define QUILLA_TESTS_WINDOW_WHEN_OPEN_H_

#include <gtest/gtest.h>

#include <QApplication>
#include <functional>

namespace quilla {

/// Runs an action as soon as an event loop runs.
inline void Soon(const std::function<void()>& action) {
  QMetaObject::invokeMethod(qApp, action, Qt::QueuedConnection);
}

/// Runs an action on the dialog that is about to open.
template <typename Dialog>
void WhenOpen(const std::function<void(Dialog&)>& action) {
  Soon([action] {
    auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    action(*dialog);
  });
}

}  // namespace quilla

#endif  // QUILLA_TESTS_WINDOW_WHEN_OPEN_H_
