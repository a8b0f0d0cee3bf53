#pragma once

#include "deck/file/deck_file.h"
#include "shell/program.h"
#include "tests/support/fakes/fake_machine.h"
#include "tests/support/fakes/headless_renderer.h"

namespace tessara::test {

/// The whole program on a machine of fakes. The settings keep the splash and the association out
/// of the way unless a test wants them.
struct ProgramFixture {
  FakeMachine fakes;
  Machine machine = fakes.Get();
  HeadlessRenderer renderer;
  Program program{machine};
  ProgramState& state = program.State();

  ProgramFixture() {
    program.Windows().SetRenderer(renderer);
    fakes.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
  }

  void Start(const Text& commandLine = u"") { program.Main(commandLine); }

  DeckWindow& Deck() { return program.DeckWindowOf().Loaded(); }
  ProgramFrame& Frame() { return program.FrameWindow().Loaded(); }

  /// A deck file of text cards ("E") or true/false questions ("T"), named "front 1" and on.
  static std::string DeckBytes(int cards, TextView type = u"E") {
    std::string bytes;
    const auto add = [&bytes](const DeckRecord& record) {
      const RecordBytes encoded = EncodeRecord(record, CodePage::Western());
      bytes.append(encoded.begin(), encoded.end());
    };
    add({u"I", u"", 0, {u"1/2/2003", u" Standard", u"Birds", u"Ann"}, u"", u"All about birds"});
    for (int row = 1; row <= cards; ++row) {
      const Text number = DecimalText(row);
      const auto stored = static_cast<std::int16_t>(row);
      add({Text(type),
           u"front " + number,
           stored,
           {},
           type == u"T" ? u"T" : u"",
           u"back " + number});
    }
    add({u"X", u"", 0, {}, u"", u""});
    return bytes;
  }
};

}  // namespace tessara::test
