// SPDX-License-Identifier: MIT
// What a window of the toolkit takes before a program puts anything into it.
#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[]) {
    const QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Empty window"));
    window.resize(640, 480);
    window.show();
    return QApplication::exec();
}
