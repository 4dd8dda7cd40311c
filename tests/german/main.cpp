// SPDX-License-Identifier: MIT
#include "fakes/QtMain.h"

int main(int argc, char** argv) {
    return zelk::fakes::runWindowTests(argc, argv, {QLocale::German, QLocale::Germany});
}
