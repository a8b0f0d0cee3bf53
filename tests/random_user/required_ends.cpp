#include "tests/random_user/required_ends.h"

#include <algorithm>
#include <iterator>

namespace tessara::test {

namespace {

/// An end by a run-time error that stays as it is.
struct RequiredEnd {
  const char* error;
  const char* after;
  bool (*holds)(const Story& story);
};

constexpr RequiredEnd kRequiredEnds[] = {
    {"'35600'", "no backdrop chosen in the set-up window",
     [](const Story& story) { return story.choosesBackDrop; }},
    {"'9'", "a deck with a card outside of the table",
     [](const Story& story) { return story.lastFile == "far row.tsr"; }},
    {"'53'", "a deck that is not there",
     [](const Story& story) { return story.lastFile == "missing.tsr"; }},
    {"'62'", "an import of an empty file",
     [](const Story& story) { return story.lastFile == "empty.txt"; }},
    {"'55'", "an import after one that met an unforeseen error",
     [](const Story& story) { return story.importBroke && story.lastFile.ends_with(".txt"); }},
};

}  // namespace

bool IsRequiredEnd(const std::string& report, const Story& story) {
  return std::any_of(std::begin(kRequiredEnds), std::end(kRequiredEnds),
                     [&](const RequiredEnd& end) {
                       return report.find(end.error) != std::string::npos && end.holds(story);
                     });
}

}  // namespace tessara::test
