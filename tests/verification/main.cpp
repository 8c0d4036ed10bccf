// Writes docs/verification.md to standard output.
#include "verification/verification_page.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    std::cout << ferna::testing::verificationPage();
    return 0;
}
