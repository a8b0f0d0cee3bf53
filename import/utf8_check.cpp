#include "import/utf8_check.h"

#include "base/ascii.h"

namespace tessara {

namespace {

constexpr unsigned char kLowestContinuation = 0x80;
constexpr unsigned char kHighestContinuation = 0xBF;

}  // namespace

void Utf8Check::Feed(std::string_view block) {
  while (!broken_ && !block.empty()) {
    if (missing_ == 0) block.remove_prefix(AsciiLength(block));
    if (block.empty()) return;
    const auto byte = static_cast<unsigned char>(block.front());
    block.remove_prefix(1);
    if (missing_ > 0) {
      TakeContinuation(byte);
    } else {
      TakeLead(byte);
    }
  }
}

void Utf8Check::TakeLead(unsigned char byte) {
  hasNonAscii_ = true;
  if (byte >= 0xC2 && byte <= 0xDF) {
    ExpectContinuations(1, kLowestContinuation, kHighestContinuation);
  } else if (byte >= 0xE0 && byte <= 0xEF) {
    ExpectContinuations(2, byte == 0xE0 ? 0xA0 : kLowestContinuation,
                        byte == 0xED ? 0x9F : kHighestContinuation);
  } else if (byte >= 0xF0 && byte <= 0xF4) {
    ExpectContinuations(3, byte == 0xF0 ? 0x90 : kLowestContinuation,
                        byte == 0xF4 ? 0x8F : kHighestContinuation);
  } else {
    broken_ = true;
  }
}

void Utf8Check::TakeContinuation(unsigned char byte) {
  if (byte < lowest_ || byte > highest_) broken_ = true;
  ExpectContinuations(missing_ - 1, kLowestContinuation, kHighestContinuation);
}

void Utf8Check::ExpectContinuations(int count, unsigned char lowest, unsigned char highest) {
  missing_ = count;
  lowest_ = lowest;
  highest_ = highest;
}

}  // namespace tessara
