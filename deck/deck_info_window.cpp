#include "deck/deck_info_window.h"

#include "deck/card_type.h"
#include "deck/date_text.h"
#include "deck/deck_information.h"
#include "deck/file/field_widths.h"
#include "deck/file/stored_text.h"
#include "machine/clock.h"
#include "machine/message_box.h"

namespace tessara {

namespace {

constexpr int kTitleLength = 75;
constexpr int kDescriptionLength = 400;

}  // namespace

DeckInfoWindow::DeckInfoWindow(AppContext& app, Window<DeckLife> deck)
    : Form(app.windows, "frmInfo", FormKind::kChild, u"Tessara Information"),
      app_(app),
      deck_(deck) {
  SetWidth(kWidth);
  SetHeight(kHeight);
  PlaceControls();
  fields.Wire(&TextBox::onChange, [this](int) { NoteChange(); });
  save.onClick = [this] { Save(); };
  close.onClick = [this] { Close(); };
  close.SetCancel(true);
}

void DeckInfoWindow::PlaceControls() {
  AddControls({
      {&headings[0], nullptr, u"Title", {240, 180, 1200, 255}, u""},
      {&fields[kTitleField], nullptr, u"", {240, 435, 4620, 330}, u"Title"},
      {&headings[1], nullptr, u"Created By", {240, 855, 1200, 255}, u""},
      {&fields[kAuthorField], nullptr, u"", {240, 1110, 4620, 330}, u"Created By"},
      {&headings[2], nullptr, u"Description", {240, 1530, 1200, 255}, u""},
      {&fields[kDescriptionField], nullptr, u"", {240, 1785, 5670, 1050}, u"Description"},
      {&headings[3], nullptr, u"Date Created:", {240, 2970, 1290, 255}, u""},
      {&date, nullptr, u"", {1530, 2970, 1500, 255}, u""},
      {&headings[4], nullptr, u"Deck Type:", {240, 3285, 1290, 255}, u""},
      {&kind, nullptr, u"", {1530, 3285, 1500, 255}, u""},
      {&cardCount, nullptr, u"", {3300, 2970, 2610, 255}, u""},
      {&save, nullptr, u"&Save", {3300, 3570, 1215, 495}, u""},
      {&close, nullptr, u"&Close", {4695, 3570, 1215, 495}, u""},
      {&picture, nullptr, u"", {4950, 405, 960, 960}, u"Cards"},
  });
  fields[kTitleField].SetMaxLength(kTitleLength);
  fields[kAuthorField].SetMaxLength(kTitleLength);
  fields[kDescriptionField].SetMaxLength(kDescriptionLength);
  const CodePage& codePage = app_.machine.codePage;
  fields[kTitleField].charactersCut = CutIn(kShortWidth, codePage);
  fields[kAuthorField].charactersCut = CutIn(kShortWidth, codePage);
  fields[kDescriptionField].charactersCut = CutIn(kTextWidth, codePage);
  fields[kDescriptionField].SetMultiLine(true);
  fields[kDescriptionField].SetVerticalScrollBar(true);
  save.SetEnabled(false);
  picture.SetPicture({"info.png", 64, 64});
}

void DeckInfoWindow::OnLoad() {
  const ProgramState& state = app_.state;
  loading_ = true;
  StandBesideDeck();
  const Text today = DateText(app_.machine.clock.Today());
  date.SetCaption(InfoValueOrDefault(state.deck.date, today));
  const TextView name = NameOf(state.deck.kind);
  if (!name.empty()) kind.SetCaption(Text(name));
  cardCount.SetCaption(u"Number of cards: " +
                       InfoValueOrDefault(DecimalText(state.deck.cardCount), u"0"));
  const DeckInformation unfilled;
  fields[kTitleField].SetText(InfoValueOrDefault(state.deck.title, unfilled.title));
  fields[kAuthorField].SetText(InfoValueOrDefault(state.deck.author, unfilled.author));
  fields[kDescriptionField].SetText(
      InfoValueOrDefault(state.deck.description, unfilled.description));
}

void DeckInfoWindow::StandBesideDeck() {
  if (!deck_.IsLoaded() || !deck_->Visible()) return;
  const DeckLife& deck = deck_.Loaded();
  const int right = deck.Left() + deck.Width();
  const int below = deck.Top() + deck.Height();
  const auto standAt = [this](int left, int top) {
    SetLeft(left);
    SetTop(top);
  };
  if (app_.frame.ScaleWidth() - right >= kWidth) return standAt(right, deck.Top());
  if (deck.Left() >= kWidth) return standAt(deck.Left() - kWidth, deck.Top());
  if (app_.frame.ScaleHeight() - below >= kHeight) return standAt(deck.Left(), below);
  if (deck.Top() >= kHeight) standAt(deck.Left(), deck.Top() - kHeight);
}

void DeckInfoWindow::OnUnload(bool& /*cancel*/) {
  // It may have outlived its deck: a window that is not there is not made for this.
  if (deck_.IsLoaded()) deck_->SetEnabled(true);
}

void DeckInfoWindow::NoteChange() {
  if (loading_) return;
  app_.state.deck.changed = true;
  save.SetEnabled(true);
}

void DeckInfoWindow::Save() {
  CollectDeckInfo(app_.state, *this);
  save.SetEnabled(false);
}

void DeckInfoWindow::Close() {
  if (save.Enabled()) {
    const MessageAnswer answer = app_.machine.messages.Show(
        u"The information in this form has changed, do you want to return to the form and save it",
        kYesNo, u"Deck Information");
    if (answer == MessageAnswer::kYes) return;
  }
  Unload();
}

Text InfoValueOrDefault(const Text& value, const Text& defaultValue) {
  return value.empty() ? defaultValue : u" " + value;
}

void CollectDeckInfo(ProgramState& state, const DeckInfoWindow& window) {
  StoreDeckInformation({.title = window.fields[kTitleField].TextOf(),
                        .author = window.fields[kAuthorField].TextOf(),
                        .description = window.fields[kDescriptionField].TextOf(),
                        .date = window.date.Caption(),
                        .typeName = window.kind.Caption()},
                       state.deck);
}

}  // namespace tessara
