// Starts and stops an installed libQNbase; prints the initialised packages.
#include <iostream>

#include <base/inInitGuard.h>
#include <base/inInitMgr.h>

int main(int argc, char** argv) {
    Qn::InInitGuard library(argc, argv);
    std::cout << Qn::InInitMgr::getInstance();
    return 0;
}
