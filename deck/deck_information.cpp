#include "deck/deck_information.h"

#include "deck/card_type.h"

namespace tessara {

void StoreDeckInformation(const DeckInformation& information, Deck& deck) {
  const CardTable::RowCells cells = deck.cardGrid.Row(kInfoRow);
  cells[kCardType] = LetterOf(CardType::kInformation);
  cells[kCardText].clear();
  cells[kRowNumber] = u"0";
  cells[kInfoDate] = information.date;
  cells[kInfoType] = information.typeName;
  cells[kInfoTitle] = information.title;
  cells[kInfoAuthor] = information.author;
  cells[kAnswer].clear();
  cells[kInfoDescription] = information.description;
  deck.cardPresent.Set(kInfoRow, 1);
  deck.title = information.title;
  deck.author = information.author;
  deck.description = information.description;
}

}  // namespace tessara
