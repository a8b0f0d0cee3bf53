#include <doctest/doctest.h>

#include "base/utf8.h"
#include "forms/controls/image_list.h"
#include "tests/support/error_of.h"
#include "tests/unit/forms/test_windows.h"

namespace tessara::test {

TEST_CASE("controls carry their names, array members with their index") {
  RulesFixture fixture;
  CHECK(fixture.first->options[1].Name() == "Option1(1)");
  CHECK(fixture.first->textBox.Name() == "Text1");
  CHECK(fixture.first->FindControl("Option1(1)") == &fixture.first->options[1]);
  CHECK(fixture.first->FindControl("Option1(2)") == nullptr);
  CHECK(fixture.first->FindMenu("mnuOpen") == &fixture.first->openEntry);
}

TEST_CASE("an index that a control array does not have is error 340") {
  RulesFixture fixture;
  for (const int index : {-1, 2, 99}) {
    CHECK(ErrorOf([&] { static_cast<void>(fixture.first->options[index]); }) == 340);
  }
}

TEST_CASE("assigning a different text runs the change before the assignment returns") {
  RulesFixture fixture;
  int changes = 0;
  fixture.first->textBox.onChange = [&] { ++changes; };
  fixture.first->textBox.SetText(u"a");
  CHECK(changes == 1);
  fixture.first->textBox.SetText(u"a");
  CHECK(changes == 1);
}

TEST_CASE("selecting an option clears its group without an event and runs its click") {
  RulesFixture fixture;
  std::vector<int> clicks;
  fixture.first->options.Wire(&OptionButton::onClick, [&](int index) { clicks.push_back(index); });
  fixture.first->loneOption.SetSelected(true);
  fixture.first->options[0].SetSelected(true);
  fixture.first->options[1].SetSelected(true);
  CHECK_FALSE(fixture.first->options[0].Selected());
  CHECK(fixture.first->loneOption.Selected());
  fixture.first->options[1].SetSelected(true);
  fixture.first->options[1].SetSelected(false);
  CHECK(clicks == std::vector{0, 1});
}

TEST_CASE("the user's click on a selected option runs its click once more") {
  RulesFixture fixture;
  fixture.first->Show();
  int clicks = 0;
  fixture.first->loneOption.onClick = [&] { ++clicks; };
  fixture.first->loneOption.Press();
  fixture.first->loneOption.Press();
  CHECK(clicks == 2);
}

TEST_CASE("a check box runs its click for a different value only") {
  RulesFixture fixture;
  int clicks = 0;
  fixture.first->check.onClick = [&] { ++clicks; };
  fixture.first->check.SetValue(1);
  fixture.first->check.SetValue(1);
  fixture.first->check.SetValue(0);
  CHECK(clicks == 2);
  CHECK(ErrorOf([&] { fixture.first->check.SetValue(3); }) == 380);
}

TEST_CASE("what a disabled or hidden container holds can't be pressed") {
  RulesFixture fixture;
  fixture.first->Show();
  int clicks = 0;
  fixture.first->options[0].onClick = [&] { ++clicks; };
  fixture.first->group.SetEnabled(false);
  fixture.first->options[0].Press();
  fixture.first->group.SetEnabled(true);
  fixture.first->group.SetVisible(false);
  fixture.first->options[0].Press();
  CHECK(clicks == 0);
  fixture.first->group.SetVisible(true);
  fixture.first->options[0].Press();
  CHECK(clicks == 1);
}

TEST_CASE("an accelerator presses what carries it, in either case") {
  RulesFixture fixture;
  fixture.first->Show();
  int clicks = 0;
  fixture.first->close.onClick = [&] { ++clicks; };
  CHECK(fixture.first->UserAccelerator(u'c'));
  CHECK(fixture.first->UserAccelerator(u'C'));
  CHECK_FALSE(fixture.first->UserAccelerator(u'x'));
  CHECK(fixture.first->UserAccelerator(u't'));
  CHECK(fixture.first->options[1].Selected());
  CHECK(clicks == 2);
}

TEST_CASE("a letter of any script is an accelerator, in either case where it has two") {
  struct Case {
    TextView caption;
    TextView keys;
  };
  const Case cases[] = {{u"&\u0436\u0443\u043A", u"\u0436\u0416"},
                        {u"&\u03C8\u03C9\u03BC\u03AF", u"\u03C8\u03A8"},
                        {u"&\u00E9t\u00E9", u"\u00E9\u00C9"},
                        {u"&\u05DE\u05D9\u05DD", u"\u05DE"},
                        {u"&\u0645\u0627\u0621", u"\u0645"},
                        {u"&\u6C34", u"\u6C34"},
                        {u"&\uBB3C", u"\uBB3C"},
                        {u"&\u0E19\u0E49\u0E33", u"\u0E19"}};
  for (const Case& one : cases) {
    CAPTURE(ToUtf8(one.caption));
    RulesFixture fixture;
    fixture.first->Show();
    std::size_t clicks = 0;
    fixture.first->close.SetCaption(Text(one.caption));
    fixture.first->close.onClick = [&] { ++clicks; };
    for (const char16_t key : one.keys) CHECK(fixture.first->UserAccelerator(key));
    CHECK(clicks == one.keys.size());
  }
}

TEST_CASE("a letter that several controls share goes from one to the next and presses none") {
  RulesFixture fixture;
  fixture.first->Show();
  RulesForm& form = *fixture.first.operator->();
  int clicks = 0;
  form.loneOption.SetCaption(u"&Choice");
  form.check.SetCaption(u"&Check");
  form.loneOption.onClick = form.check.onClick = form.close.onClick = [&] { ++clicks; };
  const Control* const round[] = {&form.loneOption, &form.check, &form.close, &form.loneOption};
  for (const Control* next : round) {
    CHECK(form.UserAccelerator(u'c'));
    CHECK(form.FocusedControl() == next);
  }
  // From elsewhere it goes on to the next one behind.
  form.textBox.SetFocus();
  CHECK(form.UserAccelerator(u'c'));
  CHECK(form.FocusedControl() == &form.close);
  CHECK(clicks == 0);
}

TEST_CASE("a control that can't be reached shares no letter") {
  RulesFixture fixture;
  fixture.first->Show();
  RulesForm& form = *fixture.first.operator->();
  int clicks = 0;
  form.close.onClick = [&] { ++clicks; };
  form.options[0].SetCaption(u"&Choice");
  form.loneOption.SetCaption(u"&Choice");
  form.check.SetCaption(u"&Check");
  form.group.SetVisible(false);
  form.loneOption.SetEnabled(false);
  form.check.SetVisible(false);
  CHECK(form.UserAccelerator(u'c'));
  CHECK(clicks == 1);
}

TEST_CASE("accelerators and plain captions are read from marks") {
  struct Case {
    TextView caption;
    char16_t accelerator;
    TextView plain;
  };
  const Case cases[] = {
      {u"&Close", u'C', u"Close"},
      {u"E&xtended", u'X', u"Extended"},
      {u"Bread && butter", 0, u"Bread & butter"},
      {u"&&&a", u'A', u"&a"},
      {u"plain", 0, u"plain"},
      {u"end&", 0, u"end"},
      {u"", 0, u""},
  };
  for (const Case& c : cases) {
    CHECK(AcceleratorOf(c.caption) == c.accelerator);
    CHECK(PlainCaption(c.caption) == c.plain);
  }
}

TEST_CASE("the focus can't go where the user can't reach: error 5") {
  RulesFixture fixture;
  CHECK(ErrorOf([&] { fixture.first->textBox.SetFocus(); }) == 5);
  fixture.first->Show();
  fixture.first->textBox.SetEnabled(false);
  CHECK(ErrorOf([&] { fixture.first->textBox.SetFocus(); }) == 5);
  fixture.first->textBox.SetEnabled(true);
  fixture.first->textBox.SetFocus();
  CHECK(fixture.first->FocusedControl() == &fixture.first->textBox);
}

TEST_CASE("the focus leaves one control before it enters the next") {
  RulesFixture fixture;
  fixture.first->Show();
  Events events;
  fixture.first->textBox.onGotFocus = [&] { events.push_back("text got"); };
  fixture.first->textBox.onLostFocus = [&] { events.push_back("text lost"); };
  fixture.first->close.onGotFocus = [&] { events.push_back("button got"); };
  fixture.first->textBox.SetFocus();
  fixture.first->UserFocus(fixture.first->close);
  CHECK(events == Events{"text got", "text lost", "button got"});
}

TEST_CASE("image lists know their pictures by key and by index from 1") {
  const ImageList list({{u"a", {"a.png", 1, 1}}, {u"b", {"b.png", 1, 1}}});
  CHECK(list.At(2).key == u"b");
  CHECK(list.At(u"a").picture.file == "a.png");
  for (const int index : {0, 3, 12})
    CHECK(ErrorOf([&] { static_cast<void>(list.At(index)); }) == 35600);
  CHECK(ErrorOf([&] { static_cast<void>(list.At(u"A")); }) == 35601);
}

TEST_CASE("a combo box gives and takes the entries that it has, from 0, and none") {
  ComboBox box("Combo1");
  box.AddItem(u"one");
  box.AddItem(u"two");
  CHECK(box.Item(1) == u"two");
  for (const int index : {-1, 2}) {
    CHECK(ErrorOf([&] { static_cast<void>(box.Item(index)); }) == 5);
  }
  box.SetListIndex(1);
  box.SetListIndex(-1);
  CHECK(box.TextOf().empty());
  for (const int index : {-2, 2}) CHECK(ErrorOf([&] { box.SetListIndex(index); }) == 380);
}

TEST_CASE("a list knows the widths of the columns that it has, from 1") {
  ListView list("List1");
  list.AddColumn(u"One", 100);
  list.SetColumnWidth(1, 300);
  CHECK(list.ColumnWidth(1) == 300);
  for (const int column : {0, 2}) {
    CHECK(ErrorOf([&] { static_cast<void>(list.ColumnWidth(column)); }) == 35600);
    CHECK(ErrorOf([&] { list.SetColumnWidth(column, 1); }) == 35600);
  }
}

TEST_CASE("a menu entry runs only where it and all above it are enabled and visible") {
  RulesFixture fixture;
  fixture.first->Show();
  int clicks = 0;
  fixture.first->openEntry.onClick = [&] { ++clicks; };
  fixture.first->openEntry.Press();
  fixture.first->fileMenu.SetEnabled(false);
  fixture.first->openEntry.Press();
  fixture.first->fileMenu.SetEnabled(true);
  fixture.first->openEntry.SetVisible(false);
  fixture.first->openEntry.Press();
  CHECK(clicks == 1);
}

TEST_CASE("a menu that has entries runs nothing itself") {
  RulesFixture fixture;
  fixture.first->Show();
  int clicks = 0;
  fixture.first->fileMenu.onClick = [&] { ++clicks; };
  fixture.first->fileMenu.Press();
  CHECK(clicks == 0);
}

}  // namespace tessara::test
