// Writes docs/verification.md to standard output; with "--search N" only what the search makes of
// the random tasks 1 to N beside the exact equilibrium.
#include "support/decimal_comma.h"
#include "verification/search_record.h"
#include "verification/verification_page.h"

#include <QCoreApplication>

#include <cstdlib>
#include <iostream>
#include <string_view>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc == 3 && std::string_view(argv[1]) == "--search") {
        const ferna::testing::WithDecimalSign comma(u',');
        const std::uint64_t tasks = std::strtoull(argv[2], nullptr, 10);
        std::cout << ferna::testing::textOf(ferna::testing::searchRecord(tasks), tasks);
        return 0;
    }
    std::cout << ferna::testing::verificationPage();
    return 0;
}
