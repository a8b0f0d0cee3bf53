#include "companion/commands/convert.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <span>
#include <utility>

#include "adapters/posix/output_file.h"
#include "base/text.h"
#include "base/utf8.h"
#include "companion/cards/complaints.h"
#include "companion/cards/text_form.h"
#include "companion/cards/visible_text.h"
#include "companion/commands/input.h"
#include "companion/commands/outputs.h"
#include "companion/commands/reporter.h"
#include "companion/formats/file_format.h"
#include "deck/date_text.h"

namespace tessara {

namespace {

namespace fs = std::filesystem;

/// One file to be written, and its share of the cards.
struct Part {
  std::string path;
  std::span<const SourceCard> cards;
};

class Conversions {
 public:
  Conversions(const ConvertOptions& options, const CodePage& codePage, const Date& today)
      : options_(options), today_(today), conversion_{codePage, reporter_} {}

  int Run() {
    const FileFormat format = FormatOf(options_.output, options_.to);
    RequireFree(options_.output, options_.force);
    ReadAll();
    if (set_.cards.empty()) throw Refused({&options_.inputs.front()}, "it holds no cards");
    const std::vector<Part> parts = PartsOf(format);
    Outputs outputs;
    const auto comments = options_.ankiComments ? TsvComments::kWritten : TsvComments::kNone;
    for (const Part& part : parts) {
      WriteCards(format, {set_.kind, InfoFor(part), part.cards}, outputs.Add(part.path),
                 conversion_, comments);
    }
    if (options_.strict && reporter_.HasLosses()) return kNotAllKept;
    outputs.Appear();
    return reporter_.HasLosses() ? kNotAllKept : kDone;
  }

 private:
  [[nodiscard]] bool IsToStandardOutput() const { return options_.output == kStandardStream; }

  void ReadAll() {
    std::size_t left = kLargestInput;
    for (const std::string& input : options_.inputs) {
      const FileFormat format = FormatOf(input, options_.from);
      Source& source = sources_.emplace_back(ReadInput(input, left));
      left -= source.bytes.size();
      Take(ReadCards(format, source, conversion_));
      source.bytes = {};
    }
  }

  /// The first one tells kind and information.
  void Take(CardSet&& read) {
    if (sources_.size() == 1) {
      set_ = std::move(read);
      return;
    }
    for (SourceCard& card : read.cards) {
      if (read.kind == set_.kind) {
        AddCard(set_, std::move(card));
      } else {
        reporter_.Tell(card.place, "a card of the other kind is not kept");
      }
    }
  }

  /// A deck that holds no more is one of several.
  [[nodiscard]] std::vector<Part> PartsOf(FileFormat format) const {
    const std::span<const SourceCard> cards(set_.cards);
    const std::size_t most = MostCardsOf(format).value_or(cards.size());
    if (cards.size() <= most) return {{options_.output, cards}};
    if (IsToStandardOutput())
      throw Refused({&sources_.front().name},
                    "more than " + std::to_string(most) + " cards do not go to standard output");
    std::vector<Part> parts;
    for (std::size_t at = 0; at < cards.size(); at += most) {
      const fs::path path(options_.output);
      const std::string number = "-" + std::to_string(parts.size() + 1);
      fs::path part = path;
      part.replace_filename(path.stem().string() + number + path.extension().string());
      RequireFree(part, options_.force);
      parts.push_back({part, cards.subspan(at, std::min(most, cards.size() - at))});
    }
    const auto shown = [](const std::string& path) { return VisibleText(FromUtf8(path)); };
    Reporter::Say(shown(options_.output) + ": " + std::to_string(cards.size()) + " cards become " +
                  shown(parts.front().path) + " to " + shown(parts.back().path));
    return parts;
  }

  [[nodiscard]] SetInfo InfoFor(const Part& part) const {
    SetInfo info = set_.info;
    if (options_.title) info.title = FromUtf8(*options_.title);
    if (options_.author) info.author = FromUtf8(*options_.author);
    if (options_.description) info.description = WithLineBreaks(FromUtf8(*options_.description));
    if (info.title.empty() && !options_.title) info.title = TitleFor(part);
    if (info.date.empty()) info.date = DateText(today_);
    return info;
  }

  [[nodiscard]] Text TitleFor(const Part& part) const {
    const std::string& name = IsToStandardOutput() ? sources_.front().name : part.path;
    return FromUtf8(fs::path(name).stem().string());
  }

  const ConvertOptions& options_;
  Date today_;
  Reporter reporter_;
  Conversion conversion_;
  std::deque<Source> sources_;  ///< the places of the cards point to their names
  CardSet set_;
};

}  // namespace

int Convert(const ConvertOptions& options, const CodePage& codePage, const Date& today) {
  return Conversions(options, codePage, today).Run();
}

}  // namespace tessara
