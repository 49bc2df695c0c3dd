#include "support/RunTests.h"

#include <QApplication>

/// The main function of the test programs whose tests need widgets; no display is opened.
int main(int argc, char** argv) {
    return quillford::runTests<QApplication>(argc, argv);
}
