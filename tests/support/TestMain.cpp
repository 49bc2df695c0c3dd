#include "support/RunTests.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    return quillford::runTests<QCoreApplication>(argc, argv);
}
