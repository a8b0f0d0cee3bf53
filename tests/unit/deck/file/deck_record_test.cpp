#include "deck/file/deck_record.h"

#include <doctest/doctest.h>
#include <string>

namespace tessara::test {

namespace {

const CodePage& kWestern = CodePage::Western();

}  // namespace

TEST_CASE("a record has each field at its place, filled up with blanks") {
  DeckRecord record;
  record.cardType = u"M";
  record.text = u"front";
  record.number = 0x1234;
  record.shortFields = {u"a", u"b", u"c", u"d"};
  record.answer = u"C";
  record.longText = u"back";
  const RecordBytes bytes = EncodeRecord(record, kWestern);
  const std::string all(bytes.data(), bytes.size());
  CHECK(all.size() == 1192);
  CHECK(all.substr(0, 7) == "Mfront ");
  CHECK(all.substr(444, 3) == " \x34\x12");
  CHECK(all.substr(447, 2) == "a ");
  CHECK(all.substr(521, 3) == " b ");
  CHECK(all.substr(596, 3) == " c ");
  CHECK(all.substr(671, 3) == " d ");
  CHECK(all.substr(746, 7) == " Cback ");
  CHECK(all.back() == ' ');
}

TEST_CASE("the number of a record is signed and little-endian") {
  for (const int number : {0, 1, 200, 255, 256, 32767, -1, -32768}) {
    DeckRecord record;
    record.number = static_cast<std::int16_t>(number);
    CHECK(DecodeRecord(EncodeRecord(record, kWestern), kWestern).number == number);
  }
}

TEST_CASE("a text longer than its field is cut without a word") {
  DeckRecord record;
  record.cardType = u"Mx";
  record.text = Text(444, u't') + u"!";
  record.shortFields = {Text(75, u'a') + u"!", u"b", u"c", Text(200, u'd')};
  record.answer = u"A!";
  record.longText = Text(444, u'l') + u"!";
  const DeckRecord read = DecodeRecord(EncodeRecord(record, kWestern), kWestern);
  CHECK(read.cardType == u"M");
  CHECK(read.text == Text(444, u't'));
  CHECK(read.shortFields[0] == Text(75, u'a'));
  CHECK(read.shortFields[1] == u"b");
  CHECK(read.shortFields[3] == Text(75, u'd'));
  CHECK(read.answer == u"A");
  CHECK(read.longText == Text(444, u'l'));
}

}  // namespace tessara::test
