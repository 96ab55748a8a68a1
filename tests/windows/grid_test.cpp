#include "shell/widgets/grid/SSDBGrid.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace tallymere {

namespace {

/// A grid as windows hold one, on the screen and with the focus.
struct OnScreen {
  OnScreen() {
    grid->setObjectName("grd");
    auto* column = new QVBoxLayout(&window);
    column->addWidget(grid);
    column->addWidget(field);
    window.resize(500, 300);
  }
  void show() {
    window.show();
    window.activateWindow();
    grid->setFocus();
    QCoreApplication::processEvents();
  }
  void key(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, with);
  }
  QWidget window;
  SSDBGrid* grid = new SSDBGrid;
  QLineEdit* field = new QLineEdit;
};

}  // namespace

TEST(Grid, AmountsFitTheirWidestFigureTextsTakeTheRestAndTheUsersWidthStays) {
  OnScreen on;
  on.grid->set_columns({{.name = "Name"}, {.name = "Amount", .kind = Kind::money, .width = 6}, {.name = "Memo"}});
  on.grid->AddItem("Acme\t1");
  on.show();
  const int narrow = on.grid->columnWidth(1);
  on.grid->AddItem("Acme\t123456789012.34");
  QCoreApplication::processEvents();
  const QFontMetrics metrics(on.grid->model()->index(1, 1).data(Qt::FontRole).value<QFont>());
  EXPECT_GT(on.grid->columnWidth(1), narrow);
  EXPECT_GE(on.grid->columnWidth(1), metrics.horizontalAdvance("123,456,789,012.34"));
  EXPECT_EQ(on.grid->columnWidth(0) + on.grid->columnWidth(1) + on.grid->columnWidth(2), on.grid->viewport()->width());

  on.grid->horizontalHeader()->resizeSection(1, 40);  // as dragged
  on.grid->AddItem("Acme\t923456789012.34");
  on.window.resize(700, 300);
  QCoreApplication::processEvents();
  EXPECT_EQ(on.grid->columnWidth(1), 40);
  EXPECT_EQ(on.grid->columnWidth(0) + on.grid->columnWidth(1) + on.grid->columnWidth(2), on.grid->viewport()->width());
}

TEST(Grid, ShowsCentsAndKeepsWhatIsBeneath) {
  OnScreen on;
  on.grid->set_columns(
      {{.name = "Amount", .kind = Kind::money}, {.name = "Cost", .kind = Kind::money, .mask = "#,##0.00##"}});
  on.grid->AddValues({Money::parse("-224667.1499").value(), Money::parse("0.0125").value()});
  const auto shown = [&](int column) { return on.grid->model()->index(0, column).data().toString().toStdString(); };
  EXPECT_EQ(shown(0), "-224,667.15");
  EXPECT_EQ(shown(1), "0.0125");
  EXPECT_EQ(on.grid->value(0, 0).money(), Money::parse("-224667.1499"));
}

TEST(Grid, HomeAndEndWalkRowsInAListAndCellsInALine) {
  OnScreen on;
  on.grid->set_columns(
      {{.name = "A", .kind = Kind::hidden}, {.name = "B"}, {.name = "C"}, {.name = "D", .locked = true}});
  for (int row = 0; row < 30; ++row) on.grid->AddItem("\tb\tc\td");
  on.show();
  on.grid->set_Row(3);
  on.key(Qt::Key_End);
  EXPECT_EQ(on.grid->Row(), 29);
  EXPECT_EQ(on.grid->selected_rows(), std::vector<int>{29});
  on.key(Qt::Key_Home);
  EXPECT_EQ(on.grid->Row(), 0);

  on.grid->set_read_only(false);
  on.grid->set_new_line(true);
  on.grid->set_cell(4, 1);
  on.key(Qt::Key_End);
  EXPECT_EQ(std::pair(on.grid->Row(), on.grid->Col()), std::pair(4, 2)) << "the last that can be written in";
  on.key(Qt::Key_Home);
  EXPECT_EQ(std::pair(on.grid->Row(), on.grid->Col()), std::pair(4, 1));
}

TEST(Grid, TheMenuKeyOpensAtItsRow) {
  OnScreen on;
  on.grid->set_columns({{.name = "A"}});
  for (int row = 0; row < 40; ++row) on.grid->AddItem("a");
  on.show();
  on.grid->set_Row(35);
  const QSignalSpy asked(on.grid, &SSDBGrid::MenuRequested);
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QApplication::sendEvent(on.grid->viewport(), &event);
  ASSERT_EQ(asked.size(), 1);
  EXPECT_EQ(asked[0][0].toInt(), 35);
  const QRect row = on.grid->visualRect(on.grid->model()->index(35, 0));
  const QPoint at = on.grid->viewport()->mapFromGlobal(on.grid->menu_place());
  EXPECT_TRUE(row.adjusted(-1, -1, 1, 1).contains(at)) << at.x() << ", " << at.y();
}

TEST(Grid, RowsReadAgainKeepTheOrderTheUserChose) {
  OnScreen on;
  on.grid->set_columns({{.name = "A", .kind = Kind::number}});
  on.grid->set_sorting(true);
  const auto fill = [&] {
    const SSDBGrid::Fill all(*on.grid);
    on.grid->RemoveAll();
    for (const char* text : {"2", "10", "1"}) on.grid->AddItem(text);
  };
  const auto order = [&] { return on.grid->text(0, 0) + on.grid->text(1, 0) + on.grid->text(2, 0); };
  fill();
  EXPECT_EQ(order(), "2101");
  Q_EMIT on.grid->horizontalHeader()->sectionClicked(0);
  EXPECT_EQ(order(), "1210");
  Q_EMIT on.grid->horizontalHeader()->sectionClicked(0);
  fill();
  EXPECT_EQ(order(), "1021");
}

TEST(Grid, TheChosenRowShowsWhetherTheKeysGoThere) {
  OnScreen on;
  on.grid->set_columns({{.name = "A"}});
  on.grid->AddItem("one");
  on.show();
  on.grid->set_Row(0);
  const auto color = [&] {
    const QRect row = on.grid->visualRect(on.grid->model()->index(0, 0));
    return on.grid->viewport()->grab().toImage().pixelColor(row.right() - 4, row.center().y());
  };
  const QColor with = color();
  on.field->setFocus();
  QCoreApplication::processEvents();
  const QColor without = color();
  EXPECT_NE(with, without);
  EXPECT_NE(without, on.grid->palette().color(QPalette::Base)) << "still to be seen";
}

}  // namespace tallymere
