#pragma once

#include "companion/cards/complaints.h"
#include "tests/unit/companion/formats/format_fixture.h"

namespace tessara::test {

/// Keeps what it is told: "file:line: card N: what".
class ToldFindings : public Findings {
 public:
  void Report(const Place& place, Severity, const std::string& what) override {
    told.push_back(MessageAt(place, what));
  }
  Lines told;
};

}  // namespace tessara::test
