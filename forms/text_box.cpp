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

/// The box's text after the edit, by the box's rules.
Text Edited(const TextBox& box, const TextEdit& edit) {
  Text text = box.TextOf();
  const std::size_t place = std::min(edit.place, text.size());
  const std::size_t removed = std::min(edit.removed, text.size() - place);
  Text inserted = box.Owner().System().CodePageOf().Representable(edit.inserted);
  inserted = box.MultiLine() ? WithLineBreaks(inserted)
                             : inserted.substr(0, inserted.find_first_of(kLineBreak));
  if (box.MaxLength() > 0) {
    const std::size_t kept = text.size() - removed;
    const auto limit = static_cast<std::size_t>(box.MaxLength());
    inserted = CutToRoom(std::move(inserted), limit > kept ? limit - kept : 0);
  }
  return text.replace(place, removed, inserted);
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
  // A part of the event: a paste may be more than the memory holds.
  Owner().System().Run([&] { SetText(Edited(*this, edit)); });
}

}  // namespace tessara
