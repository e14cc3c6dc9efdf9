#include "panel/version.h"

namespace quilla {

const char* const kVersion = QUILLA_VERSION;

}  // namespace quilla
