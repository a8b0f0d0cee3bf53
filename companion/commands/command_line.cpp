#include "companion/commands/command_line.h"

#include <CLI/CLI.hpp>
#include <exception>
#include <functional>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/posix/code_page_of_locale.h"
#include "adapters/posix/posix_clock.h"
#include "companion/cards/complaints.h"
#include "companion/commands/check.h"
#include "companion/commands/convert.h"
#include "companion/commands/print.h"
#include "companion/commands/reporter.h"
#include "companion/commands/show.h"
#include "companion/formats/file_format.h"

namespace tessara {

namespace {

constexpr const char* kVersion = "tessara-deck " TESSARA_VERSION;

/// The commands and their options, and the one that the arguments choose.
class CommandLine {
 public:
  CommandLine() {
    app_.require_subcommand(1);
    app_.set_version_flag("--version", kVersion);
    AddConvert();
    AddCheck();
    AddShow("show", "List the cards of a deck", true);
    AddShow("info", "Tell what a deck is about", false);
    AddPrint();
  }

  int Run(int argc, const char* const* argv) {
    if (argc > 1 && std::string_view(argv[1]) == "check") failure_ = kUnreadable;
    try {
      app_.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
      return app_.exit(error) == 0 ? kDone : failure_;
    }
    return RunChosen();
  }

 private:
  [[nodiscard]] int RunChosen() const {
    try {
      return run_();
    } catch (const Refused& refusal) {
      Reporter::Say(refusal.what());
    } catch (const std::bad_alloc&) {
      Reporter::Say("tessara-deck: there is not enough memory");
    }
    return failure_;
  }

  CLI::App* AddCommand(const char* name, const char* help, std::function<int()> run) {
    CLI::App* command = app_.add_subcommand(name, help);
    command->set_version_flag("--version", kVersion);
    command->callback([this, run = std::move(run)] { run_ = run; });
    return command;
  }

  void AddConvert() {
    CLI::App* command = AddCommand("convert", "Write decks and texts in another format",
                                   [this] { return RunConvert(); });
    command->add_option("FILES", files_, "Inputs and, last, the output; - is a standard stream")
        ->required()
        ->expected(2, CLI::detail::expected_max_vector_size)
        ->type_name("INPUT... OUTPUT");
    const std::string names = " (" + FormatNames() + ")";
    command->add_option("--from", convert_.from, "Format of the inputs" + names);
    command->add_option("--to", convert_.to, "Format of the output" + names);
    command->add_option("--title", convert_.title, "Title of the deck");
    command->add_option("--author", convert_.author, "Who made the deck");
    command->add_option("--description", convert_.description, "What the deck is about");
    command->add_flag("--anki", convert_.ankiComments,
                      "Add the lines that tell Anki how to read the .tsv");
    command->add_flag("--strict", convert_.strict, "Write nothing where something would be lost");
    command->add_flag("--force", convert_.force, "Replace an output that exists");
  }

  int RunConvert() {
    convert_.output = files_.back();
    files_.pop_back();
    convert_.inputs = files_;
    const CodePage codePage = CodePageOfLocale();
    return Convert(convert_, codePage, PosixClock().Today());
  }

  void AddCheck() {
    CLI::App* command = AddCommand("check", "Tell all that is wrong with decks and import texts",
                                   [this] { return Check(files_, from_, CodePageOfLocale()); });
    command->add_option("FILES", files_, "Decks and import texts")
        ->required()
        ->type_name("FILE...");
    command->add_option("--from", from_, "Format of the files (tsr, txt)");
  }

  void AddShow(const char* name, const char* help, bool withCards) {
    CLI::App* command = AddCommand(name, help, [this, withCards] {
      show_.withCards = withCards;
      return ShowDeck(show_, CodePageOfLocale());
    });
    command->add_option("FILE", show_.file, "The deck; - is standard input")->required();
    command->add_option("--from", show_.from, "Format of the file (" + FormatNames() + ")");
    command->add_flag("--json", show_.json, "As a JSON object");
  }

  void AddPrint() {
    CLI::App* command = AddCommand("print", "Print a deck to a PDF file, as cards to fold and tear",
                                   [this] { return PrintDeck(print_, CodePageOfLocale()); });
    command->add_option("FILE", print_.file, "The deck; - is standard input")->required();
    command->add_option("OUTPUT", print_.output, "The PDF file; - is standard output")->required();
    command->add_option("--from", print_.from, "Format of the file (" + FormatNames() + ")");
    command->add_option("--cards", print_.cards, "Numbers of the cards: 1-20,25");
    CLI::Option* flip =
        command->add_flag("--flip", print_.flip, "For sheets that are turned over their top edge");
    command->add_flag("--listing", print_.listing, "A listing of the cards instead of sheets")
        ->excludes(flip);
    command->add_flag("--force", print_.force, "Replace an output that exists");
  }

  CLI::App app_{"Convert, check, list and print decks of flash cards"};
  std::vector<std::string> files_;
  std::string from_;
  ConvertOptions convert_;
  ShowOptions show_;
  PrintOptions print_;
  std::function<int()> run_;
  int failure_ = kRefused;
};

}  // namespace

int RunCommand(int argc, const char* const* argv) {
  return CommandLine().Run(argc, argv);
}

}  // namespace tessara
