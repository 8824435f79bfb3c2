// The library's tour: a host program that starts the library with its command
// line, uses it, and finalises it.
#include <exception>
#include <iostream>

#include <base/exBase.h>
#include <base/inInitGuard.h>
#include <base/inInitMgr.h>

int main(int argc, char** argv) {
    try {
        // Initialises every package of the library in dependency order; the
        // library takes the command line (argc is 0 afterwards).
        Qn::InInitGuard library(argc, argv);
        std::cout << "QnBase demo: the library is initialised.\n\n" << Qn::InInitMgr::getInstance();
        std::cout << "\nFinalising the packages in reverse order.\n";
        return 0;
    } catch (const Qn::ExBase& failure) {
        std::cerr << failure.getDetailedReason() << std::endl;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << std::endl;
    }
    return 1;
}
