// With QN_BUILDINFO_NO_VALIDATE set, start-up validation is skipped.
#include <base/dbgBuildInfoRegistry.h>

#include <gtest/gtest.h>

#include <base/dbgBuildInfoEx.h>

TEST(DbgBuildInfo, StartUpSkipsValidationWhenAsked) {
    Qn::DbgBuildInfoRegistration future("libQNfuture", Qn::DbgVersion(1, 0, 0),
                                        Qn::DbgBuildInfo::Library, "2000-01-01 00:00:00",
                                        Qn::DbgVersion(7, 0, 0));
    EXPECT_NO_THROW(Qn::DbgBuildInfoRegistry::initialize());
    EXPECT_THROW(Qn::DbgBuildInfoRegistry::getInstance().validate(false),
                 Qn::DbgBuildInfoEx::ExVersionMismatch);
}
