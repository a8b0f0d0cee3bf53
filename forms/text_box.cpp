#include "forms/text_box.h"

#include <algorithm>
#include <utility>

#include "base/code_page.h"
#include "forms/assign.h"
#include "forms/form.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

/// Every line break, lone carriage returns and line feeds included, becomes CR LF.
Text WithLineBreaks(TextView typed) {
  Text result;
  for (std::size_t at = 0; at < typed.size(); ++at) {
    const char16_t character = typed[at];
    if (character != kCarriageReturn && character != kLineFeed) {
      result += character;
      continue;
    }
    result += kLineBreak;
    const bool pair = character == kCarriageReturn && typed.substr(at + 1, 1) == u"\n";
    if (pair) ++at;
  }
  return result;
}

/// Takes off what goes over the room, without cutting a line break in two.
Text CutToRoom(Text inserted, std::size_t room) {
  if (inserted.size() <= room) return inserted;
  const bool splitsLineBreak =
      room > 0 && inserted[room - 1] == kCarriageReturn && inserted[room] == kLineFeed;
  inserted.resize(splitsLineBreak ? room - 1 : room);
  return inserted;
}

}  // namespace

void TextBox::SetText(const Text& text) {
  if (!Assign(text_, text)) return;
  Changed(Aspect::kText);
  Raise(onChange);
}

void TextBox::SetMaxLength(int maxLength) {
  if (Assign(maxLength_, maxLength)) Changed(Aspect::kLimit);
}

void TextBox::SetLocked(bool locked) {
  if (Assign(locked_, locked)) Changed(Aspect::kEnabled);
}

int TextBox::LineCount() const {
  return Owner().System().RendererOf().LineCount(*this);
}

void TextBox::UserEdit(const TextEdit& edit) {
  if (locked_ || !TakesInput()) return;
  const std::size_t place = std::min(edit.place, text_.size());
  const std::size_t removed = std::min(edit.removed, text_.size() - place);
  Text inserted = Owner().System().CodePageOf().Representable(edit.inserted);
  inserted = multiLine_ ? WithLineBreaks(inserted)
                        : inserted.substr(0, inserted.find_first_of(kLineBreak));
  if (maxLength_ > 0) {
    const std::size_t kept = text_.size() - removed;
    const auto limit = static_cast<std::size_t>(maxLength_);
    inserted = CutToRoom(std::move(inserted), limit > kept ? limit - kept : 0);
  }
  Text text = text_;
  text.replace(place, removed, inserted);
  SetText(text);
}

}  // namespace tessara
