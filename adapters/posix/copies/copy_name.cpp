#include "adapters/posix/copies/copy_name.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <string_view>

namespace tessara {

namespace {

/// The moment in a name, with 0 for any digit: day, time, and the hyphen before the number.
constexpr std::string_view kMomentPattern = " 0000-00-00 00-00-00-";
constexpr std::size_t kLeastDigits = 4;
constexpr std::size_t kMostDigits = 12;  // of kHighestCopyNumber
constexpr std::size_t kDigitsOfThousandths = 3;
constexpr std::size_t kLongestName = 255;
/// What is longer behind the last point is no extension, but part of a name with points.
constexpr std::size_t kLongestExtension = 16;
constexpr std::string_view kDeckExtension = ".tsr";
constexpr std::string_view kUnsavedStart = " (unsaved ";
constexpr std::string_view kUnsavedEnd = ").tsr";

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string MomentText(Moment moment) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(moment);
  std::tm parts{};
  localtime_r(&seconds, &parts);
  std::array<char, 64> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), " %Y-%m-%d %H-%M-%S-", &parts);
  return {text.data(), length};
}

std::string NumberText(std::uint64_t number) {
  const std::string digits = std::to_string(number);
  return std::string(kLeastDigits - std::min(kLeastDigits, digits.size()), '0') + digits;
}

std::size_t ExtensionStart(const std::string& name) {
  const std::size_t point = name.rfind('.');
  const bool none = point == std::string::npos || point == 0;
  return none || name.size() - point > kLongestExtension ? name.size() : point;
}

/// The front of the text, not cut inside a UTF-8 character.
std::string Shortened(const std::string& text, std::size_t longest) {
  if (text.size() <= longest) return text;
  const auto continues = [&](std::size_t at) {
    return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
  };
  while (longest > 0 && continues(longest)) --longest;
  return text.substr(0, longest);
}

std::string Joined(const std::string& stem, const std::string& ending) {
  return Shortened(stem, kLongestName - ending.size()) + ending;
}

bool IsMoment(std::string_view text) {
  return std::equal(
      text.begin(), text.end(), kMomentPattern.begin(), kMomentPattern.end(),
      [](char c, char pattern) { return pattern == '0' ? IsDigit(c) : c == pattern; });
}

/// The digits that the text begins with.
std::string_view DigitsOf(std::string_view text) {
  const auto* const end = std::find_if_not(text.begin(), text.end(), IsDigit);
  return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

/// Nothing for digits that are no number of a copy.
std::optional<std::uint64_t> NumberOf(std::string_view digits) {
  if (digits.size() == kDigitsOfThousandths) return 0;
  if (digits.size() < kLeastDigits || digits.size() > kMostDigits) return std::nullopt;
  return std::stoull(std::string(digits));
}

std::string StemOfDeck(const std::string& fileName) {
  const bool deck = fileName.ends_with(kDeckExtension);
  return fileName.substr(0, fileName.size() - (deck ? kDeckExtension.size() : 0));
}

/// A process and a number, with a hyphen between them.
bool IsOfProcess(std::string_view text) {
  const std::string_view process = DigitsOf(text);
  if (process.empty() || !text.substr(process.size()).starts_with('-')) return false;
  const std::string_view number = text.substr(process.size() + 1);
  return !number.empty() && DigitsOf(number) == number;
}

}  // namespace

std::string CopyName(const std::string& fileName, Moment moment, std::uint64_t number) {
  const std::size_t stemLength = ExtensionStart(fileName);
  return Joined(fileName.substr(0, stemLength),
                MomentText(moment) + NumberText(number) + fileName.substr(stemLength));
}

std::optional<NamedCopy> ReadCopyName(const std::string& copyName) {
  const std::size_t length = kMomentPattern.size();
  // The deck in hand may be a copy itself.
  if (copyName.size() < length || ReadUnsavedName(copyName)) return std::nullopt;
  const std::string_view name = copyName;
  // The last one: a copy's copy has two.
  for (std::size_t at = name.size() - length + 1; at-- > 0;) {
    if (!IsMoment(name.substr(at, length))) continue;
    const std::string_view digits = DigitsOf(name.substr(at + length));
    const auto number = NumberOf(digits);
    if (!number) continue;
    return NamedCopy{copyName.substr(0, at) + copyName.substr(at + length + digits.size()),
                     *number};
  }
  return std::nullopt;
}

std::string NotSavedName(const std::string& fileName) {
  return StemOfDeck(fileName) + " not saved" + std::string(kDeckExtension);
}

std::string UnsavedName(const std::string& fileName, pid_t process, int number) {
  return Joined(StemOfDeck(fileName), std::string(kUnsavedStart) + std::to_string(process) + "-" +
                                          std::to_string(number) + std::string(kUnsavedEnd));
}

std::optional<std::string> ReadUnsavedName(const std::string& name) {
  const std::size_t start = name.rfind(kUnsavedStart);
  if (start == std::string::npos || !name.ends_with(kUnsavedEnd)) return std::nullopt;
  const std::size_t process = start + kUnsavedStart.size();
  const std::size_t end = name.size() - kUnsavedEnd.size();
  const bool given =
      process <= end && IsOfProcess(std::string_view(name).substr(process, end - process));
  if (!given) return std::nullopt;
  return name.substr(0, start) + std::string(kDeckExtension);
}

}  // namespace tessara
