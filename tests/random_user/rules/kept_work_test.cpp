#include "tests/random_user/kept_work.h"

#include <doctest/doctest.h>

using tessara::test::KeptWork;

namespace {

/// Two cards in the table, and a disk.
struct TwoCards {
  KeptWork::Cards disk;
  KeptWork work{[this] { return disk; }};

  TwoCards() { work.Look({"one", "two"}); }
};

}  // namespace

TEST_CASE("cards that stay in the table are kept") {
  TwoCards cards;
  CHECK(cards.work.Look({"one", "two", "three"}) == 0);
}

TEST_CASE("cards that go from the table and are nowhere else are lost") {
  TwoCards cards;
  CHECK(cards.work.Look({}) == 2);
}

TEST_CASE("a loss is told once") {
  TwoCards cards;
  cards.work.Look({});
  CHECK(cards.work.Look({}) == 0);
}

TEST_CASE("cards that go from the table into a file are kept") {
  TwoCards cards;
  cards.disk = {"one", "two"};
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
  CHECK(cards.work.Look({}) == 0);
}

TEST_CASE("what comes after the question may not go") {
  TwoCards cards;
  cards.work.GiveUp();
  cards.work.Look({"one", "two", "three"});
  CHECK(cards.work.Look({}) == 1);
}

TEST_CASE("a command for one card may take one, and only until the next look") {
  TwoCards cards;
  cards.work.MayLoseOne();
  CHECK(cards.work.Look({"one"}) == 0);
  CHECK(cards.work.Look({}) == 1);
}

TEST_CASE("a command for one card may not take two") {
  TwoCards cards;
  cards.work.MayLoseOne();
  CHECK(cards.work.Look({}) == 2);
}
