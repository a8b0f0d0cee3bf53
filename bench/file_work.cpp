// Times what the program does with the files of a deck, each beside the plain copy of the same
// bytes from or to the same file. Prints a line per work: name, median of ours and of the floor in
// microseconds.
// usage: bench_files FOLDER     for the files it makes

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/posix/copies/posix_safety_copies.h"
#include "adapters/posix/new_file.h"
#include "adapters/posix/posix_file_system.h"
#include "base/utf8.h"
#include "deck/file/deck_file.h"
#include "deck/file/deck_image.h"
#include "import/extended_import.h"
#include "import/standard_import.h"

using namespace tessara;

namespace {

constexpr int kRuns = 201;
/// Characters of text on a card of an import file.
constexpr std::size_t kCardLength = 900;

/// Microseconds of one run.
double Timed(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
      .count();
}

double Median(std::vector<double> times) {
  std::nth_element(times.begin(), times.begin() + kRuns / 2, times.end());
  return times[kRuns / 2];
}

/// In turn, so that both meet the machine in the same mood. The work gets an empty table, as the
/// running program has one before it loads or imports.
void Compare(const char* name, const std::function<void(ProgramState&)>& work,
             const std::function<void()>& floor) {
  std::vector<double> ours;
  std::vector<double> least;
  for (int run = 0; run < kRuns; ++run) {
    least.push_back(Timed(floor));
    const auto state = std::make_unique<ProgramState>();
    ours.push_back(Timed([&] { work(*state); }));
  }
  std::printf("%s %.1f %.1f\n", name, Median(ours), Median(least));
}

struct SilentMessages : MessageBoxes {
  MessageAnswer Show(const Text& text, int, const Text&) override {
    std::fprintf(stderr, "%s\n", ToUtf8(text).c_str());
    return MessageAnswer::kOk;
  }
};

class Bench {
 public:
  explicit Bench(std::string folder) : folder_(std::move(folder)), copies_(folder_ + "/copies") {}

  void Run() {
    FillDeck();
    Deck();
    Import("import-standard", StandardText(kCardLength), ImportStandard);
    Import("import-extended", ExtendedText(kCardLength), ImportExtended);
    // The time is to grow with the length of the file, and no faster.
    Import("standard-tenfold", StandardText(10 * kCardLength), ImportStandard);
    Import("extended-tenfold", ExtendedText(10 * kCardLength), ImportExtended);
  }

 private:
  [[nodiscard]] Text PathOf(const std::string& name) const {
    return FromUtf8(folder_ + "/" + name);
  }

  void FillDeck() {
    deck_.deck.cardPresent.Set(kInfoRow, 1);
    for (int row = 1; row <= kMostCards; ++row) {
      deck_.deck.cardPresent.Set(row, 1);
      deck_.deck.cardGrid.Set(row, kCardType, u"A");
      deck_.deck.cardGrid.Set(row, kCardText, Text(440, u'q'));
      deck_.deck.cardGrid.Set(row, kRowNumber, DecimalText(row));
    }
  }

  void WriteDeck() {
    number_.OpenRandom(PathOf("deck.tsr"), OpenMode::kReadAndWrite, kRecordSize);
    WriteRecords(deck_, number_, page_);
    number_.Close();
  }

  void Deck() {
    const std::size_t size = kRecordSize * (kMostCards + 2);
    Compare(
        "deck-save", [this](ProgramState&) { WriteDeck(); },
        [&] { PlainWrite("plain.tsr", std::string(size, 'x')); });
    // The records are written one by one: what that alone costs.
    Compare(
        "deck-save-calls", [this](ProgramState&) { WriteDeck(); }, [this] { PlainWriteRecords(); });
    // What the user waits for before that: the copy of the old deck, on the disk.
    Compare(
        "safety-copy",
        [this](ProgramState&) { copies_.Keep(PathOf("deck.tsr"), Loss::kWrittenOver); },
        [&] { PlainCopyToDisk("deck.tsr", size); });
    // What each change of a card costs: the whole deck is kept in place of what was kept before.
    DeckImage image(deck_, page_);
    Compare(
        "unsaved-change",
        [&](ProgramState&) {
          deck_.deck.cardGrid.Set(kMostCards / 2, kCardText, Text(440, u'c'));
          copies_.KeepUnsaved(u"deck.tsr", image.Bytes());
        },
        [&] { PlainWrite("plain.tsr", std::string(size, 'x')); });
    // A card deleted in front of all others is the dearest change.
    Compare(
        "unsaved-all-rows",
        [&](ProgramState&) {
          for (int row = 1; row <= kMostCards; ++row) deck_.deck.cardPresent.Set(row, 1);
          copies_.KeepUnsaved(u"deck.tsr", image.Bytes());
        },
        [&] { PlainWrite("plain.tsr", std::string(size, 'x')); });
    copies_.DropUnsaved();
    Compare(
        "deck-load",
        [this](ProgramState& state) {
          LoadDeckFromFile(PathOf("deck.tsr"), state, number_, page_);
          if (state.deck.cardCount != kMostCards) std::abort();
        },
        [&] { PlainRead("deck.tsr", size); });
  }

  void Import(const char* name, const std::string& text,
              void (*import)(const Text&, const ImportContext&)) {
    const std::string file = std::string(name) + ".txt";
    PlainWrite(file, text);
    Compare(
        name,
        [&](ProgramState& state) {
          import(PathOf(file),
                 {state, number_, messages_, page_, {2026, 1, 5}, [](std::int16_t){}, [](DeckKind) {
                  }});
          if (state.deck.cardCount != kMostCards) std::abort();
        },
        [&] { PlainRead(file, text.size()); });
  }

  void PlainWrite(const std::string& name, const std::string& bytes) {
    files_.Open(PathOf(name), OpenMode::kReadAndWrite)->WriteAt(0, bytes);
  }

  void PlainWriteRecords() {
    const auto file = files_.Open(PathOf("plain.tsr"), OpenMode::kReadAndWrite);
    const std::string record(kRecordSize, 'x');
    for (std::uint64_t at = 0; at < kMostCards + 2; ++at) file->WriteAt(at * kRecordSize, record);
  }

  /// A copy under a name of its own, the copy and its folder forced to the disk.
  void PlainCopyToDisk(const std::string& name, std::size_t size) {
    std::string bytes(size, ' ');
    (void)files_.Open(PathOf(name), OpenMode::kRead)->ReadAt(0, bytes);
    const std::string copy = folder_ + "/copy" + std::to_string(++plainCopies_);
    const Descriptor file(open(copy.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600));
    if (write(file.Get(), bytes.data(), size) != static_cast<ssize_t>(size)) std::abort();
    fsync(file.Get());
    SyncFolder(folder_);
  }

  /// Into memory of its own, as ours goes.
  void PlainRead(const std::string& name, std::size_t size) {
    std::vector<char> bytes(size);
    if (files_.Open(PathOf(name), OpenMode::kRead)->ReadAt(0, bytes) != size) std::abort();
  }

  static std::string StandardText(std::size_t cardLength) {
    const std::size_t side = cardLength / 2;
    std::string text = "STD\r\n";
    for (int card = 1; card <= kMostCards; ++card) {
      text += std::to_string(card) + ".\r\n*>F\r\n" + std::string(side, 'f') + "\r\n*>B\r\n" +
              std::string(side, 'b') + "\r\n\r\n";
    }
    return text;
  }

  static std::string ExtendedText(std::size_t cardLength) {
    // The question is as long as its four choices.
    const std::size_t half = cardLength / 2;
    std::string text = "EXT\r\n";
    for (int card = 1; card <= kMostCards; ++card) {
      text += std::to_string(card) + "." + std::string(half, 'q') + "\r\n";
      for (const char letter : {'A', 'B', 'C', 'D'}) {
        text += std::string(1, letter) + "." + std::string(half / 4, 'c') + "\r\n";
      }
      text += "=C\r\n\r\n";
    }
    return text;
  }

  std::string folder_;
  PosixSafetyCopies copies_;
  int plainCopies_ = 0;
  PosixFileSystem files_;
  FileNumber number_{files_};
  const CodePage& page_ = CodePage::Western();
  SilentMessages messages_;
  ProgramState deck_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  Bench(argv[1]).Run();
}
