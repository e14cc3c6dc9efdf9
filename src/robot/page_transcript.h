// The printer of the script: a page is a few lines of the transcript.
#ifndef QUILLA_ROBOT_PAGE_TRANSCRIPT_H_
#define QUILLA_ROBOT_PAGE_TRANSCRIPT_H_

#include <ostream>
#include <string>

#include "platform/outside.h"

namespace quilla::robot {

class PageTranscript : public PagePrinter {
 public:
  explicit PageTranscript(std::ostream& transcript) : transcript_(transcript) {}

  bool BeginRun(const std::string& /*name*/) override { return true; }
  /// Writes the labels of the layout, and each row of its table that holds a text, with the
  /// columns that are shaded there.
  void PrintForm(const Form& layout) override;
  void EndRun() override {}

 private:
  std::ostream& transcript_;
};

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_PAGE_TRANSCRIPT_H_
