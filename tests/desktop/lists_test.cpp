#include <QAbstractItemView>
#include <QComboBox>
#include <QTreeWidget>
#include <doctest/doctest.h>

#include "tests/desktop/support/fixture.h"

using namespace tessara;
using namespace tessara::test;

namespace {

QTreeWidget& List() {
  return Fixture::Of<QTreeWidget>("List1");
}

QPoint PlaceOf(int index) {
  return List().visualItemRect(List().topLevelItem(index - 1)).center();
}

QPoint CheckBoxOf(int index) {
  return {List().visualItemRect(List().topLevelItem(index - 1)).left() + 10, PlaceOf(index).y()};
}

void Click(QPoint place) {
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);
}

}  // namespace

TEST_CASE("A list shows its columns, its items and its first item as the selected one") {
  Fixture fixture;
  fixture.ShowChild();
  CHECK(List().headerItem()->text(1) == "FRONT TEXT");
  CHECK(List().columnWidth(0) == 60);
  CHECK(List().topLevelItemCount() == 3);
  CHECK(List().topLevelItem(0)->text(1) == "Paris");
  CHECK(List().topLevelItem(1)->text(1) == "Rome and more");
  CHECK(List().currentItem() == List().topLevelItem(0));
}

TEST_CASE("A click on an item selects it and leaves its tick") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  Click(PlaceOf(2));
  CHECK(form.list.SelectedIndex() == 2);
  CHECK_FALSE(form.list.Item(2).checked);
  CHECK(form.log.Take() == "lost focus, list");
}

TEST_CASE("A click on a check box turns its tick over once and selects the item") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  Click(CheckBoxOf(3));
  CHECK(form.list.Item(3).checked);
  CHECK(form.list.SelectedIndex() == 3);
  CHECK(List().topLevelItem(2)->checkState(0) == Qt::Checked);
  Click(CheckBoxOf(3));
  CHECK_FALSE(form.list.Item(3).checked);
  CHECK(List().topLevelItem(2)->checkState(0) == Qt::Unchecked);
}

TEST_CASE("A click beside the items keeps the selection and runs the click") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  Click({50, List().viewport()->height() - 5});
  CHECK(form.list.SelectedIndex() == 1);
  CHECK(form.log.Take() == "lost focus, list");
}

TEST_CASE("Keys move the selection and turn the tick, and end in a key-up") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  List().setFocus();
  form.log.Take();
  QTest::keyClick(&List(), Qt::Key_Down);
  CHECK(form.list.SelectedIndex() == 2);
  QTest::keyClick(&List(), Qt::Key_Space);
  CHECK(form.list.Item(2).checked);
  CHECK(form.log.Take() == "key up, key up");
}

TEST_CASE("Ticks and items that the form sets show") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.list.SetChecked(1, true);
  CHECK(List().topLevelItem(0)->checkState(0) == Qt::Checked);
  form.list.AddItem(u"4", {u"Bern"});
  CHECK(List().topLevelItemCount() == 4);
  form.list.SetColumnWidth(1, 1500);
  CHECK(List().columnWidth(0) == 100);
}

TEST_CASE("A combo box shows its items and passes on what the user chooses") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& combo = Fixture::Of<QComboBox>("Combo1");
  CHECK(combo.count() == 2);
  CHECK(combo.currentIndex() == -1);
  CHECK_FALSE(combo.isEditable());
  QTest::keyClick(&combo, Qt::Key_Down);
  CHECK(form.combo.ListIndex() == -1);
  CHECK(form.log.Take().empty());
  QTest::keyClick(combo.view(), Qt::Key_Home);
  QTest::keyClick(combo.view(), Qt::Key_Return);
  CHECK(form.combo.TextOf() == u"First");
  CHECK(form.log.Take() == "combo");
  // Turned over it, a wheel means what lies around it.
  QWheelEvent wheel(QPointF(5, 5), combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&combo, &wheel);
  CHECK(form.log.Take().empty());
  CHECK(combo.currentIndex() == 0);
  form.combo.SetListIndex(1);
  CHECK(combo.currentText() == "Second");
  form.combo.AddItem(u"Third");
  CHECK(combo.count() == 3);
}
