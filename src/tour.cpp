#include <QApplication>
int main(int argc, char** argv) { QApplication a(argc, argv); return 0; }
