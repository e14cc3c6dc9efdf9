// The icon of the program: a chip that bears its letter.
#ifndef QUILLA_WINDOW_PROGRAM_ICON_H_
#define QUILLA_WINDOW_PROGRAM_ICON_H_

#include <QIcon>

namespace quilla {

QIcon ProgramIcon();

}  // namespace quilla

#endif  // QUILLA_WINDOW_PROGRAM_ICON_H_
