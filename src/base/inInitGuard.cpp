#include <base/inInitGuard.h>

#include <exception>
#include <iostream>

#include <base/inEx.h>
#include <base/inInitMgr.h>

namespace Qn {

namespace {

template <class Argv>
void initializeOrReport(int& argc, Argv& argv) {
    InInitMgr& manager = InInitMgr::getInstance();
    try {
        manager.initialize(argc, argv);
    } catch (const InEx& failure) {
        std::cout << "Initialisation failed: " << failure.getReason() << std::endl;
        manager.dump(std::cout);
        std::cout << std::endl;
        manager.finalize();
        throw;
    }
}

}  // namespace

InInitGuard::InInitGuard(int& argc, const char* const*& argv) { initializeOrReport(argc, argv); }

InInitGuard::InInitGuard(int& argc, char**& argv) { initializeOrReport(argc, argv); }

InInitGuard::~InInitGuard() noexcept(false) {
    if (std::uncaught_exceptions() == 0) {
        InInitMgr::getInstance().finalize();
        return;
    }
    try {
        InInitMgr::getInstance().finalize();
    } catch (const std::exception& failure) {
        std::cerr << "Finalisation failed: " << failure.what() << std::endl;
    }
}

}  // namespace Qn
