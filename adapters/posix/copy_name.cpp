#include "adapters/posix/copy_name.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <string_view>

namespace tessara {

namespace {

/// The moment in a name, with 0 for any digit: day, time, thousandths of a second.
constexpr std::string_view kMomentPattern = " 0000-00-00 00-00-00-000";
constexpr std::size_t kLongestName = 255;
/// What is longer behind the last point is no extension, but part of a name with points.
constexpr std::size_t kLongestExtension = 16;

std::string MomentText(Moment moment) {
  using std::chrono::milliseconds;
  const std::time_t seconds = std::chrono::system_clock::to_time_t(moment);
  const auto since = std::chrono::duration_cast<milliseconds>(moment.time_since_epoch()).count();
  std::tm parts{};
  localtime_r(&seconds, &parts);
  std::array<char, 64> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), " %Y-%m-%d %H-%M-%S-", &parts);
  const std::string thousandths = std::to_string(since % 1000);
  return std::string(text.data(), length) + std::string(3 - thousandths.size(), '0') + thousandths;
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

bool IsMoment(std::string_view text) {
  return std::equal(
      text.begin(), text.end(), kMomentPattern.begin(), kMomentPattern.end(),
      [](char c, char pattern) { return pattern == '0' ? c >= '0' && c <= '9' : c == pattern; });
}

}  // namespace

std::string CopyName(const std::string& fileName, Moment moment) {
  const std::size_t stemLength = ExtensionStart(fileName);
  const std::string extension = fileName.substr(stemLength);
  const std::string stem = Shortened(fileName.substr(0, stemLength),
                                     kLongestName - kMomentPattern.size() - extension.size());
  return stem + MomentText(moment) + extension;
}

std::optional<std::string> NameWithoutMoment(const std::string& copyName) {
  const std::size_t length = kMomentPattern.size();
  if (copyName.size() < length) return std::nullopt;
  // The last one: a copy's copy has two.
  for (std::size_t at = copyName.size() - length + 1; at-- > 0;) {
    if (!IsMoment(std::string_view(copyName).substr(at, length))) continue;
    return copyName.substr(0, at) + copyName.substr(at + length);
  }
  return std::nullopt;
}

}  // namespace tessara
