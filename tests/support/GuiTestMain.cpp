#include "support/RunTests.h"

#include <QGuiApplication>

/// The main function of the test programs whose tests need fonts; no display is opened.
int main(int argc, char** argv) {
    return quillford::runTests<QGuiApplication>(argc, argv);
}
