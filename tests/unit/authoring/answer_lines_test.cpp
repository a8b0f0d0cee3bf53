#include <array>
#include <doctest/doctest.h>
#include <string>

#include "tests/unit/authoring/builder_fixture.h"

namespace tessara::test {

namespace {

/// Which lines are open and which marks can be set, A to D, as "1100".
std::string OpenLines(const QuestionBuilder& window) {
  std::string open;
  for (const TextBox& line : window.answers) {
    const Color::Role role = line.Enabled() ? Color::Role::kWindow : Color::Role::kButtonFace;
    CHECK(line.BackColor() == Color{role});
    open += line.Enabled() ? '1' : '0';
  }
  return open;
}

std::string ArmedMarks(const QuestionBuilder& window) {
  std::string armed;
  for (const OptionButton& mark : window.marks) armed += mark.Enabled() ? '1' : '0';
  return armed;
}

/// Texts on lines A and on, typed on a new card.
void Fill(QuestionBuilder& window, const std::vector<Text>& lines) {
  for (std::size_t at = 0; at < lines.size(); ++at) {
    Type(window.answers[static_cast<int>(at)], lines[at]);
  }
}

}  // namespace

TEST_CASE("on a new question only line A is open, and no mark can be set") {
  BuilderFixture fixture;
  const QuestionBuilder& window = fixture.OpenQuestion();
  CHECK(OpenLines(window) == "1000");
  CHECK(ArmedMarks(window) == "0000");
}

TEST_CASE("text on a line opens the next one and arms the line's own mark") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  const std::array<std::string, 4> open = {"1100", "1110", "1111", "1111"};
  const std::array<std::string, 4> armed = {"1000", "1100", "1110", "1111"};
  for (int line = 0; line < 4; ++line) {
    Type(window.answers[line], u"x");
    CHECK(OpenLines(window) == open.at(static_cast<std::size_t>(line)));
    CHECK(ArmedMarks(window) == armed.at(static_cast<std::size_t>(line)));
  }
}

TEST_CASE("an emptied line closes the empty one behind it, and clears and disarms its mark") {
  struct Case {
    std::vector<Text> lines;
    int emptied;
    std::string open, armed;
  };
  const Case cases[] = {
      {{u"a"}, 0, "1000", "0000"},
      {{u"a", u"b"}, 1, "1100", "1000"},
      {{u"a", u"b", u"c"}, 2, "1110", "1100"},
      {{u"a", u"b", u"c", u"d"}, 3, "1110", "1110"},  // line D closes itself
      {{u"a", u"b", u"c"}, 1, "1111", "1110"},        // a gap: nothing closes
      {{u"a", u"b", u"c", u"d"}, 0, "1111", "1111"},
  };
  for (const Case& c : cases) {
    BuilderFixture fixture;
    QuestionBuilder& window = fixture.OpenQuestion();
    Fill(window, c.lines);
    window.marks[c.emptied].Press();
    CHECK(window.marks[c.emptied].Selected());
    Replace(window.answers[c.emptied], u"");
    CHECK(OpenLines(window) == c.open);
    CHECK(ArmedMarks(window) == c.armed);
    CHECK_FALSE(window.marks[c.emptied].Selected());
  }
}

TEST_CASE("line D, emptied where the user types, hands the focus to the line that opens it again") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Fill(window, {u"a", u"b", u"c", u"d"});
  window.answers[3].SetFocus();
  Replace(window.answers[3], u"");
  CHECK_FALSE(window.answers[3].Enabled());
  CHECK(window.FocusedControl() == &window.answers[2]);
}

TEST_CASE("a line emptied from elsewhere leaves the focus where it is") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Fill(window, {u"a", u"b", u"c", u"d"});
  window.question.SetFocus();
  window.answers[3].SetText(u"");
  CHECK(window.FocusedControl() == &window.question);
}

TEST_CASE("only a change of line C opens an emptied line D again") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Fill(window, {u"a", u"b", u"c", u"d"});
  Replace(window.answers[3], u"");
  Type(window.answers[0], u"x");
  Type(window.answers[1], u"x");
  CHECK(OpenLines(window) == "1110");
  Type(window.answers[2], u"x");
  CHECK(OpenLines(window) == "1111");
}

TEST_CASE("a loaded question opens its lines and the first empty one") {
  struct Case {
    std::vector<Text> choices;
    std::string open, armed;
  };
  const Case cases[] = {
      {{u"a", u"b", u"c", u"d"}, "1111", "1111"},
      {{u"a", u"b"}, "1110", "1100"},
      {{u"a", u"", u"c"}, "1110", "1010"},
      {{u"", u"", u"", u"d"}, "1001", "0001"},
      {{}, "1000", "0000"},
  };
  for (const Case& c : cases) {
    BuilderFixture fixture;
    fixture.AddChoice(u"question", c.choices, u"A");
    const QuestionBuilder& window = fixture.OpenQuestionOverTable();
    CHECK(OpenLines(window) == c.open);
    CHECK(ArmedMarks(window) == c.armed);
  }
}

TEST_CASE("a move leaves the lines as the arriving texts make them") {
  BuilderFixture fixture;
  fixture.AddChoice(u"1", {u"a", u"b", u"c", u"d"}, u"B");
  fixture.AddChoice(u"2", {u"a"}, u"A");
  fixture.AddTrueFalse(u"3", u"T");
  QuestionBuilder& window = fixture.OpenQuestionOverTable();
  // The lines empty one by one: B and C still meet the old text behind them, D closes itself.
  window.arrows[kNextCard].Press();
  CHECK(OpenLines(window) == "1110");
  CHECK(ArmedMarks(window) == "1110");
  window.arrows[kNextCard].Press();
  CHECK(OpenLines(window) == "1010");
  CHECK(ArmedMarks(window) == "0110");
}

TEST_CASE("the cancel of a new question sets the lines as a load does") {
  BuilderFixture fixture;
  fixture.AddChoice(u"1", {u"a", u"b"}, u"B");
  QuestionBuilder& window = fixture.OpenQuestionOverTable();
  window.buttons[kNewButton].Press();
  CHECK(OpenLines(window) == "1000");
  window.buttons[kCancelButton].Press();
  CHECK(OpenLines(window) == "1110");
  CHECK(ArmedMarks(window) == "1100");
}

TEST_CASE("the marks are one group: setting one clears the others") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Fill(window, {u"a", u"b"});
  window.marks[0].Press();
  window.marks[1].Press();
  CHECK_FALSE(window.marks[0].Selected());
  CHECK(window.marks[1].Selected());
}

TEST_CASE("a mark on an empty line can't be set") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Fill(window, {u"a"});
  window.marks[1].Press();
  CHECK_FALSE(window.marks[1].Selected());
}

TEST_CASE(
    "the add button needs a question and a mark, but a line's change asks for the mark only") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  const Button& add = window.buttons[kAddButton];
  Type(window.answers[0], u"a");
  CHECK_FALSE(add.Enabled());
  window.marks[0].Press();
  CHECK(add.Enabled());  // line A has text: that is all the click of a mark asks for
  Type(window.question, u"q");
  CHECK(add.Enabled());
  Replace(window.question, u"");
  CHECK_FALSE(add.Enabled());
  Type(window.answers[0], u"b");
  CHECK(add.Enabled());  // though the question is empty
}

TEST_CASE("the click of a mark asks for text on line A only") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Type(window.question, u"q");
  Fill(window, {u"a", u"b"});
  Replace(window.answers[0], u"");
  window.marks[1].Press();
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
}

TEST_CASE("a true or false question needs its text and a mark") {
  struct Case {
    TextView question;
    bool marked, add, cancel;
  };
  const Case cases[] = {{u"q", false, false, true},
                        {u"q", true, true, true},
                        {u"", true, false, true},
                        {u"", false, false, false}};
  for (const Case& c : cases) {
    BuilderFixture fixture;
    QuestionBuilder& window = fixture.OpenQuestion();
    window.layouts[kTrueOrFalse].Press();
    Type(window.question, Text(c.question));
    if (c.marked) window.trueFalseMarks[kFalseMark].Press();
    CHECK(window.buttons[kAddButton].Enabled() == c.add);
    CHECK(window.buttons[kCancelButton].Enabled() == c.cancel);
  }
}

TEST_CASE("a cancel is offered for a question, text on line A, or a true or false mark") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  const Button& cancel = window.buttons[kCancelButton];
  CHECK_FALSE(cancel.Enabled());
  Type(window.answers[0], u"a");
  CHECK(cancel.Enabled());
  Type(window.answers[1], u"b");
  Replace(window.answers[0], u"");
  CHECK_FALSE(cancel.Enabled());  // line B does not count
  Type(window.question, u"q");
  CHECK(cancel.Enabled());
}

TEST_CASE("the fifth capital of the run shortens the line that it is typed on") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Type(window.answers[0], u"aAbBCD");
  CHECK(window.answers[0].MaxLength() == 48);
  Type(window.answers[1], u"E");
  CHECK(fixture.state.building.capitalCount == 5);
  const std::array<int, 4> expected = {48, 40, 48, 48};
  for (int line = 0; line < 4; ++line) {
    CHECK(window.answers[line].MaxLength() == expected.at(static_cast<std::size_t>(line)));
  }
  Type(window.answers[0], u"F");
  Type(window.answers[0], u"g");
  CHECK(window.answers[0].MaxLength() == 48);
  CHECK(window.answers[1].MaxLength() == 40);
}

TEST_CASE("while the count stands at five every key shortens its line") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Type(window.answers[0], u"ABCDE");
  Type(window.answers[1], u"x");
  Type(window.answers[2], u"1");
  CHECK(window.answers[1].MaxLength() == 40);
  CHECK(window.answers[2].MaxLength() == 40);
  CHECK(window.answers[3].MaxLength() == 48);
}

TEST_CASE("letters beyond A to Z are no capitals, and the question's keys do not count") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Type(window.answers[0], u"@[\u00C4\u00D6az09");
  Type(window.question, u"CAPITALS");
  CHECK(fixture.state.building.capitalCount == 0);
  Type(window.answers[0], u"AZ");
  CHECK(fixture.state.building.capitalCount == 2);
}

TEST_CASE("a shortened line keeps the text that is longer already") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Type(window.answers[0], Text(48, u'x'));
  Type(window.answers[0], u"ABCDE");
  CHECK(window.answers[0].TextOf() == Text(48, u'x'));
  CHECK(window.answers[0].MaxLength() == 40);
  window.answers[0].UserEdit({47, 1, u""});
  CHECK(window.answers[0].TextOf() == Text(47, u'x'));
  Type(window.answers[0], u"y");
  CHECK(window.answers[0].TextOf() == Text(47, u'x'));
}

TEST_CASE("the count and the shortened line outlive the builder") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Type(window.answers[0], u"ABCDE");
  window.UserClose();
  CHECK_FALSE(fixture.question.IsLoaded());
  fixture.OpenBuilder();
  CHECK(fixture.state.building.capitalCount == 5);
  CHECK(fixture.question->answers[0].MaxLength() == 40);
  CHECK(fixture.question->answers[1].MaxLength() == 48);
}

TEST_CASE("the count of capitals stays at the most that it can hold") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  fixture.state.building.capitalCount = 32767;
  Type(window.answers[0], u"A");
  CHECK(fixture.state.building.capitalCount == 32767);
  CHECK(window.answers[0].MaxLength() == 48);
}

TEST_CASE("a visit to a line takes the placeholder away, and nothing else") {
  struct Case {
    TextView text, after;
  };
  const Case cases[] = {{u"[TEXT MISSING HERE]", u""},
                        {u"[text missing here]", u"[text missing here]"},
                        {u"[TEXT MISSING HERE] ", u"[TEXT MISSING HERE] "},
                        {u"answer", u"answer"}};
  for (const Case& c : cases) {
    BuilderFixture fixture;
    QuestionBuilder& window = fixture.OpenQuestion();
    Type(window.answers[0], Text(c.text));
    window.UserFocus(window.question);
    window.UserFocus(window.answers[0]);
    CHECK(window.answers[0].TextOf() == c.after);
  }
}

TEST_CASE("an answer line is one line and takes 48 characters") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Replace(window.answers[0], u"first\r\nsecond");
  CHECK(window.answers[0].TextOf() == u"first");
  Replace(window.answers[0], Text(60, u'x'));
  CHECK(window.answers[0].TextOf() == Text(48, u'x'));
}

TEST_CASE("Tab leaves the last open answer line for the first mark that can be set") {
  struct Case {
    std::vector<Text> lines;
    int emptied = -1;
    int from = 0;
    int target = -1;  ///< the mark; -1 for the next control
  };
  const Case cases[] = {
      {{}, -1, 0, -1},                        // no mark can be set
      {{u"a"}, -1, 0, -1},                    // line B is next
      {{u"a"}, -1, 1, 0},                     // line B is the last
      {{u"a", u"b", u"c", u"d"}, -1, 2, -1},  //
      {{u"a", u"b", u"c", u"d"}, -1, 3, 0},   //
      {{u"a", u"b", u"c", u"d"}, 3, 2, 0},    // line D has closed itself
  };
  for (const Case& c : cases) {
    CAPTURE(c.from);
    BuilderFixture fixture;
    QuestionBuilder& window = fixture.OpenQuestion();
    Fill(window, c.lines);
    if (c.emptied >= 0) Replace(window.answers[c.emptied], u"");
    const Control* target = window.TabTarget(window.answers[c.from]);
    CHECK(target == (c.target < 0 ? nullptr : &window.marks[c.target]));
  }
}

TEST_CASE("with a mark set, or in the other layout, Tab goes to the next control") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Fill(window, {u"a"});
  REQUIRE(window.TabTarget(window.answers[1]) != nullptr);
  window.marks[0].Press();
  CHECK(window.TabTarget(window.answers[1]) == nullptr);
  CHECK(window.TabTarget(window.question) == nullptr);
}

}  // namespace tessara::test
