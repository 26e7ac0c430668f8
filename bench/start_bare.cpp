// A bare Qt window of the launcher's size, to measure the program's start against.
#include <QApplication>
#include <QWidget>

#include "bench/first_frame.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.resize(664, 424);
  EndWithFirstFrame(argc > 1);
  window.show();
  return QApplication::exec();
}
