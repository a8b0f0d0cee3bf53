#include "tests/random_user/kept_work.h"

#include <doctest/doctest.h>

using tessara::test::KeptWork;

namespace {

/// Two cards in the table, and on a disk.
struct TwoCards {
  KeptWork::Cards disk{"one", "two"};
  KeptWork work{[this] { return disk; }};

  TwoCards() { work.Look({"one", "two"}); }
};

}  // namespace

TEST_CASE("cards that are in the table and on the disk are kept") {
  TwoCards cards;
  cards.disk.insert("three");
  CHECK(cards.work.Look({"one", "two", "three"}) == 0);
}

TEST_CASE("a card that is in the table alone would be lost") {
  TwoCards cards;
  CHECK(cards.work.Look({"one", "two", "three"}) == 1);
}

TEST_CASE("a command for one card does not let another be in the table alone") {
  TwoCards cards;
  cards.work.MayLoseOne();
  CHECK(cards.work.Look({"one", "other"}) == 1);
}

TEST_CASE("cards that go from the table and are nowhere else are lost") {
  TwoCards cards;
  cards.disk = {};
  CHECK(cards.work.Look({}) == 2);
}

TEST_CASE("a loss is told once") {
  TwoCards cards;
  cards.disk = {};
  cards.work.Look({});
  CHECK(cards.work.Look({}) == 0);
}

TEST_CASE("cards that go from the table and stay in a file are kept") {
  TwoCards cards;
  CHECK(cards.work.Look({}) == 0);
}

TEST_CASE("a card that is missing in the file is lost") {
  TwoCards cards;
  cards.disk = {"one"};
  CHECK(cards.work.Look({}) == 1);
}

TEST_CASE("what a question has given up may go") {
  TwoCards cards;
  cards.work.GiveUp();
  cards.disk = {};
  CHECK(cards.work.Look({}) == 0);
}

TEST_CASE("what comes after the question may not go") {
  TwoCards cards;
  cards.work.GiveUp();
  cards.disk = {"three"};
  CHECK(cards.work.Look({"one", "two", "three"}) == 0);
  cards.disk = {};
  CHECK(cards.work.Look({}) == 1);
}

TEST_CASE("a command for one card may take one, and only until the next look") {
  TwoCards cards;
  cards.work.MayLoseOne();
  cards.disk = {"one"};
  CHECK(cards.work.Look({"one"}) == 0);
  cards.disk = {};
  CHECK(cards.work.Look({}) == 1);
}

TEST_CASE("a command for one card may not take two") {
  TwoCards cards;
  cards.work.MayLoseOne();
  cards.disk = {};
  CHECK(cards.work.Look({}) == 2);
}
