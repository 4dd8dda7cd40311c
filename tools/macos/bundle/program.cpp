// SPDX-License-Identifier: MIT
// Stands for both programs of the bundle, which only a Mac can link.
#include <iostream>

int main() {
    std::cout << "not Zelk\n";
    return 1;
}
