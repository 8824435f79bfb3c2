// With QN_BUILDINFO_CHECK_STAMPS set, start-up validation checks the build order.
#include <base/dbgBuildInfoRegistry.h>

#include <gtest/gtest.h>

#include <base/dbgBuildInfoEx.h>

TEST(DbgBuildInfo, StartUpChecksStampsWhenAsked) {
    EXPECT_NO_THROW(Qn::DbgBuildInfoRegistry::initialize());
    // Built in 2001, long before the libQNbase it runs with.
    Qn::DbgBuildInfoRegistration stale("libQNold", Qn::DbgVersion(1, 0, 0),
                                       Qn::DbgBuildInfo::Library, "Jan  1 2001 00:00:00");
    EXPECT_THROW(Qn::DbgBuildInfoRegistry::initialize(), Qn::DbgBuildInfoEx::ExStaleBuild);
}
