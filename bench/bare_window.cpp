// The floor that the start is measured against: a main window with an empty area for children.

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  auto* area = new QMdiArea;
  area->viewport()->setObjectName("bare");
  window.setCentralWidget(area);
  window.resize(860, 640);
  window.show();
  return QApplication::exec();
}
