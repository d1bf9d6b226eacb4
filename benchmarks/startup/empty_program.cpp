// The measure of the start: a program of the same toolkit with nothing in its window.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.show();
  return QApplication::exec();
}
