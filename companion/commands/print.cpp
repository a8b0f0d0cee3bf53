#include "companion/commands/print.h"

#include <cstdlib>
#include <optional>
#include <system_error>

#include "adapters/command_line/helper_program.h"
#include "adapters/posix/executable_folder.h"
#include "adapters/posix/output_file.h"
#include "companion/cards/card_set.h"
#include "companion/cards/complaints.h"
#include "companion/commands/input.h"
#include "companion/commands/outputs.h"
#include "companion/commands/reporter.h"

namespace tessara {

namespace {

namespace fs = std::filesystem;

/// The program that prints, beside this one. It is of another package: it needs Qt.
constexpr const char* kPrintProgram = "tessara-print";

class PrintRun {
 public:
  PrintRun(const PrintOptions& options, const CodePage& codePage)
      : options_(options), conversion_{codePage, reporter_} {}

  int Run() {
    RequireFree(options_.output, options_.force);
    const fs::path program = ExecutableFolder() / kPrintProgram;
    if (!IsThere(program)) throw Refused({}, "printing needs the package tessara");
    WriteInput();
    Reporter::SayProgress("printing " + std::to_string(numbers_.size()) + " cards ...");
    if (RunAndWait(program, Arguments()) != 0) throw Refused({&options_.file}, "it is not printed");
    signals_.reset();
    Outputs outputs;
    outputs.Add(options_.output).Write(ReadInput(Pdf(), std::string::npos).bytes);
    outputs.Appear();
    return reporter_.HasLosses() ? kNotAllKept : kDone;
  }

 private:
  [[nodiscard]] std::string Deck() const { return (scratch_->Path() / "deck.tsr").string(); }
  [[nodiscard]] std::string Pdf() const { return (scratch_->Path() / "cards.pdf").string(); }

  /// A deck as it stands, whatever is wrong with it; all else as the deck that it makes.
  void WriteInput() {
    const FileFormat format = FormatOf(options_.file, options_.from);
    Source source = ReadInput(options_.file);
    signals_.emplace();
    scratch_.emplace();
    Outputs outputs;
    ByteSink& deck = outputs.Add(Deck());
    const std::string bytes = format == FileFormat::kDeck ? source.bytes : std::string();
    const CardSet set = ReadCards(format, source, conversion_);
    if (set.cards.empty()) throw Refused({&options_.file}, "it holds no cards");
    TakeNumbers(set.cards.size());
    if (format == FileFormat::kDeck) {
      deck.Write(bytes);
    } else {
      WriteDeckOf(set, deck);
    }
    outputs.Appear();
  }

  void WriteDeckOf(const CardSet& set, ByteSink& sink) {
    if (set.cards.size() > kMostCards)
      throw Refused({&options_.file}, "more than 200 cards: convert it to decks first");
    WriteCards(FileFormat::kDeck, {set.kind, set.info, set.cards}, sink, conversion_);
  }

  void TakeNumbers(std::size_t count) {
    const std::string all = "1-" + std::to_string(count);
    const auto numbers =
        CardNumbersIn(options_.cards.empty() ? all : options_.cards, static_cast<int>(count));
    if (!numbers) throw Refused({&options_.cards}, "the deck has no such cards");
    for (const int number : *numbers) numbers_.push_back(std::to_string(number));
  }

  [[nodiscard]] std::vector<std::string> Arguments() const {
    const char* way = options_.listing ? "listing" : options_.flip ? "flip" : "cards";
    std::vector<std::string> arguments = {Deck(), Pdf(), way};
    arguments.insert(arguments.end(), numbers_.begin(), numbers_.end());
    return arguments;
  }

  const PrintOptions& options_;
  Reporter reporter_;
  Conversion conversion_;
  std::optional<EndingSignals> signals_;  ///< while the program prints, and not while it reads
  std::optional<PrivateScratch> scratch_;
  std::vector<std::string> numbers_;
};

}  // namespace

int PrintDeck(const PrintOptions& options, const CodePage& codePage) {
  try {
    return PrintRun(options, codePage).Run();
  } catch (const std::system_error& error) {
    throw Refused({}, "tessara-deck: " + error.code().message());
  }
}

}  // namespace tessara
