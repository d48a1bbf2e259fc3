// The least that a program with a progress dialog does: what the launcher's start is measured
// against.

#include <QApplication>
#include <QProgressDialog>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QProgressDialog dialog;
    return 0;
}
