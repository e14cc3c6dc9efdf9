// The version of the program.
#ifndef QUILLA_PANEL_VERSION_H_
#define QUILLA_PANEL_VERSION_H_

namespace quilla {

/// What the splash and the first title show: the version that the build is configured for.
extern const char* const kVersion;

}  // namespace quilla

#endif  // QUILLA_PANEL_VERSION_H_
