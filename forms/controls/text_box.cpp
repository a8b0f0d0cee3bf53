#include "forms/controls/text_box.h"

#include <algorithm>
#include <utility>

#include "base/characters.h"
#include "base/text.h"
#include "forms/assign.h"
#include "forms/form.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

/// The box's text after the edit, by the box's rules.
Text Edited(const TextBox& box, const TextEdit& edit) {
  Text text = box.TextOf();
  const std::size_t place = std::min(edit.place, text.size());
  const std::size_t removed = std::min(edit.removed, text.size() - place);
  Text inserted = box.MultiLine()
                      ? WithLineBreaks(edit.inserted)
                      : edit.inserted.substr(0, edit.inserted.find_first_of(kLineBreak));
  if (box.MaxLength() > 0) {
    const std::size_t kept = text.size() - removed;
    const auto limit = static_cast<std::size_t>(box.MaxLength());
    inserted.resize(WholeCharacters(inserted, limit > kept ? limit - kept : 0).size());
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

std::size_t TextBox::CharactersCut() const {
  return charactersCut ? charactersCut(text_) : 0;
}

void TextBox::UserEdit(const TextEdit& edit) {
  if (locked_ || !TakesInput()) return;
  // A part of the event: a paste may be more than the memory holds.
  Owner().System().Run([&] { SetText(Edited(*this, edit)); });
}

}  // namespace tessara
