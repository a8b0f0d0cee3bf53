#pragma once

#include "import/import_common.h"
#include "import/import_listener.h"

namespace tessara {

/// Tells the user the first error of a text in a box, and nothing of what is passed over.
class ImportBoxes : public ImportListener {
 public:
  explicit ImportBoxes(const ImportContext& context) : context_(context) {}

  void MeetCard(std::int16_t card, std::size_t line) override;
  void Meet(const ImportFinding& finding) override;
  [[nodiscard]] bool GoesOn() const override { return false; }

 private:
  const ImportContext& context_;
};

}  // namespace tessara
