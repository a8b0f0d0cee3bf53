#include "tests/random_user/user_files.h"

#include "tests/random_user/card_record.h"
#include "tests/support/deck_bytes.h"
#include "tests/support/disk_fixture.h"
#include "tests/support/hostile_texts.h"
#include "tests/support/program_fixture.h"

namespace tessara::test {

namespace fs = std::filesystem;

namespace {

std::string Choices(int cards) {
  std::string bytes = InfoBytes({});
  for (int row = 1; row <= cards; ++row) {
    bytes += QuestionBytes('M', u"Which is " + DecimalText(row) + u"?", row,
                           {u"one", u"two", u"three", u"four"}, 'A');
  }
  return bytes + EndBytes();
}

std::string ManyCards(int cards) {
  std::string text = "STD\n";
  for (int card = 1; card <= cards; ++card) {
    text += std::to_string(card) + ".\n*>F\nfront\n*>B\nback\n\n";
  }
  return text;
}

}  // namespace

UserFiles::UserFiles() {
  WriteDecks();
  WriteTexts();
}

void UserFiles::WriteDecks() const {
  folder_.Write("birds.tsr", DeckBytes(3));
  folder_.Write("one.tsr", DeckBytes(1));
  folder_.Write("full.tsr", DeckBytes(kMostCards));
  folder_.Write("truths.tsr", ProgramFixture::DeckBytes(4, u"T"));
  folder_.Write("choices.tsr", Choices(5));
  folder_.Write("all choices.tsr", Choices(kMostCards));
  folder_.Write("hostile.tsr", DeckSaying(kHostileTexts[0], u"E"));
  folder_.Write("empty.tsr", "");
  folder_.Write("no cards.tsr", DeckBytes(0));
  folder_.Write("odd letter.tsr", ProgramFixture::DeckBytes(2, u"Q"));
  folder_.Write("cut.tsr", DeckBytes(3).substr(0, 2 * kRecordSize + kLeastRecord - 1));
  folder_.Write("far row.tsr", InfoBytes({}) + CardBytes(300, u"front", u"back") + EndBytes());
}

void UserFiles::WriteTexts() const {
  folder_.Write("cards.txt", ManyCards(3));
  folder_.Write("too many.txt", ManyCards(kMostCards + 5));
  folder_.Write("questions.txt", "EXT\n1.The Sun is a star.\n=T\n\n2.Which?\nA.One\nB.Two\n=B\n");
  folder_.Write("no cards.txt", "STD\n");
  folder_.Write("no word.txt", "cards\n");
  folder_.Write("empty.txt", "");
  folder_.Write("no number.txt", "EXT\n1a.Question\n=T\n");
  folder_.Write("great number.txt", "STD\n99999.\n*>F\nfront\n*>B\nback\n");
}

const QStringList& UserFiles::GoodDecks() {
  static const QStringList names{"birds.tsr",       "one.tsr",     "full.tsr",      "truths.tsr",
                                 "choices.tsr",     "hostile.tsr", "empty.tsr",     "no cards.tsr",
                                 "all choices.tsr", "cut.tsr",     "odd letter.tsr"};
  return names;
}

const QStringList& UserFiles::BrokenDecks() {
  static const QStringList names{"far row.tsr", "missing.tsr"};
  return names;
}

const QStringList& UserFiles::Texts() {
  static const QStringList names{"cards.txt",     "questions.txt",   "too many.txt",
                                 "no cards.txt",  "no word.txt",     "empty.txt",
                                 "no number.txt", "great number.txt"};
  return names;
}

const QStringList& UserFiles::Targets() {
  static const QStringList names{"new.tsr",   "newer.tsr", "no ending",
                                 "birds.tsr", "full.tsr",  "no such folder/new.tsr"};
  return names;
}

QString UserFiles::PathOf(const QString& name) const {
  return QString::fromStdString(folder_.Path().string()) + u'/' + name;
}

fs::path UserFiles::Copies() const {
  return folder_ / "state" / "Tessara" / "copies";
}

std::set<std::string> UserFiles::CardsOnDisk() const {
  std::set<std::string> cards;
  for (const fs::path& folder : {folder_.Path(), Copies()}) {
    for (const std::string& name : NamesIn(folder)) {
      // A user sees no hidden file: what only a spare one holds is lost.
      const bool seen = !name.starts_with('.') && fs::is_regular_file(folder / name);
      if (seen) cards.merge(CardsIn(BytesOf(folder / name)));
    }
  }
  return cards;
}

}  // namespace tessara::test
