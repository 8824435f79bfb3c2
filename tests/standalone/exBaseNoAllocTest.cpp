// Building an exception must not allocate: this program counts every call of the
// global operator new while exceptions are built and copied.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <string>

#include <base/exBadException.h>
#include <base/exInternalError.h>
#include <base/exSysErrorANSI.h>
#include <base/exSysErrorNative.h>

namespace {
std::atomic<long> allocations{0};
}

void* operator new(std::size_t size) {
    ++allocations;
    if (void* p = std::malloc(size ? size : 1)) return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

TEST(ExBaseNoAlloc, BuildingAndCopyingExceptionsDoesNotAllocate) {
    const std::string longText(2000, 'x');
    const long before = allocations.load();
    {
        Qn::ExInternalError internal(longText.c_str(), 1, longText.c_str());
        Qn::ExSysErrorANSI ansi("f.cpp", 2, 2);
        Qn::ExSysErrorNative native("f.cpp", 3, 13);
        Qn::ExBadException bad("f.cpp", 4);
        Qn::ExInternalError copy(internal);
        copy = internal;
    }
    EXPECT_EQ(allocations.load() - before, 0);
}
