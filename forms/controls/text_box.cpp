#include "forms/controls/text_box.h"

#include <algorithm>
#include <utility>

#include "base/characters.h"
#include "base/text.h"
#include "forms/assign.h"
#include "forms/form.h"
#include "forms/window_system.h"

namespace tessara {

void TextBox::SetText(const Text& text) {
  longTexts_.clear();
  Take(text);
}

void TextBox::Take(const Text& text) {
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
  Owner().System().Run([&] {
    if (IsTooLong(text_)) longTexts_.insert(text_);
    Take(Edited(edit));
  });
}

bool TextBox::IsTooLong(const Text& text) const {
  return maxLength_ > 0 && text.size() > static_cast<std::size_t>(maxLength_);
}

/// The text after the edit, by the box's rules.
Text TextBox::Edited(const TextEdit& edit) const {
  const std::size_t place = std::min(edit.place, text_.size());
  const std::size_t removed = std::min(edit.removed, text_.size() - place);
  Text inserted = multiLine_ ? WithLineBreaks(edit.inserted)
                             : edit.inserted.substr(0, edit.inserted.find_first_of(kLineBreak));
  Text text = Text(text_).replace(place, removed, inserted);
  if (!IsTooLong(text) || longTexts_.contains(text)) return text;
  const std::size_t kept = text_.size() - removed;
  const auto limit = static_cast<std::size_t>(maxLength_);
  inserted.resize(WholeCharacters(inserted, limit > kept ? limit - kept : 0).size());
  return Text(text_).replace(place, removed, inserted);
}

}  // namespace tessara
