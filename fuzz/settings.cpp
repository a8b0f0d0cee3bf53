// Any texts in the settings store: the program starts with them or ends with a report, and the
// set-up window opens on whatever it has started with.

#include "shell/settings.h"

#include <map>

#include "fuzz/byte_source.h"
#include "fuzz/require.h"
#include "tests/support/program_fixture.h"

namespace tessara::fuzz {

namespace {

const Text kKeys[] = {Text(kShowSplashKey),     Text(kLargeCardColorKey), Text(kLargeCard3DKey),
                      Text(kSmallCardColorKey), Text(kSmallCard3DKey),    Text(kBackDropKey),
                      Text(kFirstLoadKey)};

void FillStore(ByteSource& bytes, std::map<Text, Text>& values) {
  values.clear();
  const std::size_t stored = bytes.Next();
  for (std::size_t at = 0; at < std::size(kKeys); ++at) {
    if ((stored >> at & 1U) != 0) values[kKeys[at]] = bytes.TakeText(12);
  }
}

/// Either the program runs on, or it has ended with one report of an error.
bool RunsOn(const test::ProgramFixture& fixture) {
  const auto& shown = fixture.fakes.messages.shown;
  const bool ended = fixture.renderer.exitStatus != -1;
  Require(!ended || fixture.renderer.exitStatus == 1);
  Require(shown.size() == (ended ? 1 : 0));
  Require(!ended || shown[0].text.starts_with(u"Run-time error '"));
  return !ended;
}

void CheckSetUp(test::ProgramFixture& fixture) {
  const auto before = fixture.fakes.settings.writes.size();
  fixture.Deck().closeDeck.Press();
  fixture.Frame().setUp.Press();
  fixture.fakes.messages.answers = {MessageAnswer::kNo};
  if (fixture.program.SetUpWindowOf().IsLoaded()) fixture.program.SetUpWindowOf()->close.Press();
  Require(fixture.fakes.settings.writes.size() == before);
}

}  // namespace

}  // namespace tessara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessara;
  fuzz::ByteSource bytes(data, size);
  test::ProgramFixture fixture;
  fuzz::FillStore(bytes, fixture.fakes.settings.values);
  fixture.Start();
  if (fuzz::RunsOn(fixture)) fuzz::CheckSetUp(fixture);
  return 0;
}
